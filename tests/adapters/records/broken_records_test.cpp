#include "core/shell/shell_world.h"
#include "desk/store/sqlite_connection.h"
#include "support/half_real_server.h"
#include "support/temporary_database.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

// A record in a real database with a value in it that no program of ours writes, beside a sound one: the calendar
// shows the sound one, by each of its readings, and no box.
namespace {

using values::DateTime;

struct BrokenRecord {
    std::string column, value;
    friend std::ostream& operator<<(std::ostream& out, const BrokenRecord& one) {
        return out << one.column << " = " << one.value;
    }
};

class BrokenRecordTest : public ::testing::TestWithParam<BrokenRecord>, protected support::PlatformWorld {
protected:
    BrokenRecordTest() {
        ann = database.store().add(store::User{.name = "Ann"});
        chris = database.store().add(store::Contact{.fields = {{26, "Chris Smith"}}});
        sound = add(9);
        broken = add(10);
    }
    std::string add(int hour) {
        const DateTime start = DateTime::of(2024, 1, 8, hour);
        return database.store().add(store::Activity{.regarding = "Plan",
                                                    .start = start,
                                                    .end = start.plus_minutes(60),
                                                    .duration = 60,
                                                    .user = ann,
                                                    .contacts = {chris}});
    }
    void break_record(const BrokenRecord& how) {
        store::SqliteConnection connection(database.path(), store::SqliteConnection::Mode::read_write);
        connection.run("UPDATE activities SET " + how.column + " = " + how.value + " WHERE id = ?", broken);
        connection.run(
            "UPDATE activities SET revision = revision + 1 WHERE id = ? AND typeof(revision) = 'integer'", broken);
        connection.run("UPDATE counters SET value = value + 1 WHERE name = 'revision'");
    }
    bool shows_the_sound_one() const { return !calendar.grid.msgSched.TextMatrix(9 - 8 + 1, 8 - 7 + 2).empty(); }

    support::TemporaryDatabase database;
    std::string ann, chris, sound, broken;
    support::HalfRealServer server{database.path()};
    support::FakeMainWindow window;
    support::FakeDialogs dialogs;
    support::FakePresenter presenter;
    support::FakeActivityChange question;
    calendar::Calendar calendar{outside(server), {window, dialogs, presenter, question}};
};

TEST_P(BrokenRecordTest, LeavesTheSoundOneInTheGridAtTheStart) {
    break_record(GetParam());
    calendar.start_up.Form_Load();
    EXPECT_EQ(boxes(), std::vector<std::string>{});
    EXPECT_TRUE(shows_the_sound_one());
    calendar.menu.mnuFullRefresh_Click();
    EXPECT_EQ(boxes(), std::vector<std::string>{});
    EXPECT_TRUE(shows_the_sound_one());
}

TEST_P(BrokenRecordTest, LeavesTheSoundOneInTheGridWhenItBreaksMeanwhile) {
    calendar.start_up.Form_Load();
    break_record(GetParam());
    calendar.menu.mnuRefresh_Click();
    EXPECT_EQ(boxes(), std::vector<std::string>{});
    EXPECT_TRUE(shows_the_sound_one());
}

std::vector<BrokenRecord> broken_records() {
    std::vector<BrokenRecord> all;
    for (const char* column :
         {"edited_at", "type", "priority", "ends_at", "duration", "private", "alarm", "alarm_lead", "colour",
          "contact_count", "cleared", "has_details", "frequency", "until", "days_of_week", "days_of_month"})
        for (const char* value : {"9223372036854775807", "-9223372036854775808", "4294967296", "40000", "-1",
                                  "1e300", "'nonsense'", "x'ff00fe'"})
            all.push_back({column, value});
    for (const char* column : {"regarding", "details", "result"})
        for (const char* value : {"x'ff00fe'", "char(0, 1, 2, 27, 65535)", "7", "hex(zeroblob(1000000))"})
            all.push_back({column, value});
    return all;
}

INSTANTIATE_TEST_SUITE_P(Values, BrokenRecordTest, testing::ValuesIn(broken_records()));

} // namespace
