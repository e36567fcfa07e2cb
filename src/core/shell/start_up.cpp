#include "core/shell/start_up.h"

#include "core/act/left_instances.h"
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

// Turns the flag off at its end, on every way out.
class EndOfLoading {
public:
    explicit EndOfLoading(bool& bLoading) : bLoading_(bLoading) {}
    ~EndOfLoading() { bLoading_ = false; }
    EndOfLoading(const EndOfLoading&) = delete;
    EndOfLoading& operator=(const EndOfLoading&) = delete;

private:
    bool& bLoading_;
};

} // namespace

void StartUp::Form_Load() {
    here_.guarded("in frmMain: Sub Form_Load - Line # ", [&](host::Step& step) {
        grid::CalendarGrid& grid = engine_.grid;
        step = 10;
        grid.bLoading = true;
        step = 20;
        if (!gate_.lets_in()) {
            step = 30;
            window_.unload();
            return;
        }
        step = 40;
        ActHwnd = window_.foreground_window();
        step = 50;
        locate_settings_file();
        step = 60;
        const double contact_field = values::to_double(settings::read(settings_.ini, keys::display_contact));
        engine_.cell_text.DisplayContactField = values::to_int16(contact_field + first_contact_field);
        step = 70;
        engine_.act.session.Create_Database();
        step = 80;
        window_.fill_cboGoTo(jump_entries);
        window_.set_cboGoTo_lines(jump_list_lines);
        step = 90;
        read_view();
        step = 100;
        grid::HolidayFile& holidays = grid.background.holidays;
        holidays.HolidaysFile = here_.folders.in_program_folder("holidays.dat");
        holidays.Holidays = holidays.Get_Holidays();
        step = 110;
        read_sizes();
        step = 120;
        read_days_off();
        step = 130;
        read_row_scheme();
        step = 140;
        engine_.act.users.Initialize_Users(act::ShownUsers::of_the_filter);
        step = 150;
        grid.layout.Initialize_Dates(here_.clock.today());
        step = 160;
        grid.Setup_Calendar(grid.layout.StartDate(), grid.layout.EndDate());
        step = 170;
        engine_.act.users.map_users();
        step = 180;
        act::take_back_instances(here_, engine_.act.session);
        engine_.refresh.Refresh_Data();
        step = 190;
        engine_.refresh_timer.start();
        step = 200;
        engine_.placing.LastRefresh = here_.clock.now();
        grid.msgSched.Redraw(true);
        step = 210;
        grid.selection.SelectedCell = grid.layout.free_standing_cell();
        grid.selection.DragSourceCell = grid.layout.free_standing_cell();
        step = 220;
        restore_geometry(window_, settings_.user_store);
        step = 230;
        window_.bring_to_front();
    });
}

void StartUp::Form_Activate() {
    here_.guarded("in frmMain: Sub Form_Activate - Line # ", [&](host::Step& step) {
        step = 10;
        if (!engine_.grid.bLoading)
            return;
        step = 20;
        const EndOfLoading end(engine_.grid.bLoading);
        take_stored_state();
    });
}

void StartUp::take_stored_state() {
    const int state = values::to_int16(settings::read(settings_.user_store, keys::window_state));
    if (state < static_cast<int>(WindowState::normal) || state > static_cast<int>(WindowState::maximised))
        throw values::Failure(values::FailureNumber::invalid_property_value);
    window_.set_window_state(static_cast<WindowState>(state));
}

// A stored path at which no file stands stays in force: the file comes into being there at the first write, not in
// the program's folder as the box says.
void StartUp::locate_settings_file() {
    std::string& file = settings_.ini.SettingsFile;
    file = settings::read(settings_.user_store, keys::settings_file);
    if (file.empty())
        file = here_.folders.in_program_folder(here_.application.title + ".ini");
    else if (!settings_.ini.FileExists(file))
        here_.box.show({.text = "The program's settings file has been deleted or moved or is unaccessible.\r"
                                "A new settings file will be created in the program's folder",
                        .title = here_.application.title,
                        .icon = Icon::critical});
}

void StartUp::read_view() {
    const double weekly = values::to_double(settings::read(settings_.user_store, keys::weekly_view));
    grid::Layout& layout = engine_.grid.layout;
    layout.NumDays(values::to_int16(weekly * 6 + 1));
    if (layout.NumDays() == 1) {
        window_.set_chkView(0, true);
        window_.set_chkView(1, false);
    }
}

void StartUp::read_sizes() {
    const settings::IniLib& ini = settings_.ini;
    grid::Layout& layout = engine_.grid.layout;
    layout.StdColWidth(values::to_int32(settings::read(ini, keys::std_col_width)));
    layout.StdRowHeight(values::to_int32(settings::read(ini, keys::std_row_height)));
    CollColWidth = values::to_int32(settings::read(ini, keys::coll_col_width));
    engine_.grid.rendering.SpanText = settings::read(ini, keys::span_text);
}

void StartUp::read_days_off() {
    std::string days;
    for (int day = 1; day <= 7; ++day)
        if (values::leading_number(settings::read(settings_.ini, keys::day_off(day))) == 1)
            days += std::to_string(day);
    engine_.grid.layout.DaysOff(days);
}

void StartUp::read_row_scheme() {
    engine_.grid.layout.OneRowPerUser(is_true(settings::read(settings_.ini, keys::one_row_per_user)));
    engine_.refresh.CheckRecurring = is_true(settings::read(settings_.ini, keys::check_recurring));
}

} // namespace shell
