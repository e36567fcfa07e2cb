#include "core/shell/jump_targets.h"

#include "core/values/text_forms.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace {

using values::DateTime;

struct Targets {
    DateTime today;
    std::map<std::string, DateTime> of_entries;
};

DateTime day(int year, int month, int day) { return DateTime::of(year, month, day); }

const std::vector<Targets> days = {Targets{day(2024, 3, 31),
                                           {{"Today - 1 year", day(2023, 3, 31)},
                                            {"Today - 6 months", day(2023, 9, 30)},
                                            {"Today - 3 months", day(2023, 12, 31)},
                                            {"Today - 1 month", day(2024, 2, 29)},
                                            {"1st of previous month", day(2024, 2, 1)},
                                            {"15th of previous month", day(2024, 2, 15)},
                                            {"1st of this month", day(2024, 3, 1)},
                                            {"Today", day(2024, 3, 31)},
                                            {"1st of next month", day(2024, 4, 1)},
                                            {"15th of next month", day(2024, 4, 15)},
                                            {"Today + 1 month", day(2024, 4, 30)},
                                            {"Today + 3 months", day(2024, 6, 30)},
                                            {"Today + 6 months", day(2024, 9, 30)},
                                            {"Today + 1 year", day(2025, 3, 31)}}},
                                   Targets{day(2024, 2, 29),
                                           {{"Today - 1 year", day(2023, 2, 28)},
                                            {"Today - 6 months", day(2023, 8, 29)},
                                            {"Today - 3 months", day(2023, 11, 29)},
                                            {"Today - 1 month", day(2024, 1, 29)},
                                            {"1st of previous month", day(2024, 1, 1)},
                                            {"15th of previous month", day(2024, 1, 15)},
                                            {"1st of this month", day(2024, 2, 1)},
                                            {"Today", day(2024, 2, 29)},
                                            {"1st of next month", day(2024, 3, 1)},
                                            {"15th of next month", day(2024, 3, 15)},
                                            {"Today + 1 month", day(2024, 3, 29)},
                                            {"Today + 3 months", day(2024, 5, 29)},
                                            {"Today + 6 months", day(2024, 8, 29)},
                                            {"Today + 1 year", day(2025, 2, 28)}}},
                                   Targets{day(2025, 1, 10),
                                           {{"Today - 1 year", day(2024, 1, 10)},
                                            {"Today - 6 months", day(2024, 7, 10)},
                                            {"Today - 3 months", day(2024, 10, 10)},
                                            {"Today - 1 month", day(2024, 12, 10)},
                                            {"1st of previous month", day(2024, 12, 1)},
                                            {"15th of previous month", day(2024, 12, 15)},
                                            {"1st of this month", day(2025, 1, 1)},
                                            {"Today", day(2025, 1, 10)},
                                            {"1st of next month", day(2025, 2, 1)},
                                            {"15th of next month", day(2025, 2, 15)},
                                            {"Today + 1 month", day(2025, 2, 10)},
                                            {"Today + 3 months", day(2025, 4, 10)},
                                            {"Today + 6 months", day(2025, 7, 10)},
                                            {"Today + 1 year", day(2026, 1, 10)}}},
                                   Targets{day(2025, 12, 31),
                                           {{"Today - 1 year", day(2024, 12, 31)},
                                            {"Today - 6 months", day(2025, 6, 30)},
                                            {"Today - 3 months", day(2025, 9, 30)},
                                            {"Today - 1 month", day(2025, 11, 30)},
                                            {"1st of previous month", day(2025, 11, 1)},
                                            {"15th of previous month", day(2025, 11, 15)},
                                            {"1st of this month", day(2025, 12, 1)},
                                            {"Today", day(2025, 12, 31)},
                                            {"1st of next month", day(2026, 1, 1)},
                                            {"15th of next month", day(2026, 1, 15)},
                                            {"Today + 1 month", day(2026, 1, 31)},
                                            {"Today + 3 months", day(2026, 3, 31)},
                                            {"Today + 6 months", day(2026, 6, 30)},
                                            {"Today + 1 year", day(2026, 12, 31)}}}};

TEST(JumpList, LeadsFromTodayToEachTarget) {
    for (const Targets& expected : days) {
        EXPECT_EQ(expected.of_entries.size(),
                  shell::jumps.size() - 2); // all but the empty one and the picked date
        for (const auto& [entry, date] : expected.of_entries) {
            const shell::Jump* jump = shell::find_jump(entry);
            ASSERT_NE(jump, nullptr) << entry;
            EXPECT_EQ(shell::target_of(*jump, expected.today), date) << entry << values::yyyymmdd(expected.today);
        }
    }
}

TEST(JumpList, BeginsWithTheEmptyOneAndThePickedDate) {
    ASSERT_EQ(shell::jump_entries.size(), 16U);
    EXPECT_EQ(shell::jump_entries[0], "");
    EXPECT_EQ(shell::jump_entries[1], "Pick a date...");
    EXPECT_EQ(shell::jump_entries[9], "Today");
    EXPECT_EQ(shell::find_jump("")->target, shell::Jump::Target::none);
    EXPECT_EQ(shell::find_jump("Pick a date...")->target, shell::Jump::Target::asked);
    EXPECT_EQ(shell::find_jump("Tomorrow"), nullptr);
}

} // namespace
