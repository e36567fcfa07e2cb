#include "adapters/qt/end_requests.h"

namespace qt {

std::unique_ptr<EndRequests> make_end_requests(std::function<void()>) { return std::make_unique<EndRequests>(); }

} // namespace qt
