#include "adapters/records/desk_database.h"
#include "core/changes/addition.h"
#include "core/changes/occurrence.h"
#include "core/changes/rewriting.h"
#include "support/failure_number.h"
#include "support/recording_act.h"
#include "support/temporary_database.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

// What changes write to a real store, and that undoing them brings back what was there.
namespace {

namespace field = act::activity_field;
using changes::Rewriting;
using values::DateTime;

class Changes : public testing::Test {
protected:
    Changes() {
        ann = store().add(store::User{.name = "Ann"});
        bob = store().add(store::User{.name = "Bob"});
        for (const char* name : {"Chris", "Dana", "Erin"})
            people.push_back(store().add(store::Contact{.fields = {{26, name}}}));
        id = store().add(store::Activity{.regarding = "Figures",
                                         .start = at(9),
                                         .end = at(10),
                                         .duration = 60,
                                         .user = ann,
                                         .contacts = {people[0], people[1]}});
        series = store().add(store::Activity{.start = at(11),
                                             .end = at(12),
                                             .duration = 60,
                                             .user = ann,
                                             .contacts = {people[0]},
                                             .recurrence = {.kind = store::RecurrenceKind::daily}});
        data.OpenEx("");
        activity = data.Activity();
    }

    static DateTime at(int hour, int day = 8) { return DateTime::of(2024, 1, day, hour); }
    store::Store& store() { return database.store(); }
    store::Activity stored(const std::string& one) { return store().activity(one).value(); }
    // All but the revision, which rises with every change.
    static void expect_same(const store::Activity& now, const store::Activity& before) {
        EXPECT_EQ(now.start, before.start);
        EXPECT_EQ(now.end, before.end);
        EXPECT_EQ(now.duration, before.duration);
        EXPECT_EQ(now.regarding, before.regarding);
        EXPECT_EQ(now.user, before.user);
        EXPECT_EQ(now.contacts, before.contacts);
        EXPECT_EQ(now.exceptions, before.exceptions);
    }

    support::TemporaryDatabase database;
    std::string ann, bob, id, series;
    std::vector<std::string> people;
    support::CallRecord record;
    support::RecordingDatabase data{records::make_database([this] { return database.path(); }), record};
    std::unique_ptr<act::Activity> activity;
};

TEST_F(Changes, ARewritingStoresItsFieldsAndItsInverseBringsTheOldOnesBack) {
    const store::Activity before = stored(id);
    activity->Goto(id);
    const Rewriting move{
        .fields = {{field::start, at(14, 9)}, {field::end, at(15, 9)}, {field::scheduled_for, bob}}};
    const Rewriting back = move.inverse(*activity);
    move.apply(*activity);
    EXPECT_EQ(stored(id).start, at(14, 9));
    EXPECT_EQ(stored(id).end, at(15, 9));
    EXPECT_EQ(stored(id).user, bob);
    EXPECT_EQ(stored(id).contacts, before.contacts) << "they weren't spoken of";
    activity->Goto(id);
    back.apply(*activity);
    expect_same(stored(id), before);
}

TEST_F(Changes, ARewritingOfContactsTakesOffTheOthersAndItsInverseGivesThemBack) {
    const store::Activity before = stored(id);
    activity->Goto(id);
    const Rewriting swap{.fields = {{field::regarding, std::string("Lunch")}},
                         .contacts = changes::ScheduledWith{.first = people[2], .further = {""}}};
    const Rewriting back = swap.inverse(*activity);
    swap.apply(*activity);
    EXPECT_EQ(stored(id).contacts, std::vector<std::string>{people[2]});
    activity->Goto(id);
    back.apply(*activity);
    expect_same(stored(id), before);
}

TEST_F(Changes, ARewritingOfAWholeSeriesIsUndoneAsAWhole) {
    const store::Activity before = stored(series);
    activity->Goto(series);
    const Rewriting later{.record = Rewriting::Record::whole_series,
                          .fields = {{field::start, at(16)}, {field::end, at(17)}}};
    const Rewriting back = later.inverse(*activity);
    later.apply(*activity);
    EXPECT_EQ(stored(series).start, at(16));
    EXPECT_EQ(stored(series).recurrence.kind, store::RecurrenceKind::daily);
    activity->Goto(series);
    back.apply(*activity);
    expect_same(stored(series), before);
    EXPECT_EQ(store().activities({}).size(), 2U);
}

TEST_F(Changes, AnAdditionStoresARecordWithItsContactsAndUndoneLeavesNoTrace) {
    const changes::Addition meeting{.fields = {{field::type, std::int64_t{1}},
                                               {field::start, at(13)},
                                               {field::end, at(14)},
                                               {field::scheduled_for, bob}},
                                    .contacts = {.first = people[1], .further = {people[2], ""}}};
    const std::string added = meeting.store(*activity);
    activity->Goto(added);
    EXPECT_EQ(changes::schedule_with(*activity, meeting.contacts), 2);
    EXPECT_EQ(stored(added).start, at(13));
    EXPECT_EQ(stored(added).contacts, (std::vector<std::string>{people[1], people[2]}));
    changes::Addition::undo(*activity, added);
    EXPECT_FALSE(store().activity(added));
    EXPECT_EQ(store().activities({}).size(), 2U);
}

TEST_F(Changes, AnExceptedOccurrenceIsMissingFromItsSeriesUntilThatIsUndone) {
    const changes::Occurrence tuesday{.series = series, .day = at(0, 9)};
    tuesday.except(*activity);
    EXPECT_EQ(stored(series).exceptions, std::vector<DateTime>{at(0, 9)});
    tuesday.except(*activity);
    EXPECT_EQ(stored(series).exceptions, std::vector<DateTime>{at(0, 9)}) << "an exception stays single";
    tuesday.undo(*activity);
    EXPECT_TRUE(stored(series).exceptions.empty());
    tuesday.undo(*activity);
    EXPECT_TRUE(stored(series).exceptions.empty());
}

TEST_F(Changes, ThatMeetARecordChangedMeanwhileFailAndOverwriteNothing) {
    activity->Goto(id);
    record.before = [this](const std::string& call) {
        if (call != "Update")
            return;
        store::Activity others = stored(id);
        others.regarding = "Somebody else's";
        store().update(others);
    };
    const Rewriting move{.fields = {{field::start, at(14)}}};
    EXPECT_EQ(support::failure_number([&] { move.apply(*activity); }), 440);
    EXPECT_EQ(stored(id).start, at(9));
    EXPECT_EQ(stored(id).regarding, "Somebody else's");
}

} // namespace
