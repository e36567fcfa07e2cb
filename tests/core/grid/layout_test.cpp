#include "core/grid/layout.h"

#include "support/failure_number.h"
#include "support/grid_world.h"

#include <gtest/gtest.h>

namespace {

using values::DateTime;

class LayoutTest : public testing::Test {
protected:
    support::GridWorld world;
    grid::Layout& layout = world.calendar.layout;
};

//        January 2024
//   Su Mo Tu We Th Fr Sa
//    7  8  9 10 11 12 13
//   14 15 16 17 18 19 20
TEST_F(LayoutTest, BeginsAWeekOnTheFirstDayOfTheWeekThatHoldsTheDate) {
    layout.NumDays(7);
    layout.Initialize_Dates(DateTime::of(2024, 1, 10, 15, 30));
    EXPECT_EQ(layout.StartDate(), DateTime::of(2024, 1, 7));
    EXPECT_EQ(layout.EndDate(), DateTime::of(2024, 1, 13));
    world.set("Settings", "1stday", "2");
    layout.Initialize_Dates(DateTime::of(2024, 1, 14));
    EXPECT_EQ(layout.FirstDayOfWeek(), 2);
    EXPECT_EQ(layout.StartDate(), DateTime::of(2024, 1, 8));
    EXPECT_EQ(layout.EndDate(), DateTime::of(2024, 1, 14));
}

TEST_F(LayoutTest, BeginsAWeekOnItsFirstDayEvenIfThatIsADayOff) {
    layout.NumDays(7);
    layout.DaysOff("17");
    layout.Initialize_Dates(DateTime::of(2024, 1, 10));
    EXPECT_EQ(layout.StartDate(), DateTime::of(2024, 1, 7));
}

TEST_F(LayoutTest, NeverOpensADailyViewOnADayOff) {
    layout.NumDays(1);
    layout.DaysOff("17");
    layout.Initialize_Dates(DateTime::of(2024, 1, 13, 11, 0));
    EXPECT_EQ(layout.StartDate(), DateTime::of(2024, 1, 15));
    EXPECT_EQ(layout.EndDate(), DateTime::of(2024, 1, 15));
}

TEST_F(LayoutTest, OpensOnTheLastDayTriedWhenAllDaysAreOff) {
    layout.NumDays(1);
    layout.DaysOff("1234567");
    layout.Initialize_Dates(DateTime::of(2024, 1, 10));
    EXPECT_EQ(layout.StartDate(), DateTime::of(2024, 1, 16));
}

TEST_F(LayoutTest, StepsOverDaysOffInTheDirectionOfTravel) {
    layout.DaysOff("17");
    EXPECT_EQ(layout.GetNextNotHiddenDay(DateTime::of(2024, 1, 13), grid::Layout::Direction::forward),
              DateTime::of(2024, 1, 15));
    EXPECT_EQ(layout.GetNextNotHiddenDay(DateTime::of(2024, 1, 14), grid::Layout::Direction::backward),
              DateTime::of(2024, 1, 12));
    EXPECT_EQ(layout.GetNextNotHiddenDay(DateTime::of(2024, 1, 10), grid::Layout::Direction::backward),
              DateTime::of(2024, 1, 10));
    layout.DaysOff("1234567");
    EXPECT_EQ(layout.GetNextNotHiddenDay(DateTime::of(2024, 1, 10), grid::Layout::Direction::backward),
              DateTime::of(2024, 1, 4));
}

TEST_F(LayoutTest, NamesTheYearOfTheFirstDay) {
    layout.NumDays(7);
    layout.Initialize_Dates(DateTime::of(2025, 1, 2));
    EXPECT_EQ(layout.StartDate(), DateTime::of(2024, 12, 29));
    EXPECT_EQ(layout.lblYear(), "2024");
}

TEST_F(LayoutTest, ShowsTheFailureBoxForAFirstDayThatIsNoWeekday) {
    layout.NumDays(7);
    world.set("Settings", "1stday", "9");
    layout.Initialize_Dates(DateTime::of(2024, 1, 10));
    ASSERT_EQ(world.box.shown.size(), 1U);
    EXPECT_NE(world.box.shown[0].text.find("Error 5: "), std::string::npos);
    EXPECT_NE(world.box.shown[0].text.find("in frmMain: Sub Initialize_Dates - Line # 20"), std::string::npos);
}

TEST_F(LayoutTest, MapsDatesToColumnsWithoutARangeTest) {
    layout.show(DateTime::of(2024, 1, 7));
    EXPECT_EQ(layout.GetDayCol(DateTime::of(2024, 1, 7, 23, 59)), 2);
    EXPECT_EQ(layout.GetDayCol(DateTime::of(2024, 1, 10)), 5);
    EXPECT_EQ(layout.GetDayCol(DateTime::of(2024, 1, 5)), 0);
    EXPECT_EQ(layout.GetDayCol(DateTime::of(2024, 1, 4)), -1);
    EXPECT_EQ(layout.GetDayCol(DateTime::of(2024, 1, 20)), 15);
    EXPECT_EQ(layout.date_of_column(5), DateTime::of(2024, 1, 10));
}

TEST_F(LayoutTest, ShowsTheFailureBoxForADateTooFarAwayForAColumn) {
    layout.show(DateTime::of(2024, 1, 7));
    EXPECT_EQ(layout.GetDayCol(DateTime::of(2124, 1, 7)), 0);
    ASSERT_EQ(world.box.shown.size(), 1U);
    EXPECT_NE(world.box.shown[0].text.find("Error 6: "), std::string::npos);
}

} // namespace
