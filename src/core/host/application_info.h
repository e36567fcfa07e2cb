#pragma once

#include <string>

namespace host {

// What the program says of itself in titles, boxes and file names.
struct ApplicationInfo {
    std::string title{};
    int major = 0;
    int minor = 0;
    int revision = 0;
    std::string support_address{};
};

} // namespace host
