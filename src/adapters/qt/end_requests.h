#pragma once

#include <functional>
#include <memory>

namespace qt {

// The system's requests that this program should end, heard for as long as this lives.
class EndRequests {
public:
    virtual ~EndRequests() = default;
};

// Calls `end` from the event loop at the first request: on Unix the signals TERM and INT, elsewhere none. Whoever
// can't wait for the end asks again: a second request of the kind ends the process at once. A signal that the
// process was started to ignore stays ignored.
std::unique_ptr<EndRequests> make_end_requests(std::function<void()> end);

} // namespace qt
