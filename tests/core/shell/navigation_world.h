#pragma once

#include "shell_world.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace support {

inline values::DateTime day(int year, int month, int day) { return values::DateTime::of(year, month, day); }

// The calendar with what the controls above its grid do.
class NavigationTest : public ::testing::Test, protected ShellWorld {
protected:
    shell::Navigation& navigation = calendar.navigation;

    void start_daily() {
        store("WeeklyView", "0");
        start();
        window.view_boxes[0] = true;
        window.view_boxes[1] = false;
    }
    void jump_to(const std::string& entry) {
        window.jump = entry;
        navigation.cboGoTo_Click();
    }
    void expect_view(values::DateTime first, values::DateTime last) {
        EXPECT_EQ(layout().StartDate(), first);
        EXPECT_EQ(layout().EndDate(), last);
    }
    std::string title(int column) { return calendar.grid.msgSched.TextMatrix(0, column); }
    // Selects the cell in row 1 of a column, as a press on it does.
    void select(int column) {
        calendar.grid.selection.SelectedCell = calendar.grid.layout.Cells.reference(1, column);
    }
    // A call of Ann's on a day at 9:00.
    void add(values::DateTime on) {
        data.contacts["CONTACT-----"][26] = std::string("Chris Smith");
        auto& record = data.add_activity("ACTIVITY" + std::to_string(1000 + data.activities.size()),
                                         on.plus_minutes(9 * 60), id("Ann"));
        record.fields[act::activity_field::contact] = std::string("CONTACT-----");
    }
    std::string at_nine(int column) { return calendar.grid.msgSched.TextMatrix(3, column); }
    bool pointer_is_back() {
        const auto last = std::find_if(window.calls.rbegin(), window.calls.rend(), [](const std::string& call) {
            return call == "show_hourglass" || call == "show_default_pointer";
        });
        return last != window.calls.rend() && *last == "show_default_pointer";
    }
};

} // namespace support
