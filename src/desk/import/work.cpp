#include "desk/import/work.h"

#include <algorithm>
#include <utility>

namespace importing {
namespace {

constexpr std::size_t between_tellings = 1000000;

} // namespace

Work::Work(std::size_t most, Progress progress) : most_(most), progress_(std::move(progress)) {}

void Work::spend(std::size_t units) {
    if (units > left()) {
        spent_ = most_;
        throw Exhausted();
    }
    spent_ += units;
    if (spent_ - told_ >= between_tellings)
        tell();
}

bool Work::within(std::size_t most, const std::function<void()>& task) {
    if (most >= left()) {
        task();
        return true;
    }
    const std::size_t all = std::exchange(most_, spent_ + most);
    try {
        task();
        most_ = all;
        return true;
    } catch (const Exhausted&) {
        most_ = all;
        return false;
    } catch (...) {
        most_ = all;
        throw;
    }
}

void Work::expect(std::size_t steps, double part) {
    length_of_step_ = steps == 0 ? 0 : (part - part_) / static_cast<double>(steps);
    next_part_ = part;
}

void Work::step(std::size_t count) {
    part_ = std::min(next_part_, part_ + length_of_step_ * static_cast<double>(count));
    tell();
}

void Work::tell() {
    told_ = spent_;
    if (progress_ && !progress_(part_))
        throw Cancelled();
}

} // namespace importing
