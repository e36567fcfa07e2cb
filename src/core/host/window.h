#pragma once

namespace host {

// The main window as far as the core's longer procedures touch it. There is one update lock, not a count of
// them: the first unlock releases it. After a failure a lock or the hourglass can stay on until the next unlock
// or default pointer.
class Window {
public:
    virtual ~Window() = default;
    virtual void lock_updates() = 0; // nothing is painted until unlock_updates
    virtual void unlock_updates() = 0;
    virtual void show_hourglass() = 0;
    virtual void show_default_pointer() = 0;
    virtual void bring_to_front() = 0;
    // How many event loops run, one inside the other: one more while a dialog, a box or a menu is waited for.
    virtual int event_loops() const = 0;
};

} // namespace host
