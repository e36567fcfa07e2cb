#include "core/host/deployment.h"

namespace host {

const ApplicationInfo& application_info() {
    static const ApplicationInfo info{.title = "Orvanta",
                                      .major = ORVANTA_VERSION_MAJOR,
                                      .minor = ORVANTA_VERSION_MINOR,
                                      .revision = ORVANTA_VERSION_PATCH,
                                      .support_address = support_address};
    return info;
}

} // namespace host
