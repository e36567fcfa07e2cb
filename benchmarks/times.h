#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <vector>

namespace bench {

// Measured runs of one case, after one that isn't counted and fills the caches.
inline constexpr int runs = 11;

// Milliseconds that the work takes.
template <typename Work>
double measured(Work&& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

// The times of one case, in milliseconds.
class Times {
public:
    void add(double time) { times_.insert(std::upper_bound(times_.begin(), times_.end(), time), time); }
    double median() const { return times_[times_.size() / 2]; }
    double least() const { return times_.front(); }
    double most() const { return times_.back(); }

private:
    std::vector<double> times_; // rising
};

} // namespace bench
