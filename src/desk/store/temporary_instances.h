#pragma once

#include "desk/store/records.h"

#include <string>
#include <vector>

namespace store {

// An activity that stands for the occurrence of a series on one day while that is edited.
struct TemporaryInstance {
    std::string instance{};
    std::string series{};
    DateTime day{};
};

// The temporary instances of all processes, remembered until somebody keeps or drops them, so that one whose
// process died can be taken back. Failures as the store's.
class TemporaryInstances {
public:
    virtual ~TemporaryInstances() = default;
    virtual void remember(const TemporaryInstance& one) = 0; // as this process's, which is making it
    // It is made. What changes it from now on is its user's work.
    virtual void settle(const std::string& instance) = 0;
    virtual void forget(const std::string& instance) = 0; // one that nobody remembers is no failure
    // Deals with those whose processes have ended: where nobody changed the instance and the series is still
    // there, the instance goes and the series has its occurrence of that day back. The others stay as activities
    // of their own, and are given.
    virtual std::vector<TemporaryInstance> take_back_abandoned() = 0;
};

} // namespace store
