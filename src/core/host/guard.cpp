#include "core/host/guard.h"

#include <new>
#include <string>

namespace host {

namespace {

values::Failure current_failure() {
    try {
        throw;
    } catch (const values::Failure& failure) {
        return failure;
    } catch (const std::bad_alloc&) {
        return values::Failure(values::FailureNumber::out_of_memory);
    } catch (const std::exception& other) {
        return values::Failure(values::FailureNumber::internal_error, other.what());
    } catch (...) {
        return values::Failure(values::FailureNumber::internal_error);
    }
}

} // namespace

void Guard::report_current(std::string_view place, int step) const {
    const values::Failure failure = current_failure();
    std::string text = "Error " + std::to_string(failure.number()) + ": '" + failure.description() + "'\r";
    text.append(place).append(std::to_string(step)).append("\r");
    text += application_.title + ": " + std::to_string(application_.major) + "." +
            std::to_string(application_.minor) + "." + std::to_string(application_.revision) + "\r\r";
    text += "Please contact " + application_.support_address + " with this error message.";
    show_once(text);
}

void Guard::show_once(const std::string& text) const {
    if (on_screen_.contains(text) || !commands_.back().told.insert(text).second)
        return;
    on_screen_.insert(text);
    box_.show({.text = text, .title = application_.title + " error"});
    on_screen_.erase(text);
}

} // namespace host
