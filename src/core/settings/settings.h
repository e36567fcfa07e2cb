#pragma once

#include "core/host/platform.h"
#include "core/settings/ini_lib.h"
#include "core/settings/per_user_store.h"

namespace settings {

// Where the calendar keeps what is set: the settings file, which the user chooses, and the per-user store.
class Settings {
public:
    explicit Settings(const host::Platform& here)
        : ini(here.files, here.guarded, [&here](const std::string& file) { tell_unwritable(here, file); }),
          user_store(here.user_store) {}

    IniLib ini;
    PerUserStore user_store;

private:
    static void tell_unwritable(const host::Platform& here, const std::string& file) {
        here.box.show(
            {.text = "The settings file \"" + file + "\" can't be written. What was changed in it is lost.",
             .title = here.application.title,
             .icon = host::Icon::exclamation});
    }
};

} // namespace settings
