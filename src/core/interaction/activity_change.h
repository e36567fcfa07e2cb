#pragma once

#include "core/interaction/presenter.h"

namespace interaction {

// The question of frmActivityChange, whether one occurrence of a series is meant or all.
class ActivityChange {
public:
    static constexpr int this_instance = 0, all_instances = 1, cancel = 2;

    explicit ActivityChange(Presenter& presenter) : presenter_(presenter) {}

    int iResponse = this_instance; // the last answer

    int show() { return iResponse = presenter_.ask_activity_change(); }

private:
    Presenter& presenter_;
};

} // namespace interaction
