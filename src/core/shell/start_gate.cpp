#include "core/shell/start_gate.h"

namespace shell {

using host::Icon;

bool StartGate::is_first_instance() {
    if (!program_.already_running())
        return true;
    here_.box.show({.text = "An instance of this program is already running!", .title = here_.application.title});
    return false;
}

bool StartGate::is_database_open() {
    if (ActEvent1_.Open_Databases(0) >= 1)
        return true;
    if (ActEvent1_.Communication_Failed())
        here_.box.show({.text = "Unable to communicate with ACT!\r"
                                "Please run actreg.exe located in the ACT folder and try again",
                        .title = here_.application.title,
                        .icon = Icon::critical});
    else
        here_.box.show({.text = "Please open an ACT database prior to running " + here_.application.title + "!",
                        .title = here_.application.title,
                        .icon = Icon::exclamation});
    return false;
}

} // namespace shell
