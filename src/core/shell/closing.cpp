#include "core/shell/closing.h"

#include "core/settings/catalogue.h"
#include "core/shell/geometry.h"
#include "core/values/failure.h"

namespace shell {

namespace keys = settings::keys;
using values::ignoring_failure;

namespace {

constexpr int last_old_row = 150;

} // namespace

void Closing::Form_Unload() {
    bool ends_later = false;
    here_.guarded("in frmMain: Sub Form_Unload - Line # ", [&](host::Step& step) {
        settings_.user_store.together([&] {
            step = 10;
            remove_old_row_heights();
            step = 20;
            store_row_heights();
            step = 30;
            store_geometry(window_, settings_.user_store);
            step = 40;
            settings::write(settings_.user_store, keys::weekly_view, layout_.NumDays() == 7 ? "1" : "0");
            step = 20; // where a store that can't be written fails first
        });
        step = 50;
        const std::string database = departure_.RestartAct ? departure_.close_act() : std::string();
        step = 60;
        departure_.release_act();
        step = 70;
        if (!departure_.RestartAct)
            return;
        step = 80;
        departure_.restart_act(database);
        window_.hide();
        ends_later = true;
    });
    if (!ends_later)
        departure_.end();
}

void Closing::remove_old_row_heights() {
    for (int row = 0; row <= last_old_row; ++row)
        ignoring_failure([&] { settings::remove(settings_.user_store, keys::old_row_height(row)); });
}

void Closing::store_row_heights() {
    const std::string_view mode = layout_.view_name();
    const table::GridModel& grid = layout_.msgSched();
    for (int row = 0; row < grid.Rows(); ++row)
        settings::write(settings_.user_store, keys::row_height(mode, row), std::to_string(grid.RowHeight(row)));
}

void Closing::ActEvent1_OnDatabaseClose() {
    here_.guarded("in frmMain: Sub ActEvent1_OnDatabaseClose - Line # ", [&](host::Step& step) {
        step = 10;
        departure_.stop_listening();
        step = 20;
        window_.unload();
    });
}

void Closing::ActEvent1_OnActUserWantsToClose() {
    here_.guarded("in frmMain: Sub ActEvent1_OnActUserWantsToClose - Line # ", [&](host::Step& step) {
        step = 10;
        departure_.stop_listening();
        step = 20;
        if (!departure_.RestartAct)
            window_.unload();
    });
}

void Closing::mnuExit_Click() {
    here_.guarded("in frmMain: Sub mnuExit_Click - Line # ", [&](host::Step& step) {
        step = 10;
        window_.unload();
    });
}

} // namespace shell
