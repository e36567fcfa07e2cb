#pragma once

namespace interaction {

// The question of frmActivityChange, whether one occurrence of a series is meant or all.
class ActivityChange {
public:
    enum class Response { this_instance = 0, all_instances = 1, cancel = 2 };

    virtual ~ActivityChange() = default;

    Response iResponse = Response::this_instance; // the last answer
    // Asks and waits.
    Response show() { return iResponse = ask(); }

private:
    virtual Response ask() = 0;
};

} // namespace interaction
