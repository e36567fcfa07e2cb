#include "core/act/left_instances.h"
#include "core/shell/shell_world.h"
#include "desk/store/running_process.h"
#include "desk/store/sqlite_connection.h"
#include "support/half_real_server.h"
#include "support/temporary_database.h"

#include <gtest/gtest.h>

// A calendar that starts on a database in which another one left an instance behind when it died.
namespace {

using values::DateTime;
using Texts = std::vector<std::string>;

class AbandonedInstance : public testing::Test, protected support::PlatformWorld {
protected:
    AbandonedInstance() {
        const std::string ann = database.store().add(store::User{.name = "Ann"});
        const std::string chris = database.store().add(store::Contact{.fields = {{26, "Chris Smith"}}});
        store::Activity series{.regarding = "Round",
                               .start = DateTime::of(2024, 1, 8, 9),
                               .duration = 60,
                               .user = ann,
                               .contacts = {chris},
                               .recurrence = {.kind = store::RecurrenceKind::daily},
                               .exceptions = {day}};
        database.store().add(series);
        series.start = day.plus_minutes(9 * 60);
        series.recurrence = {};
        series.exceptions = {};
        instance = database.store().add(series);
        const std::string process = store::this_process();
        const std::string dead = process.substr(0, process.rfind(' ')) + " 1";
        store::SqliteConnection(database.path(), store::SqliteConnection::Mode::read_write)
            .run("INSERT INTO temporary_instances (instance, series, day, owner, settled_revision)"
                 " SELECT ?, id, ?, ?, (SELECT revision FROM activities WHERE id = ?1)"
                 " FROM activities WHERE recurrence <> 0",
                 instance, day.seconds(), dead);
    }
    bool shows_the_series_on_that_day() const {
        const grid::clsMsgSchedCell& cell = calendar.grid.layout.Cells(2, 5);
        return !cell.ActivityID().empty() && cell.Recurring();
    }

    const DateTime day = DateTime::of(2024, 1, 10);
    support::TemporaryDatabase database;
    std::string instance;
    support::HalfRealServer server{database.path()};
    support::FakeMainWindow window;
    support::FakeDialogs dialogs;
    support::FakePresenter presenter;
    support::FakeActivityChange question;
    calendar::Calendar calendar{outside(server), {window, dialogs, presenter, question}};
};

TEST_F(AbandonedInstance, IsTakenBackWithoutAWordWhenNobodyChangedIt) {
    calendar.start_up.Form_Load();
    EXPECT_EQ(boxes(), Texts{});
    EXPECT_FALSE(database.store().activity(instance));
    EXPECT_TRUE(shows_the_series_on_that_day());
}

TEST_F(AbandonedInstance, StaysAndIsToldWhenItWasChanged) {
    store::Activity changed = *database.store().activity(instance);
    changed.regarding = "Without the boss";
    database.store().update(changed);
    calendar.start_up.Form_Load();
    EXPECT_EQ(boxes(),
              Texts{"The calendar ended while the occurrence of \"Without the boss\" on 1/10/2024 was edited. "
                    "It was changed, or its series was deleted, so it stays as an activity of its own."});
    EXPECT_TRUE(database.store().activity(instance));
    EXPECT_FALSE(shows_the_series_on_that_day());
    box.shown.clear();
    act::take_back_instances(calendar.here(), calendar.act.session);
    EXPECT_EQ(boxes(), Texts{}) << "it is told once";
}

} // namespace
