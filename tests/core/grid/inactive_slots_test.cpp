#include "core/grid/background.h"
#include "support/grid_world.h"

#include <gtest/gtest.h>

// The greyed time slots of the main grid, and those of the dialog that edits them.
namespace {

using values::DateTime;

constexpr table::Colour even = 0xFFFFFF, odd = 0xC0E0FF, inactive = 0xFFC0C0;

class InactiveSlots : public testing::Test {
protected:
    InactiveSlots() { world.set("Slots", "SlotsCount", "4"); }
    void open(bool one_row_per_user = true, int days = 7) {
        world.have_users({"Ann", "Bob"});
        world.open(DateTime::of(2024, 1, 10), days, one_row_per_user);
    }
    // The rows of a column that have the inactive colour.
    std::vector<int> inactive_rows(int col) const {
        std::vector<int> rows;
        for (int row = 1; row < model.Rows(); ++row)
            if (model.cell(row, col).back_colour == inactive)
                rows.push_back(row);
        return rows;
    }
    void off(const std::string& weekday, const std::string& ranges) { world.set("Off", weekday, ranges); }

    support::GridWorld world;
    table::GridModel& model = world.calendar.msgSched;
    grid::Layout& layout = world.calendar.layout;
    grid::Background& background = world.calendar.background;
};

using Rows = std::vector<int>;

//   slots   8:00   9:00   10:00   11:00      Monday is column 3
//   rows    1 2    3 4    5 6     7 8
TEST_F(InactiveSlots, AreGreyFromARangesStartToBeforeItsEnd) {
    off("Monday", "9:00:00 AM|10:59:00 AM");
    open();
    EXPECT_EQ(inactive_rows(3), (Rows{3, 4, 5, 6}));
    EXPECT_EQ(layout.Cells(3, 3).BackColor(), 3);
    EXPECT_EQ(layout.Cells(1, 3).BackColor(), 1);
    EXPECT_EQ(inactive_rows(2), Rows{});
    EXPECT_EQ(inactive_rows(4), Rows{});
    EXPECT_TRUE(world.box.shown.empty());
}

TEST_F(InactiveSlots, DoNotHoldTheSlotAtWhichTheRangeEnds) {
    off("Monday", "8:00:00 AM|9:00:00 AM");
    open();
    EXPECT_EQ(inactive_rows(3), (Rows{1, 2}));
}

TEST_F(InactiveSlots, CanHaveSeveralRangesOfADay) {
    off("Monday", "8:00:00 AM|8:59:00 AM,11:00:00 AM|11:59:00 AM");
    off("Saturday", "10:00:00 AM|10:30:00 AM");
    open();
    EXPECT_EQ(inactive_rows(3), (Rows{1, 2, 7, 8}));
    EXPECT_EQ(inactive_rows(8), (Rows{5, 6}));
}

TEST_F(InactiveSlots, GiveTheBandBackWhenTheRangeHasChanged) {
    off("Monday", "8:00:00 AM|9:59:00 AM");
    open();
    off("Monday", "8:00:00 AM|8:59:00 AM");
    background.inactive_slots.Color_offSlots(model, world.window, grid::InactiveSlots::GridKind::main);
    EXPECT_EQ(inactive_rows(3), (Rows{1, 2}));
    EXPECT_EQ(model.cell(3, 3).back_colour, odd);
}

TEST_F(InactiveSlots, ShareTheirColourWithAHolidayAndLeaveItAlone) {
    background.holidays.Holidays = "|1/8/2024|";
    off("Monday", "8:00:00 AM|8:59:00 AM");
    open();
    EXPECT_EQ(inactive_rows(3), (Rows{1, 2, 3, 4, 5, 6, 7, 8}));
}

// With one fixed column Monday is column 2, but its inactive hours show in column 3.
TEST_F(InactiveSlots, FallOneColumnToTheRightWhereThereIsOneFixedColumn) {
    off("Monday", "8:00:00 AM|8:59:00 AM");
    open(false);
    EXPECT_EQ(inactive_rows(2), Rows{});
    EXPECT_EQ(inactive_rows(3), (Rows{1, 2, 3, 4}));
}

TEST_F(InactiveSlots, OfTheLastDayRunOffAGridWithOneFixedColumn) {
    off("Saturday", "8:00:00 AM|8:59:00 AM");
    open(false);
    ASSERT_EQ(world.box.shown.size(), 1U);
    EXPECT_NE(world.box.shown[0].text.find("Error 380: "), std::string::npos);
    EXPECT_NE(world.box.shown[0].text.find("in modColorOffSlot: Sub Color_offSlots - Line # 50"),
              std::string::npos);
}

// Monday's former grey lies in column 3, which is Tuesday, a holiday here: its date counts.
TEST_F(InactiveSlots, AskForTheHolidayOfTheColumnThatIsPainted) {
    background.holidays.Holidays = "|1/9/2024|";
    off("Monday", "8:00:00 AM|8:59:00 AM");
    open(false);
    EXPECT_EQ(inactive_rows(3).size(), static_cast<std::size_t>(model.Rows() - 1));
}

TEST_F(InactiveSlots, GoByTheWeekdayOfTheDayShown) {
    off("Wednesday", "8:00:00 AM|8:59:00 AM");
    open(true, 1);
    EXPECT_EQ(inactive_rows(2), (Rows{1, 2}));
}

TEST_F(InactiveSlots, ShowTheFailureBoxForARangeThatIsNoTime) {
    for (const char* ranges : {"8:00:00 AM|late", "8:00:00 AM"}) {
        world.box.shown.clear();
        off("Monday", ranges);
        if (model.Rows() == 1)
            open();
        else
            background.inactive_slots.Color_offSlots(model, world.window, grid::InactiveSlots::GridKind::main);
        ASSERT_EQ(world.box.shown.size(), 1U) << ranges;
    }
    EXPECT_NE(world.box.shown[0].text.find("Error 9: "), std::string::npos);
    EXPECT_TRUE(world.window.hourglass);
}

TEST_F(InactiveSlots, ShowOneBoxForEntriesThatAreNoRangesAndKeepTheRangesOfTheDaysBefore) {
    const std::string nul("8:00:00 AM\0|9:00:00 AM", 22);
    std::string many;
    for (int range = 0; range < 10000; ++range)
        many += "8:00:00 AM|9:00:00 AM,";
    off("Sunday", "8:00:00 AM|9:00:00 AM");
    open();
    for (const std::string& ranges : {std::string(","), std::string("|"), std::string("99:99|10:00"),
                                      std::string("8:00:00 AM|9:00:00 AM,"), std::string("&HFFFFFFFFF|-1e999"),
                                      std::string("8:00:00 AM||9:00:00 AM"), std::string(5000, '|'), many, nul}) {
        world.files.content["/program/Orvanta.ini"] =
            "[Slots]\nSlotsCount=4\n[Off]\nSunday=8:00:00 AM|9:00:00 AM\nMonday=" + ranges + "\n";
        world.box.shown.clear();
        background.Refresh_Colors();
        ASSERT_EQ(world.box.shown.size(), 1U) << ranges.substr(0, 50);
        EXPECT_NE(world.box.shown[0].text.find("in modColorOffSlot: Sub Color_offSlots - Line # 30"),
                  std::string::npos);
        EXPECT_EQ(inactive_rows(2), (Rows{1, 2}));
    }
}

TEST_F(InactiveSlots, AreNoneInARangeThatEndsBeforeItStartsOrLiesOnADate) {
    for (const char* ranges : {"11:00:00 AM|8:00:00 AM", "1/8/2024 8:00:00 AM|1/8/2024 9:00:00 AM"}) {
        off("Monday", ranges);
        if (model.Rows() == 1)
            open();
        else
            background.Refresh_Colors();
        EXPECT_EQ(inactive_rows(3), Rows{}) << ranges;
        EXPECT_TRUE(world.box.shown.empty());
    }
}

TEST_F(InactiveSlots, AreAskedForARowAndARangeAtATime) {
    off("Saturday", "8:00:00 AM|9:00:00 AM");
    open();
    EXPECT_TRUE(background.inactive_slots.In_Slot(1, 7, grid::InactiveSlots::GridKind::main));
    EXPECT_FALSE(background.inactive_slots.In_Slot(3, 7, grid::InactiveSlots::GridKind::main));
    EXPECT_FALSE(background.inactive_slots.In_Slot(99, 7, grid::InactiveSlots::GridKind::main));
    EXPECT_EQ(world.box.shown.size(), 1U);
}

// The dialog's grid has a column for each weekday from the first one on, and a row for each slot.
class InactiveSlotsDialog : public InactiveSlots {
protected:
    InactiveSlotsDialog() {
        off_grid.Rows(5);
        off_grid.Cols(8);
        off_grid.BackColor(even);
    }
    Rows inactive_rows_of_dialog(int col) const {
        Rows rows;
        for (int row = 1; row < off_grid.Rows(); ++row)
            if (off_grid.cell(row, col).back_colour == inactive)
                rows.push_back(row);
        return rows;
    }
    table::GridModel off_grid;
};

TEST_F(InactiveSlotsDialog, PaintsTheColumnOfTheWeekdayCountedFromTheFirstDay) {
    world.set("Settings", "1stday", "2");
    off("Monday", "9:00:00 AM|10:00:00 AM");
    // A slot of the calendar has one row here, as in the dialog.
    world.have_users({"Ann"});
    world.open(DateTime::of(2024, 1, 10));
    support::FakeWindow dialog;
    background.inactive_slots.Color_offSlots(off_grid, dialog, grid::InactiveSlots::GridKind::dialog);
    EXPECT_EQ(inactive_rows_of_dialog(1), (Rows{2}));
    EXPECT_EQ(inactive_rows_of_dialog(2), Rows{});
    EXPECT_EQ(dialog.calls, (std::vector<std::string>{"show_hourglass", "lock_updates", "unlock_updates",
                                                      "show_default_pointer"}));
}

// Its rows are timed as rows of the calendar, two to a slot, and it paints as many days as the calendar shows.
TEST_F(InactiveSlotsDialog, TimesItsRowsByTheCalendarsRowsPerSlot) {
    off("Sunday", "8:00:00 AM|9:00:00 AM");
    off("Monday", "8:00:00 AM|9:00:00 AM");
    open(true, 1);
    support::FakeWindow dialog;
    background.inactive_slots.Color_offSlots(off_grid, dialog, grid::InactiveSlots::GridKind::dialog);
    EXPECT_EQ(inactive_rows_of_dialog(1), (Rows{1, 2}));
    EXPECT_EQ(inactive_rows_of_dialog(2), Rows{});
}

TEST_F(InactiveSlotsDialog, GivesNoCellItsBandBack) {
    off("Sunday", "8:00:00 AM|9:00:00 AM");
    open();
    off_grid.Row(4);
    off_grid.Col(1);
    off_grid.CellBackColor(inactive);
    background.inactive_slots.Color_offSlots(off_grid, world.window, grid::InactiveSlots::GridKind::dialog);
    EXPECT_EQ(inactive_rows_of_dialog(1), (Rows{1, 2, 4}));
}

} // namespace
