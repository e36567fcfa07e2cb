#pragma once

#include <cstddef>
#include <exception>
#include <functional>

namespace importing {

// Told from time to time how far an import has come, from 0 to 1. False ends the import.
using Progress = std::function<bool(double part)>;

// The work that an import may do, in units of about ten nanoseconds. Everything takes from it whose effort isn't
// bounded by the size of the file, so that a small file can't keep an import busy for long. What it counts depends
// on the file alone, so an import comes to the same end on every machine.
class Work {
public:
    struct Exhausted : std::exception {
        const char* what() const noexcept override { return "an import takes too much work"; }
    };
    struct Cancelled : std::exception {
        const char* what() const noexcept override { return "an import was cancelled"; }
    };

    explicit Work(std::size_t most, Progress progress = {});

    // Throws Exhausted when so much isn't left, and Cancelled when the progress says so.
    void spend(std::size_t units);
    // Runs a task that may spend so much at most. False when that wasn't enough, which ended the task; what it has
    // spent stays so. Throws Exhausted when it was all that is left anyway.
    bool within(std::size_t most, const std::function<void()>& task);
    std::size_t spent() const { return spent_; }
    std::size_t left() const { return most_ - spent_; }

    // The next so many steps lead from where it stands to that part of the whole.
    void expect(std::size_t steps, double part);
    // Throws Cancelled.
    void step(std::size_t count = 1);

private:
    void tell();

    std::size_t most_;
    std::size_t spent_ = 0;
    std::size_t told_ = 0;
    double part_ = 0;
    double next_part_ = 0;
    double length_of_step_ = 0;
    const Progress progress_;
};

} // namespace importing
