#pragma once

#include <sys/resource.h>

#include <csignal>
#include <stdexcept>

namespace support {

// While it lives, no file of the process can grow beyond so many bytes: a write beyond them fails, as on a disk
// that is full.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes = 0) : old_handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &old_);
        limit({.rlim_cur = bytes, .rlim_max = old_.rlim_max});
    }
    ~FullDisk() {
        ::setrlimit(RLIMIT_FSIZE, &old_);
        std::signal(SIGXFSZ, old_handler_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    static void limit(rlimit to) {
        if (::setrlimit(RLIMIT_FSIZE, &to) != 0)
            throw std::runtime_error("The test can't limit the size of files.");
    }

    void (*old_handler_)(int);
    rlimit old_{};
};

} // namespace support
