#pragma once

#include "core/host/application_info.h"
#include "core/host/clock.h"
#include "core/host/files.h"
#include "core/host/folders.h"
#include "core/host/guard.h"
#include "core/host/message_box.h"
#include "core/host/shell.h"
#include "core/host/user_store.h"
#include "core/host/window.h"
#include "core/values/locale.h"

namespace host {

// The machine and its desktop.
struct Machine {
    const ApplicationInfo& application;
    const values::Locale& locale;
    const Clock& clock;
    MessageBox& box;
    Shell& shell;
    Files& files;
    const Folders& folders;
    UserStore& user_store;
};

// What the calendar's parts need of the platform: the machine, the program's window on it, and the boundary of
// their procedures. It and all that it names outlive the parts.
struct Platform : Machine {
    Window& window;
    Guard guarded{box, application, window};
};

} // namespace host
