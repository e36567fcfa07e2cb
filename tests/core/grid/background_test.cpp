#include "core/grid/background.h"

#include "support/grid_world.h"
#include "support/locales.h"

#include <gtest/gtest.h>

namespace {

using values::DateTime;

constexpr table::Colour even = 0xFFFFFF, odd = 0xC0E0FF, holiday = 0xFFC0C0;

class BackgroundTest : public testing::Test {
protected:
    BackgroundTest() { background.holidays.HolidaysFile = "/program/holidays.dat"; }
    void open(const std::vector<std::string>& users = {"Ann", "Bob"}, bool one_row_per_user = true) {
        world.have_users(users);
        world.open(DateTime::of(2024, 1, 10), 7, one_row_per_user);
    }
    table::Colour colour(int row, int col) const { return model.cell(row, col).back_colour; }

    support::GridWorld world;
    table::GridModel& model = world.calendar.msgSched;
    grid::Layout& layout = world.calendar.layout;
    grid::Background& background = world.calendar.background;
};

//   rows 1, 2   slot 0   Color0   selector 1
//   rows 3, 4   slot 1   Color1   selector 2
TEST_F(BackgroundTest, TellsTheSlotsApartByBandsTitleColumnsIncluded) {
    open();
    for (int col = 0; col < model.Cols(); ++col) {
        EXPECT_EQ(colour(1, col), even) << col;
        EXPECT_EQ(colour(2, col), even) << col;
        EXPECT_EQ(colour(3, col), odd) << col;
        EXPECT_EQ(colour(5, col), even) << col;
        EXPECT_EQ(layout.Cells(2, col).BackColor(), 1) << col;
        EXPECT_EQ(layout.Cells(4, col).BackColor(), 2) << col;
    }
    EXPECT_EQ(colour(0, 3), table::default_colour);
}

TEST_F(BackgroundTest, AlternatesByRowWithOneRowPerSlot) {
    open({"Ann"});
    for (int row = 1; row < model.Rows(); ++row)
        EXPECT_EQ(colour(row, 4), row % 2 == 1 ? even : odd) << row;
}

TEST_F(BackgroundTest, TakesChangedColoursAtARepaint) {
    open();
    world.set("Settings", "Color0", "255");
    background.Refresh_Colors();
    EXPECT_EQ(colour(1, 4), 255);
    EXPECT_EQ(layout.Color0(), "255");
}

// Tuesday, 9 January is column 4, Wednesday, today, column 5.
TEST_F(BackgroundTest, MarksAHolidayAndPutsItsDescriptionIntoTheTitle) {
    world.files.content["/program/holidays.dat"] =
        "[Holidays]\r\n1/9/2024=Founders' Day\r\n1/10/2024=Open Day\r\n";
    background.holidays.Holidays = "|1/9/2024||1/10/2024|";
    open();
    for (int row = 1; row < model.Rows(); ++row) {
        EXPECT_EQ(colour(row, 4), holiday) << row;
        EXPECT_EQ(layout.Cells(row, 4).BackColor(), 3) << row;
        EXPECT_NE(colour(row, 3), holiday) << row;
    }
    EXPECT_EQ(model.TextMatrix(0, 4), "Founders' Day");
    EXPECT_EQ(model.cell(0, 4).alignment, table::Alignment::centre);
    EXPECT_FALSE(model.cell(0, 4).bold);
    EXPECT_EQ(model.TextMatrix(0, 5), "Open Day");
    EXPECT_TRUE(model.cell(0, 5).bold);
    EXPECT_EQ(model.TextMatrix(0, 3), "Monday Jan. 8");
}

TEST_F(BackgroundTest, ShowsAllOfADescriptionBehindItsFirstEqualsSign) {
    world.files.content["/program/holidays.dat"] = "[Holidays]\r\n1/9/2024=Day=Night\r\n";
    background.holidays.Holidays = "|1/9/2024|";
    open();
    EXPECT_EQ(model.TextMatrix(0, 4), "Day=Night");
}

TEST_F(BackgroundTest, EmptiesTheTitleOfAHolidayWithoutADescription) {
    background.holidays.Holidays = "|1/8/2024||1/9/2024||1/10/2024|";
    world.files.content["/program/holidays.dat"] = "[Holidays]\r\n1/8/2024\r\n\r\n1/9/2024=\r\n=nothing\r\n";
    open();
    for (const int col : {3, 4, 5}) { // without "=", without a text, without a line
        EXPECT_EQ(model.TextMatrix(0, col), "") << col;
        EXPECT_EQ(colour(1, col), holiday) << col;
    }
    EXPECT_TRUE(world.box.shown.empty());
}

// Nothing but the colours is painted again then.
TEST_F(BackgroundTest, TakesTheBoldOfTodayOffAHolidayThatIsOver) {
    world.files.content["/program/holidays.dat"] = "[Holidays]\r\n1/10/2024=Open Day\r\n";
    background.holidays.Holidays = "|1/10/2024|";
    open();
    ASSERT_TRUE(model.cell(0, 5).bold);
    world.clock.time = DateTime::of(2024, 1, 11, 0, 5);
    background.Refresh_Colors();
    EXPECT_FALSE(model.cell(0, 5).bold);
}

TEST_F(BackgroundTest, KnowsAHolidayByItsWholeDateOnly) {
    background.holidays.Holidays = "|11/9/2024||1/9/20245|";
    open();
    EXPECT_EQ(colour(1, 4), even);
}

TEST(BackgroundInAnotherLocale, MatchesHolidaysInThatLocalesShortDate) {
    support::GridWorld world(support::german());
    world.have_users({"Ann"});
    world.calendar.background.holidays.Holidays = "|1/8/2024||09.01.2024|";
    world.open(DateTime::of(2024, 1, 10));
    EXPECT_EQ(world.calendar.msgSched.cell(1, 3).back_colour, even);
    EXPECT_EQ(world.calendar.msgSched.cell(1, 4).back_colour, holiday);
}

TEST_F(BackgroundTest, GivesAHolidaysColumnItsBandsBack) {
    background.holidays.Holidays = "|1/9/2024|";
    open();
    background.Remove_Holidays();
    EXPECT_EQ(colour(1, 4), even);
    EXPECT_EQ(colour(3, 4), odd);
    EXPECT_EQ(layout.Cells(1, 4).BackColor(), 1);
    EXPECT_EQ(layout.Cells(3, 4).BackColor(), 2);
}

TEST_F(BackgroundTest, RemovesOnlyTheHolidaysOfTheDaysShown) {
    background.holidays.Holidays = "|1/9/2024|";
    open();
    layout.show(DateTime::of(2024, 2, 4));
    background.Remove_Holidays();
    EXPECT_EQ(colour(1, 4), holiday);
}

TEST_F(BackgroundTest, FindsTheBandOfARowByTheNumberOfUsers) {
    open({"Ann", "Bob", "Cem"}, false);
    EXPECT_EQ(layout.CellsPerSlot(), 4);
    EXPECT_EQ(world.users.NumUsers, 3);
    EXPECT_EQ(background.bands.GetBackGroundColor(3), even);
    EXPECT_EQ(background.bands.GetBackGroundColor(4), odd);
    EXPECT_EQ(colour(4, 4), even);
}

TEST_F(BackgroundTest, ShowsTheFailureBoxForABandWithoutUsers) {
    open();
    world.users.NumUsers = 0;
    EXPECT_EQ(background.bands.GetBackGroundColor(1), 0);
    ASSERT_EQ(world.box.shown.size(), 1U);
    EXPECT_NE(world.box.shown[0].text.find("in modColorOffSlot: Function GetBackGroundColor - Line # "),
              std::string::npos);
}

TEST_F(BackgroundTest, ShowsTheFailureBoxForAColourThatIsNone) {
    world.set("Settings", "Color1", "blue");
    open();
    ASSERT_EQ(world.box.shown.size(), 1U);
    EXPECT_NE(world.box.shown[0].text.find("Error 13: "), std::string::npos);
    EXPECT_NE(world.box.shown[0].text.find("in modColorOffSlot: Sub Color_BackGround - Line # 20"),
              std::string::npos);
}

TEST_F(BackgroundTest, PaintsWithTheWindowLockedAndReleasesIt) {
    open();
    world.window.calls.clear();
    background.Refresh_Colors();
    EXPECT_EQ(world.window.calls,
              (std::vector<std::string>{"lock_updates", "show_hourglass", "lock_updates", "unlock_updates",
                                        "show_default_pointer", "unlock_updates"}));
}

} // namespace
