#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <functional>
#include <string>

namespace support {

// A process beside the test's, for what several do to one file. The body reports by writing to a pipe; a body
// that throws ends the process with 1. No file that the body uses may be open before.
class ChildProcess {
public:
    using Report = std::function<void(const std::string&)>;

    explicit ChildProcess(const std::function<void(Report)>& body) {
        if (::pipe(pipe_) != 0)
            ::abort();
        process_ = ::fork();
        if (process_ == 0) {
            ::close(pipe_[0]);
            int status = 0;
            const Report report = [this](const std::string& text) {
                if (::write(pipe_[1], text.data(), text.size()) != static_cast<ssize_t>(text.size()))
                    ::_exit(2);
            };
            try {
                body(report);
            } catch (const std::exception& failure) {
                report(failure.what());
                status = 1;
            }
            ::_exit(status);
        }
        ::close(pipe_[1]);
    }
    ~ChildProcess() {
        if (!ended_)
            kill();
        ::close(pipe_[0]);
    }
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    std::string read() { // waits for something; empty when nothing comes any more
        char buffer[4096];
        const ssize_t count = ::read(pipe_[0], buffer, sizeof buffer);
        return count > 0 ? std::string(buffer, static_cast<std::size_t>(count)) : std::string();
    }
    std::string read_all() {
        std::string all;
        for (std::string part = read(); !part.empty(); part = read())
            all += part;
        return all;
    }
    int wait() { // for the end; gives the exit status, -1 after a signal
        int status = 0;
        ::waitpid(process_, &status, 0);
        ended_ = true;
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    void kill() {
        ::kill(process_, SIGKILL);
        wait();
    }

private:
    int pipe_[2] = {};
    pid_t process_ = 0;
    bool ended_ = false;
};

} // namespace support
