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
    here_.guarded("in frmMain: Sub mnuRefresh_Click - Line # ", [&](host::Step& step) {
        step = 10;
        engine_.quick_refresh.Add_New(engine_.placing.LastRefresh);
    });
}

void MenuCommands::mnuFullRefresh_Click() {
    here_.guarded("in frmMain: Sub mnuFullRefresh_Click - Line # ", [&](host::Step& step) {
        step = 10;
        engine_.refresh.Refresh_Data();
    });
}

void MenuCommands::mnuHolidays_Click() {
    here_.guarded("in frmMain: Sub mnuHolidays_Click - Line # ", [&](host::Step& step) {
        step = 10;
        dialogs_.show_frmHolidays();
    });
}

void MenuCommands::mnuUsers_Click() {
    here_.guarded("in frmMain: Sub mnuUsers_Click - Line # ", [&](host::Step& step) {
        step = 10;
        open(here_.folders.in_program_folder(manual));
    });
}

void MenuCommands::mnuOnline_Click() {
    here_.guarded("in frmMain: Sub mnuOnline_Click - Line # ", [&](host::Step& step) {
        step = 10;
        open(host::online_page);
    });
}

void MenuCommands::open(const std::string& file_or_page) {
    if (!here_.shell.open(file_or_page))
        throw values::Failure(values::FailureNumber::file_not_found,
                              file_or_page + " isn't there, or no program is there to open it");
}

void MenuCommands::mnuAbout_Click() {
    here_.guarded("in frmMain: Sub mnuAbout_Click - Line # ", [&](host::Step& step) {
        step = 10;
        const host::ApplicationInfo& application = here_.application;
        const std::string version = std::to_string(application.major) + "." + std::to_string(application.minor) +
                                    "." + std::to_string(application.revision);
        here_.box.show({.text = application.title + "\r" + version, .title = application.title});
    });
}

void MenuCommands::mnuResetRowHeight_Click() {
    here_.guarded("in frmMain: Sub mnuResetRowHeight_Click - Line # ", [&](host::Step& step) {
        step = 10;
        const std::string height =
            settings::read(settings_.ini, keys::std_row_height, std::to_string(grid_.layout.StdRowHeight()));
        step = 20;
        grid_.msgSched.RowHeight(grid_.msgSched.Row(), values::to_int32(height));
    });
}

void MenuCommands::mnuResetColumnWidth_Click() {
    here_.guarded("in frmMain: Sub mnuResetColumnWidth_Click - Line # ", [&](host::Step& step) {
        const grid::Layout& layout = grid_.layout;
        for (int day = 1; day <= weekdays; ++day) {
            step = 10;
            if (settings::read(settings_.ini, keys::day_off(day)) != "0")
                continue;
            step = 20;
            const std::string width =
                settings::read(settings_.ini, keys::std_col_width, std::to_string(layout.StdColWidth()));
            step = 30;
            grid_.msgSched.ColWidth(layout.nth_day_col(day), values::to_int32(width));
        }
    });
}

} // namespace shell
