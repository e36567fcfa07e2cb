#include "desk/import/report.h"

#include <gtest/gtest.h>

namespace {

using importing::Report;

TEST(Report, CountsInWords) {
    const Report report{.file = "a.ics", .user = "Anna", .activities = 1, .series = 1, .contacts = 2, .notes = 1};
    EXPECT_EQ(report.text(), "Taken from a.ics: 1 activity (1 recurring) for Anna, 2 new contacts, 1 note.\n");
}

TEST(Report, CountsTheRemarksThatItHasNoRoomFor) {
    Report report{.file = "a.ics"};
    for (int line = 1; line <= 5; ++line)
        report.skipped.push_back({{line, "Title", "uid"}, "It has no start."});
    EXPECT_EQ(report.text(1), "Taken from a.ics: 0 activities, 0 new contacts, 0 notes.\n"
                              "Skipped:\n"
                              "  line 1, \"Title\" (uid): It has no start.\n"
                              "  and 4 more\n");
}

} // namespace
