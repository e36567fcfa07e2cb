#pragma once

#include "core/host/application_info.h"
#include "core/host/message_box.h"
#include "core/host/window.h"
#include "core/values/failure.h"

#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace host {

// The number of the statement under way, told by the failure box. Procedures set it before each statement, in
// tens.
class Step {
public:
    Step& operator=(int number) {
        number_ = number;
        return *this;
    }
    int number() const { return number_; }

private:
    int number_ = 0;
};

// The boundary of a procedure: a failure inside shows the usual box and ends that procedure alone; its caller
// goes on with the default result. The place names module and procedure, as in
// "in frmMain: Sub Form_Load - Line # ". Any other exception becomes a failure here.
//
// One mistake, such as a slot's time that is none, can fail a procedure hundreds of times. Within one command the
// same box is shown once, and never over itself. A command is what one event sets going, from its outermost
// procedure to the end of that. What happens in the event loop of a dialog, a box or a menu is a command of its
// own: the second click on a dialog's OK tells again.
class Guard {
public:
    Guard(MessageBox& box, const ApplicationInfo& application, const Window& window)
        : box_(box), application_(application), window_(window) {}
    Guard(const Guard&) = delete; // there is one for all procedures
    Guard& operator=(const Guard&) = delete;

    template <typename Body>
    auto operator()(std::string_view place, Body&& body) const -> std::invoke_result_t<Body, Step&> {
        using Result = std::invoke_result_t<Body, Step&>;
        const Procedure procedure(*this);
        Step step;
        try {
            return body(step);
        } catch (...) {
            report_current(place, step.number());
        }
        if constexpr (!std::is_void_v<Result>)
            return Result{};
    }

private:
    struct Command {
        int event_loops; // round its procedures
        std::set<std::string> told{};
    };

    class Procedure {
    public:
        explicit Procedure(const Guard& guard) : guard_(guard), is_outermost_(guard.begin_command()) {}
        ~Procedure() {
            if (is_outermost_)
                guard_.commands_.pop_back();
        }
        Procedure(const Procedure&) = delete;
        Procedure& operator=(const Procedure&) = delete;

    private:
        const Guard& guard_;
        const bool is_outermost_;
    };

    // False inside the command that is under way.
    bool begin_command() const {
        const int event_loops = window_.event_loops();
        if (!commands_.empty() && commands_.back().event_loops >= event_loops)
            return false;
        commands_.push_back({.event_loops = event_loops});
        return true;
    }
    void report_current(std::string_view place, int step) const;
    void show_once(const std::string& text) const;

    MessageBox& box_;
    const ApplicationInfo& application_;
    const Window& window_;
    mutable std::vector<Command> commands_; // each in an event loop of the one before
    mutable std::set<std::string> on_screen_;
};

} // namespace host
