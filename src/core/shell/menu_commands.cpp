#include "core/shell/menu_commands.h"

#include "core/host/deployment.h"
#include "core/settings/catalogue.h"
#include "core/values/failure.h"
#include "core/values/numbers.h"

namespace shell {

namespace keys = settings::keys;

namespace {

constexpr const char* manual = "orvanta_manual.pdf";
constexpr int weekdays = 7;

} // namespace

void MenuCommands::mnuRefresh_Click() {
    need_.guarded("in frmMain: Sub mnuRefresh_Click - Line # ", [&](host::Step& step) {
        step = 10;
        need_.engine.quick_refresh.Add_New(need_.engine.refresh.LastRefresh);
    });
}

void MenuCommands::mnuFullRefresh_Click() {
    need_.guarded("in frmMain: Sub mnuFullRefresh_Click - Line # ", [&](host::Step& step) {
        step = 10;
        need_.engine.refresh.Refresh_Data();
    });
}

void MenuCommands::mnuHolidays_Click() {
    need_.guarded("in frmMain: Sub mnuHolidays_Click - Line # ", [&](host::Step& step) {
        step = 10;
        need_.dialogs.show_frmHolidays();
    });
}

void MenuCommands::mnuUsers_Click() {
    need_.guarded("in frmMain: Sub mnuUsers_Click - Line # ", [&](host::Step& step) {
        step = 10;
        open(need_.folders.in_program_folder(manual));
    });
}

void MenuCommands::mnuOnline_Click() {
    need_.guarded("in frmMain: Sub mnuOnline_Click - Line # ", [&](host::Step& step) {
        step = 10;
        open(host::online_page);
    });
}

void MenuCommands::open(const std::string& file_or_page) {
    if (!need_.shell.open(file_or_page))
        throw values::Failure(values::FailureNumber::file_not_found,
                              file_or_page + " isn't there, or no program is there to open it");
}

void MenuCommands::mnuAbout_Click() {
    need_.guarded("in frmMain: Sub mnuAbout_Click - Line # ", [&](host::Step& step) {
        step = 10;
        const host::ApplicationInfo& application = need_.application;
        const std::string version = std::to_string(application.major) + "." + std::to_string(application.minor) +
                                    "." + std::to_string(application.revision);
        need_.box.show({.text = application.title + "\r" + version, .title = application.title});
    });
}

void MenuCommands::mnuResetRowHeight_Click() {
    need_.guarded("in frmMain: Sub mnuResetRowHeight_Click - Line # ", [&](host::Step& step) {
        step = 10;
        const std::string height =
            settings::read(need_.settings, keys::std_row_height, std::to_string(need_.grid.layout.StdRowHeight));
        step = 20;
        need_.grid.msgSched.RowHeight(need_.grid.msgSched.Row(), values::to_int32(height));
    });
}

void MenuCommands::mnuResetColumnWidth_Click() {
    need_.guarded("in frmMain: Sub mnuResetColumnWidth_Click - Line # ", [&](host::Step& step) {
        const grid::Layout& layout = need_.grid.layout;
        for (int day = 1; day <= weekdays; ++day) {
            step = 10;
            if (settings::read(need_.settings, keys::day_off(day)) != "0")
                continue;
            step = 20;
            const std::string width =
                settings::read(need_.settings, keys::std_col_width, std::to_string(layout.StdColWidth));
            step = 30;
            need_.grid.msgSched.ColWidth(layout.FixedCols + day - 1, values::to_int32(width));
        }
    });
}

} // namespace shell
