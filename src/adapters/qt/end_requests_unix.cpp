#include "adapters/qt/end_requests.h"

#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace qt {

namespace {

// Where the signal handler, which has no other way to find it, writes for the event loop to read.
volatile std::sig_atomic_t pipe_of_signals = -1;

extern "C" void pass_signal_on(int) {
    const int former_error = errno;
    const char mark = 0;
    [[maybe_unused]] const ssize_t written = ::write(pipe_of_signals, &mark, 1); // if full, one is on its way
    errno = former_error;
}

class Signals : public EndRequests {
public:
    explicit Signals(std::function<void()> end) : end_(std::move(end)) {
        if (::pipe2(ends_.data(), O_CLOEXEC | O_NONBLOCK) != 0)
            return; // the signals keep ending the process by themselves
        notifier_ = std::make_unique<QSocketNotifier>(ends_[0], QSocketNotifier::Read);
        QObject::connect(notifier_.get(), &QSocketNotifier::activated, [this] {
            notifier_->setEnabled(false);
            end_();
        });
        pipe_of_signals = ends_[1];
        for (std::size_t i = 0; i < numbers.size(); ++i)
            hear(numbers[i], former_[i]);
    }
    ~Signals() override {
        if (!notifier_)
            return;
        for (std::size_t i = 0; i < numbers.size(); ++i)
            ::sigaction(numbers[i], &former_[i], nullptr);
        pipe_of_signals = -1;
        notifier_.reset();
        for (const int end : ends_)
            ::close(end);
    }
    Signals(const Signals&) = delete;
    Signals& operator=(const Signals&) = delete;

private:
    static constexpr std::array<int, 2> numbers{SIGTERM, SIGINT};

    static void hear(int number, struct sigaction& former) {
        struct sigaction action = {};
        action.sa_handler = pass_signal_on;
        action.sa_flags = static_cast<int>(SA_RESTART | SA_RESETHAND); // the system's headers give it as unsigned
        ::sigemptyset(&action.sa_mask);
        ::sigaction(number, &action, &former);
        if (former.sa_handler == SIG_IGN)
            ::sigaction(number, &former, nullptr);
    }

    std::function<void()> end_;
    std::array<int, 2> ends_{-1, -1};
    std::array<struct sigaction, 2> former_{};
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace

std::unique_ptr<EndRequests> make_end_requests(std::function<void()> end) {
    return std::make_unique<Signals>(std::move(end));
}

} // namespace qt
