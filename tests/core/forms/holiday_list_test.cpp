#include "core/forms/holiday_list.h"

#include "core/values/failure.h"
#include "support/locales.h"

#include <gtest/gtest.h>

namespace {

using values::DateTime;

class HolidayListTest : public ::testing::Test {
protected:
    void read(std::initializer_list<const char*> lines) {
        for (const char* line : lines)
            list.append(line);
    }
    std::size_t insert(int month, int day, const char* description = "x") {
        return list.insert(DateTime::of(2024, month, day), description, values::english_us());
    }
    // "date=description" of each holiday.
    std::vector<std::string> lines() const {
        std::vector<std::string> texts;
        for (const grid::Holiday& holiday : list.holidays())
            texts.push_back(holiday.date + "=" + holiday.description);
        return texts;
    }
    forms::HolidayList list;
};

using Lines = std::vector<std::string>;

TEST_F(HolidayListTest, KeepsTheOrderOfTheFile) {
    read({"12/25/2024=Christmas", "1/1/2024=New Year"});
    EXPECT_EQ(lines(), (Lines{"12/25/2024=Christmas", "1/1/2024=New Year"}));
}

TEST_F(HolidayListTest, CutsADescriptionAtItsEqualsSign) {
    read({"1/1/2024=New=Year", "5/1/2024="});
    EXPECT_EQ(lines(), (Lines{"1/1/2024=New", "5/1/2024="}));
}

TEST_F(HolidayListTest, FailsAtALineWithoutAnEqualsSignAndKeepsWhatCameBefore) {
    read({"1/1/2024=New Year"});
    for (const char* line : {"5/1/2024", ""}) {
        try {
            list.append(line);
            FAIL() << line;
        } catch (const values::Failure& failure) {
            EXPECT_EQ(failure.number(), 9);
        }
    }
    EXPECT_EQ(lines(), Lines{"1/1/2024=New Year"});
}

TEST_F(HolidayListTest, HasReadADateThatOccursInTheDatesRunTogether) {
    read({"11/1/2024=All Saints", "5/1/2024=May Day"});
    EXPECT_TRUE(list.has_read("11/1/2024"));
    EXPECT_TRUE(list.has_read("5/1/2024"));
    EXPECT_TRUE(list.has_read("1/1/2024")); // inside 11/1/2024
    EXPECT_FALSE(list.has_read("12/1/2024"));
}

TEST_F(HolidayListTest, HasNotReadWhatWasInserted) {
    insert(5, 1);
    EXPECT_FALSE(list.has_read("5/1/2024"));
    insert(5, 1, "again");
    EXPECT_EQ(lines(), (Lines{"5/1/2024=again", "5/1/2024=x"}));
}

TEST_F(HolidayListTest, InsertsBeforeTheFirstHolidayOnOrAfterTheDate) {
    read({"1/1/2024=a", "5/1/2024=b", "12/25/2024=c"});
    EXPECT_EQ(insert(5, 1), 1U);
    EXPECT_EQ(insert(2, 1), 1U);
    EXPECT_EQ(insert(12, 31), 5U);
    EXPECT_EQ(lines(),
              (Lines{"1/1/2024=a", "2/1/2024=x", "5/1/2024=x", "5/1/2024=b", "12/25/2024=c", "12/31/2024=x"}));
}

TEST_F(HolidayListTest, InsertsIntoAListOutOfOrderBeforeTheFirstLaterDateFromTheTop) {
    read({"12/25/2024=c", "1/1/2024=a"});
    EXPECT_EQ(insert(5, 1), 0U);
}

TEST_F(HolidayListTest, WritesTheDateInTheLocalesShortForm) {
    list.insert(DateTime::of(2024, 5, 1), "Tag der Arbeit", support::german());
    EXPECT_EQ(lines(), Lines{"01.05.2024=Tag der Arbeit"});
}

TEST_F(HolidayListTest, KeepsADescriptionOnItsLine) {
    list.insert(DateTime::of(2024, 5, 1), std::string_view("a\r\nb\0c", 6), values::english_us());
    EXPECT_EQ(lines(), Lines{"5/1/2024=a  b c"});
}

TEST_F(HolidayListTest, FailsAtADateThatCantBeReadAndInsertsNothing) {
    read({"1/1/2024=a", "whenever=b"});
    try {
        insert(5, 1);
        FAIL();
    } catch (const values::Failure& failure) {
        EXPECT_EQ(failure.number(), 13);
    }
    EXPECT_EQ(lines().size(), 2U);
}

TEST_F(HolidayListTest, ForgetsEveryOccurrenceOfARemovedDate) {
    read({"1/1/2024=a", "5/1/2024=b", "1/1/2024=c", "11/1/2024=d"});
    list.remove(0);
    EXPECT_EQ(lines(), (Lines{"5/1/2024=b", "1/1/2024=c", "11/1/2024=d"}));
    EXPECT_FALSE(list.has_read("1/1/2024"));
    EXPECT_FALSE(list.has_read("11/1/2024")); // it held the removed date
    EXPECT_TRUE(list.has_read("5/1/2024"));
}

} // namespace
