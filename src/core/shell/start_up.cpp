#include "core/shell/start_up.h"

#include "core/settings/catalogue.h"
#include "core/shell/geometry.h"
#include "core/shell/jump_targets.h"
#include "core/values/failure.h"
#include "core/values/numbers.h"

namespace shell {

namespace keys = settings::keys;
using host::Icon;

namespace {

constexpr int first_contact_field = 25; // the setting counts on from it

bool is_true(const std::string& text) { return values::to_double(text) != 0; }

} // namespace

void StartUp::Form_Load() {
    need_.guarded("in frmMain: Sub Form_Load - Line # ", [&](host::Step& step) {
        grid::CalendarGrid& grid = need_.grid;
        step = 10;
        need_.bLoading = true;
        step = 20;
        if (!is_first_instance() || !is_database_open()) {
            step = 30;
            need_.window.unload();
            return;
        }
        step = 40;
        ActHwnd = need_.window.foreground_window();
        step = 50;
        locate_settings_file();
        step = 60;
        const double contact_field = values::to_double(settings::read(need_.settings, keys::display_contact));
        need_.engine.cell_text.DisplayContactField = values::to_int16(contact_field + first_contact_field);
        step = 70;
        need_.session.Create_Database();
        step = 80;
        need_.window.fill_cboGoTo(jump_entries);
        need_.window.set_cboGoTo_lines(jump_list_lines);
        step = 90;
        read_view();
        step = 100;
        grid.background.HolidaysFile = need_.folders.in_program_folder("holidays.dat");
        grid.background.Holidays = need_.holidays.Get_Holidays(grid.background.HolidaysFile);
        step = 110;
        read_sizes();
        step = 120;
        read_days_off();
        step = 130;
        read_row_scheme();
        step = 140;
        need_.users.Initialize_Users(act::ShownUsers::of_the_filter);
        step = 150;
        grid.layout.Initialize_Dates(need_.clock.today());
        step = 160;
        grid.Setup_Calendar(grid.layout.StartDate, grid.layout.EndDate);
        step = 170;
        need_.users.map_users();
        step = 180;
        need_.engine.refresh.Refresh_Data();
        step = 190;
        need_.engine.refresh_timer.start();
        step = 200;
        need_.engine.refresh.LastRefresh = need_.clock.now();
        grid.msgSched.Redraw(true);
        step = 210;
        grid.selection.SelectedCell = grid.layout.free_standing_cell();
        grid.selection.DragSourceCell = grid.layout.free_standing_cell();
        step = 220;
        restore_geometry(need_.window, need_.user_store);
        step = 230;
        need_.window.bring_to_front();
    });
}

void StartUp::Form_Activate() {
    need_.guarded("in frmMain: Sub Form_Activate - Line # ", [&](host::Step& step) {
        step = 10;
        if (!need_.bLoading)
            return;
        step = 20;
        const int state = values::to_int16(settings::read(need_.user_store, keys::window_state));
        step = 30;
        if (state < static_cast<int>(WindowState::normal) || state > static_cast<int>(WindowState::maximised))
            throw values::Failure(values::FailureNumber::invalid_property_value);
        need_.window.set_window_state(static_cast<WindowState>(state));
        step = 40;
        need_.bLoading = false;
    });
}

bool StartUp::is_first_instance() {
    if (!need_.program.already_running())
        return true;
    need_.box.show({.text = "An instance of this program is already running!", .title = need_.application.title});
    return false;
}

bool StartUp::is_database_open() {
    if (need_.ActEvent1.Open_Databases(0) >= 1)
        return true;
    if (need_.ActEvent1.Communication_Failed())
        need_.box.show({.text = "Unable to communicate with ACT!\r"
                                "Please run actreg.exe located in the ACT folder and try again",
                        .title = need_.application.title,
                        .icon = Icon::critical});
    else
        need_.box.show({.text = "Please open an ACT database prior to running " + need_.application.title + "!",
                        .title = need_.application.title,
                        .icon = Icon::exclamation});
    return false;
}

// A stored path at which no file stands stays in force: the file comes into being there at the first write, not in
// the program's folder as the box says.
void StartUp::locate_settings_file() {
    std::string& file = need_.settings.SettingsFile;
    file = settings::read(need_.user_store, keys::settings_file);
    if (file.empty())
        file = need_.folders.in_program_folder(need_.application.title + ".ini");
    else if (!need_.settings.FileExists(file))
        need_.box.show({.text = "The program's settings file has been deleted or moved or is unaccessible.\r"
                                "A new settings file will be created in the program's folder",
                        .title = need_.application.title,
                        .icon = Icon::critical});
}

void StartUp::read_view() {
    const double weekly = values::to_double(settings::read(need_.user_store, keys::weekly_view));
    int& NumDays = need_.grid.layout.NumDays;
    NumDays = values::to_int16(weekly * 6 + 1);
    if (NumDays == 1) {
        need_.window.set_chkView(0, true);
        need_.window.set_chkView(1, false);
    }
}

void StartUp::read_sizes() {
    const settings::IniLib& ini = need_.settings;
    need_.grid.layout.StdColWidth = values::to_int32(settings::read(ini, keys::std_col_width));
    need_.grid.layout.StdRowHeight = values::to_int32(settings::read(ini, keys::std_row_height));
    CollColWidth = values::to_int32(settings::read(ini, keys::coll_col_width));
    need_.grid.rendering.SpanText = settings::read(ini, keys::span_text);
}

void StartUp::read_days_off() {
    std::string& DaysOff = need_.grid.layout.DaysOff;
    DaysOff.clear();
    for (int day = 1; day <= 7; ++day)
        if (values::leading_number(settings::read(need_.settings, keys::day_off(day))) == 1)
            DaysOff += std::to_string(day);
}

void StartUp::read_row_scheme() {
    grid::Layout& layout = need_.grid.layout;
    layout.OneRowPerUser = is_true(settings::read(need_.settings, keys::one_row_per_user));
    layout.FixedCols = layout.OneRowPerUser ? 2 : 1;
    need_.engine.refresh.CheckRecurring = is_true(settings::read(need_.settings, keys::check_recurring));
}

} // namespace shell
