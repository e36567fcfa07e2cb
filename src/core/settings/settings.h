#pragma once

#include "core/host/platform.h"
#include "core/settings/ini_lib.h"
#include "core/settings/per_user_store.h"

namespace settings {

// Where the calendar keeps what is set: the settings file, which the user chooses, and the per-user store.
class Settings {
public:
    explicit Settings(const host::Platform& here) : ini(here.files, here.guarded), user_store(here.user_store) {}

    IniLib ini;
    PerUserStore user_store;
};

} // namespace settings
