#pragma once

#include "core/host/application_info.h"

// What whoever ships the program decides.
namespace host {

inline constexpr const char* support_address = "support@orvanta.example";
inline constexpr const char* online_page = "https://orvanta.example/orvanta_online.htm";

// Title, version and support address of this build.
const ApplicationInfo& application_info();

} // namespace host
