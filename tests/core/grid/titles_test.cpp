#include "core/grid/titles.h"

#include "support/failure_number.h"
#include "support/grid_world.h"
#include "support/locales.h"

#include <gtest/gtest.h>

namespace {

using table::Alignment;
using values::DateTime;

// Today is Wednesday, 10 January 2024.
class TitlesTest : public testing::Test {
protected:
    void open(bool one_row_per_user = true) {
        world.have_users({"Ann", "Bob"});
        world.open(DateTime::of(2024, 1, 10), 7, one_row_per_user);
    }
    std::string text(int row, int col) const { return model.TextMatrix(row, col); }

    support::GridWorld world;
    table::GridModel& model = world.calendar.msgSched;
    grid::Layout& layout = world.calendar.layout;
};

TEST_F(TitlesTest, NameTheDaysAndShowTodayBold) {
    open();
    EXPECT_EQ(text(0, 0), "");
    EXPECT_EQ(text(0, 1), "Users");
    EXPECT_EQ(text(0, 2), "Sunday Jan. 7");
    EXPECT_EQ(text(0, 5), "Wednesday Jan. 10");
    EXPECT_EQ(text(0, 8), "Saturday Jan. 13");
    for (int col = 2; col <= 8; ++col)
        EXPECT_EQ(model.cell(0, col).bold, col == 5) << col;
    EXPECT_EQ(layout.Cells(0, 5).Text(), "Wednesday Jan. 10");
    EXPECT_EQ(layout.Cells(0, 5).Col(), 5);
}

TEST_F(TitlesTest, ShowNoDayBoldWhenTodayIsOutOfView) {
    world.clock.time = DateTime::of(2024, 1, 20, 9);
    open();
    for (int col = 2; col <= 8; ++col)
        EXPECT_FALSE(model.cell(0, col).bold) << col;
}

TEST_F(TitlesTest, TakeTheBoldOfTodayOffWhenAnotherDayStandsThere) {
    open();
    ASSERT_TRUE(model.cell(0, 5).bold);
    layout.show(DateTime::of(2024, 1, 14));
    world.calendar.titles.Write_ColTitles();
    EXPECT_FALSE(model.cell(0, 5).bold);
    layout.show(DateTime::of(2024, 1, 7));
    world.clock.time = DateTime::of(2024, 1, 11, 0, 5); // past midnight
    world.calendar.titles.Write_ColTitles();
    EXPECT_FALSE(model.cell(0, 5).bold);
    EXPECT_TRUE(model.cell(0, 6).bold);
}

TEST_F(TitlesTest, PutTheFirstDayOverTheUsersTitleWhereRowsHaveNoUsers) {
    open(false);
    EXPECT_EQ(text(0, 1), "Sunday Jan. 7");
    EXPECT_EQ(layout.Cells(0, 1).Text(), "Sunday Jan. 7");
}

TEST_F(TitlesTest, AbbreviateAllMonthsButMayWithAFullStop) {
    const std::vector<std::string> names = {"Jan.", "Feb.", "Mar.", "Apr.", "May",  "Jun.",
                                            "Jul.", "Aug.", "Sep.", "Oct.", "Nov.", "Dec."};
    for (int month = 1; month <= 12; ++month)
        EXPECT_EQ(grid::Titles::GetMonth(month), names[static_cast<std::size_t>(month - 1)]);
    EXPECT_EQ(support::failure_number([] { grid::Titles::GetMonth(13); }), 9);
}

//   row 1   08:00 AM   Ann        bold, centred     Color4, to the left
//   row 2              Bob
//   row 3   09:00 AM   Ann
TEST_F(TitlesTest, GiveEachSlotItsTimeAndEachRowItsUser) {
    open();
    EXPECT_EQ(text(1, 0), "08:00 AM");
    EXPECT_EQ(text(2, 0), "");
    EXPECT_EQ(text(3, 0), "09:00 AM");
    EXPECT_EQ(text(1, 1), "Ann");
    EXPECT_EQ(text(2, 1), "Bob");
    EXPECT_EQ(text(18, 1), "Bob");
    EXPECT_TRUE(model.cell(1, 0).bold);
    EXPECT_FALSE(model.cell(2, 0).bold);
    EXPECT_EQ(model.cell(2, 0).alignment, Alignment::centre);
    EXPECT_EQ(model.cell(1, 1).alignment, Alignment::left_centre);
    EXPECT_EQ(model.cell(1, 1).fore_colour, 0x40C0);
    EXPECT_EQ(layout.Cells(2, 1).Text(), "Bob");
    EXPECT_EQ(layout.Cells(3, 0).Text(), "09:00 AM");
}

TEST_F(TitlesTest, KeepTheTimeOfEachRow) {
    world.set("Slots", "SlotsCount", "2");
    world.set("Slots", "Slot1", "10:30 AM");
    open();
    EXPECT_EQ(layout.RowTimes(),
              (std::vector<std::string>{"", "8:00:00 AM", "8:00:00 AM", "10:30:00 AM", "10:30:00 AM"}));
}

TEST_F(TitlesTest, FindTheFirstRowOfTheAfternoon) {
    open();
    EXPECT_EQ(layout.FirstPMRow(), 9); // the slot of 12:00 is number 4, with two rows each
    world.set("Settings", "PM", "03:30 PM");
    world.calendar.titles.Write_RowTitles();
    EXPECT_EQ(layout.FirstPMRow(), 17);
    world.set("Settings", "PM", "11:00 PM");
    world.calendar.titles.Write_RowTitles();
    EXPECT_EQ(layout.FirstPMRow(), 0);
}

// Column 1 is Sunday then; a full refresh clears the names.
TEST_F(TitlesTest, WriteTheUsersIntoTheFirstDayWhereRowsHaveNoUsers) {
    open(false);
    EXPECT_EQ(text(1, 1), "Ann");
    EXPECT_EQ(text(2, 1), "Bob");
    EXPECT_EQ(text(3, 1), "");
    EXPECT_EQ(text(4, 1), "");
    EXPECT_EQ(model.cell(4, 1).fore_colour, 0x40C0);
    EXPECT_TRUE(world.box.shown.empty());
}

TEST_F(TitlesTest, ShowTimesPastMidnight) {
    world.set("Slots", "SlotsCount", "18");
    open();
    EXPECT_EQ(text(2 * 16 + 1, 0), "12:00 AM");
    EXPECT_EQ(text(2 * 17 + 1, 0), "01:00 AM");
}

TEST(TitlesInA24HourLocale, ShowTimesFrom0To23) {
    support::GridWorld world(support::german());
    world.set("Slots", "Slot5", "13:00");
    world.have_users({"Ann"});
    world.open(DateTime::of(2024, 1, 10));
    EXPECT_TRUE(world.calendar.titles.isMilitary());
    EXPECT_EQ(world.calendar.msgSched.TextMatrix(1, 0), "8:00");
    EXPECT_EQ(world.calendar.msgSched.TextMatrix(6, 0), "13:00");
    EXPECT_EQ(world.calendar.msgSched.TextMatrix(0, 5), "Mittwoch Jan. 10");
}

TEST_F(TitlesTest, ShowTheFailureBoxForASlotTimeThatIsNone) {
    world.set("Slots", "Slot1", "soon");
    open();
    ASSERT_FALSE(world.box.shown.empty());
    EXPECT_NE(world.box.shown[0].text.find("Error 13: "), std::string::npos);
    EXPECT_NE(world.box.shown[0].text.find("in frmMain: Sub Write_RowTitles - Line # 20"), std::string::npos);
}

} // namespace
