#pragma once

#include "core/interaction/editing.h"
#include "interaction_world.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace support {

// The commands on the activities of an open calendar, with a user of ACT! who does something in its dialogs.
class ActivityCommands : public testing::Test, protected InteractionWorld {
protected:
    void have(const store::Activity& activity) {
        id = add(activity);
        open();
    }
    void double_click(int row, int col) {
        calendar.msgSched.Row(row);
        calendar.msgSched.Col(col);
        forget();
        hands.editing.msgSched_DblClick();
    }
    void on_nine(int day, void (interaction::Editing::*command)()) { on_nine(day, hands.editing, command); }
    void on_nine(int day, void (interaction::Scheduling::*command)()) { on_nine(day, hands.scheduling, command); }
    void on_nine(int day, void (interaction::Clearing::*command)()) { on_nine(day, hands.clearing, command); }
    template <typename Commands>
    void on_nine(int day, Commands& commands, void (Commands::*command)()) {
        select(row_of(nine), col_of(day));
        forget();
        (commands.*command)();
    }
    void user_writes(const std::string& regarding) {
        running_desk.on_command = [this, regarding](act::CommandNumber) {
            change(running_desk.selected, [&](store::Activity& one) { one.regarding = regarding; });
        };
    }
    void user_moves_to(int hour) {
        running_desk.on_command = [this, hour](act::CommandNumber) {
            change(running_desk.selected, [&](store::Activity& one) {
                one.start = values::DateTime::of(2024, 1, 10, hour);
                one.end = values::DateTime::of(2024, 1, 10, hour + 1);
            });
        };
    }
    void user_adds(const store::Activity& activity) {
        running_desk.on_command = [this, activity](act::CommandNumber) {
            tick();
            id = add(activity);
        };
    }
    void user_deletes() {
        running_desk.on_command = [this](act::CommandNumber) { store().remove_activity(running_desk.selected); };
    }
    std::string left(const std::string& name) { return user_store.read("Activity", name, "absent"); }
    bool fully_refreshed() const {
        return std::find(window.calls.begin(), window.calls.end(), "lock_updates") != window.calls.end();
    }
    // The filter under which the activity was looked for.
    std::string dates_asked_for() const {
        for (const std::string& call : record.calls)
            if (call.starts_with("SetFilter "))
                return call.substr(call.find(' ', 10) + 1, call.rfind(' ') - call.find(' ', 10) - 1);
        return "none";
    }
    std::string place() const { return only_box().substr(only_box().find('\r') + 1); }

    const std::string week = "6\\1/7/2024\\1/14/2024", every_date = "1";
    const int nine = 1, ten = 2, eleven = 3; // slots
    std::string id;
};

} // namespace support
