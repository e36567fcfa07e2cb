#include "core/shell/shell_world.h"
#include "desk/store/sqlite_connection.h"
#include "support/half_real_server.h"
#include "support/temporary_database.h"

#include <gtest/gtest.h>

#include <optional>
#include <ostream>
#include <string>
#include <vector>

// Series in a real database as no program of ours writes them, beside a sound one: the calendar starts, and shows
// the sound one on every day of the week from 7 to 13 January 2024.
namespace {

using store::RecurrenceKind;
using values::DateTime;
using Days = std::vector<int>;

constexpr int sound_hour = 9, broken_hour = 12;

struct BrokenSeries {
    std::string name;
    RecurrenceKind kind;
    std::string change; // of the columns of a series that starts on Monday the 8th and has every bit set
    Days shown;         // days of the month on which it shows
    std::string box{};  // at each reading of the whole list; none where it is empty
    friend std::ostream& operator<<(std::ostream& out, const BrokenSeries& one) { return out << one.name; }
};

class BrokenSeriesTest : public ::testing::TestWithParam<BrokenSeries>, protected support::PlatformWorld {
protected:
    BrokenSeriesTest() {
        ann = database.store().add(store::User{.name = "Ann"});
        chris = database.store().add(store::Contact{.fields = {{26, "Chris Smith"}}});
        add(sound_hour, {.kind = RecurrenceKind::daily});
    }
    std::string add(int hour, const store::Recurrence& recurrence) {
        const DateTime start = DateTime::of(2024, 1, sound_hour == hour ? 7 : 8, hour);
        return database.store().add(store::Activity{.start = start,
                                                    .end = start.plus_minutes(60),
                                                    .duration = 60,
                                                    .user = ann,
                                                    .contacts = {chris},
                                                    .recurrence = recurrence});
    }
    std::string add_broken(const BrokenSeries& broken) {
        std::string id =
            add(broken_hour,
                {.kind = broken.kind, .days_of_week = 127, .weeks_of_month = 7, .days_of_month = 0x7FFFFFFF});
        store::SqliteConnection(database.path(), store::SqliteConnection::Mode::read_write)
            .run("UPDATE activities SET " + broken.change + " WHERE id = ?", id);
        return id;
    }
    Days shown_at(int hour) const {
        Days days;
        for (int day = 7; day <= 13; ++day)
            if (!calendar.grid.msgSched.TextMatrix(hour - 8 + 1, day - 7 + 2).empty())
                days.push_back(day);
        return days;
    }

    support::TemporaryDatabase database;
    std::string ann, chris;
    support::HalfRealServer server{database.path()};
    support::FakeMainWindow window;
    support::FakeDialogs dialogs;
    support::FakePresenter presenter;
    support::FakeActivityChange question;
    calendar::Calendar calendar{outside(server), {window, dialogs, presenter, question}};
};

const Days all_week{7, 8, 9, 10, 11, 12, 13}, from_monday{8, 9, 10, 11, 12, 13};

TEST_P(BrokenSeriesTest, LeavesTheOthersInTheGrid) {
    const std::vector<std::string> expected(GetParam().box.empty() ? 0 : 1, GetParam().box);
    add_broken(GetParam());
    calendar.start_up.Form_Load();
    EXPECT_EQ(boxes(), expected);
    EXPECT_EQ(shown_at(sound_hour), all_week);
    EXPECT_EQ(shown_at(broken_hour), GetParam().shown);
    box.shown.clear();
    calendar.menu.mnuFullRefresh_Click();
    calendar.menu.mnuRefresh_Click();
    EXPECT_EQ(boxes(), expected);
    EXPECT_EQ(shown_at(sound_hour), all_week);
}

TEST_P(BrokenSeriesTest, IsReadAgainAloneWithoutHarmToTheOthers) {
    const std::string id = add_broken(GetParam());
    calendar.start_up.Form_Load();
    box.shown.clear();
    calendar.engine.quick_refresh.Refresh_Activity(id, engine::QuickRefresh::SelectedCell::stays);
    EXPECT_LE(box.shown.size(), 1U);
    EXPECT_EQ(shown_at(sound_hour), all_week);
    EXPECT_EQ(shown_at(broken_hour), GetParam().shown);
}

std::vector<BrokenSeries> broken_series() {
    const std::string noon_of_the_last_day = std::to_string(DateTime::of(9999, 12, 31, 12).seconds());
    struct Kind {
        RecurrenceKind kind;
        std::string name;
        bool has_bits;
        Days sound, of_texts; // the rules of months don't look at the day on which the series starts
    };
    std::vector<BrokenSeries> all;
    for (const auto& [kind, name, has_bits, sound, of_texts] :
         {Kind{RecurrenceKind::daily, "Daily", false, from_monday, from_monday},
          Kind{RecurrenceKind::weekly, "Weekly", true, from_monday, {}},
          Kind{RecurrenceKind::days_of_month, "DaysOfMonth", true, all_week, all_week},
          Kind{RecurrenceKind::weekdays_of_month, "WeekdaysOfMonth", true, all_week, {}}}) {
        const Days without_bits = has_bits ? Days{} : sound;
        const bool steps_from_its_start = sound == from_monday;
        all.push_back({name + "WithStep0", kind, "frequency = 0", sound});
        all.push_back({name + "WithANegativeStep", kind, "frequency = -2147483648", sound});
        all.push_back({name + "WithAnEndBeforeItsStart", kind, "until = 0", {}});
        all.push_back({name + "WithANegativeEnd", kind, "until = -9223372036854775807", {}});
        all.push_back(
            {name + "WithoutBits", kind, "days_of_week = 0, weeks_of_month = 0, days_of_month = 0", without_bits});
        all.push_back({name + "WithNegativeBits", kind,
                       "days_of_week = -1, weeks_of_month = -1, days_of_month = -2147483648", without_bits});
        all.push_back({name + "FromTheYear9999",
                       kind,
                       "starts_at = " + noon_of_the_last_day + ", ends_at = 3600 + " + noon_of_the_last_day,
                       {}});
        all.push_back({name + "FromBeforeAllDates",
                       kind,
                       "starts_at = -9223372036854775807",
                       {},
                       steps_from_its_start ? "Error 5: 'Invalid procedure call or argument'" : ""});
        all.push_back({name + "FromBehindAllDates", kind, "starts_at = 9223372036854775807", {}});
        all.push_back({name + "WithANegativeLength", kind, "duration = -60, ends_at = starts_at - 3600", sound});
        all.push_back(
            {name + "WithTexts", kind, "frequency = 'often', days_of_week = 'some', duration = 'long'", of_texts});
    }
    all.push_back({"OfNoKnownKind", RecurrenceKind::daily, "recurrence = 77", {8}});
    return all;
}

INSTANTIATE_TEST_SUITE_P(Series, BrokenSeriesTest, testing::ValuesIn(broken_series()),
                         [](const auto& test) { return test.param.name; });

} // namespace
