#pragma once

#include "core/host/application_info.h"
#include "core/host/message_box.h"
#include "core/values/failure.h"

#include <functional>
#include <string_view>
#include <type_traits>

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
class Guard {
public:
    Guard(MessageBox& box, const ApplicationInfo& application) : box_(box), application_(application) {}

    template <typename Body>
    auto operator()(std::string_view place, Body&& body) const -> std::invoke_result_t<Body, Step&> {
        using Result = std::invoke_result_t<Body, Step&>;
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
    void report_current(std::string_view place, int step) const;

    MessageBox& box_;
    const ApplicationInfo& application_;
};

} // namespace host
