#pragma once

#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>

namespace walk {

// Ends the process with a word and a core when a step takes longer than a user would wait.
class Watchdog {
public:
    explicit Watchdog(const char* program)
        : thread_([this, program] {
              for (long seen = -1; !stopped_; std::this_thread::sleep_for(std::chrono::milliseconds(100))) {
                  idle_ = seen == beats_ ? idle_ + 1 : 0;
                  seen = beats_;
                  if (idle_ < patience)
                      continue;
                  std::fprintf(stderr, "%s hangs: a step has taken %d seconds.\n", program, patience / 10);
                  std::abort();
              }
          }) {}
    ~Watchdog() {
        stopped_ = true;
        thread_.join();
    }
    Watchdog(const Watchdog&) = delete;
    Watchdog& operator=(const Watchdog&) = delete;

    void beat() { ++beats_; } // at each step

private:
    static constexpr int patience = 600; // tenths of a second

    std::atomic<long> beats_ = 0;
    std::atomic<bool> stopped_ = false;
    int idle_ = 0;
    std::thread thread_;
};

} // namespace walk
