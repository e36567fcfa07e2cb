#include "shell/menu_commands.h"

namespace shell {

void MenuCommands::mnuRefresh_Click() {
    guarded_("in frmMain: Sub mnuRefresh_Click - Line # ", [&](host::Step& step) {
        step = 10;
        engine_.quick_refresh.Add_New(engine_.refresh.LastRefresh);
    });
}

void MenuCommands::mnuFullRefresh_Click() {
    guarded_("in frmMain: Sub mnuFullRefresh_Click - Line # ", [&](host::Step& step) {
        step = 10;
        engine_.refresh.Refresh_Data();
    });
}

void MenuCommands::mnuHolidays_Click() {
    guarded_("in frmMain: Sub mnuHolidays_Click - Line # ", [&](host::Step& step) {
        step = 10;
        dialogs_.show_frmHolidays();
    });
}

void MenuCommands::mnuAbout_Click() {
    guarded_("in frmMain: Sub mnuAbout_Click - Line # ", [&](host::Step& step) {
        step = 10;
        const std::string version = std::to_string(application_.major) + "." + std::to_string(application_.minor) +
                                    "." + std::to_string(application_.revision);
        box_.show({.text = application_.title + "\r" + version, .title = application_.title});
    });
}

} // namespace shell
