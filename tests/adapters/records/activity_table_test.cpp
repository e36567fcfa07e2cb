#include "activity_fixture.h"
#include "support/activity_fields.h"

using act::activity_field::details;
using act::activity_field::edited;
using act::activity_field::id;
using act::activity_field::regarding;
using store::RecurrenceKind;
using support::daily;
using support::failure_number;
using support::meeting;
using support::monday;
using support::rest_of;
using support::text;
using support::Value;
using values::DateTime;

namespace {

class ActivityTable : public support::ActivityListData {};

} // namespace

TEST_F(ActivityTable, StandsOnTheFirstRecordFromItsBeginning) {
    EXPECT_TRUE(list->isEOF());
    store.add(meeting("tuesday", 1));
    store.add(meeting("monday"));
    list = database->Activity();
    EXPECT_FALSE(list->isEOF());
    EXPECT_EQ(text(list->Data(regarding)), "monday");
}

TEST_F(ActivityTable, AppliesEachScopeAndFilterAtOnceAndStandsOnTheFirstRecord) {
    store::Activity call = meeting("call", 1);
    call.type = store::ActivityType::call;
    store.add(call);
    store::Activity urgent = meeting("urgent", 2);
    urgent.priority = store::Priority::high;
    store.add(urgent);
    store::Activity cleared = meeting("cleared", 3);
    cleared.cleared = true;
    store.add(cleared);
    store.add(meeting("plain", 4));
    store.add(meeting("next-week", 7, 0));

    list->Rebuild();
    list->ClearClearedFilter();
    list->ClearDateScope();
    list->ClearPriorityFilter();
    list->ClearTypeFilter();
    EXPECT_EQ(rest_of(*list), "call urgent cleared plain next-week ");
    list->SetDateScope(monday, monday.plus_days(7));
    EXPECT_EQ(rest_of(*list), "call urgent cleared plain ");
    list->SetTypeFilter(act::ActivityType::call);
    EXPECT_EQ(rest_of(*list), "urgent cleared plain ");
    list->SetPriorityFilter(act::Priority::high);
    EXPECT_EQ(rest_of(*list), "cleared plain ");
    list->SetClearedFilter();
    EXPECT_EQ(rest_of(*list), "plain ");
    list->ClearDateScope();
    EXPECT_EQ(rest_of(*list), "plain next-week ");
    list->MoveFirst();
    EXPECT_EQ(rest_of(*list), "plain next-week ");
    list->ClearTypeFilter();
    list->ClearClearedFilter();
    EXPECT_EQ(rest_of(*list), "call cleared plain next-week ");
    list->ClearPriorityFilter();
    EXPECT_EQ(rest_of(*list), "call urgent cleared plain next-week ");
}

TEST_F(ActivityTable, KeepsItsFiltersThroughRebuild) {
    store.add(meeting("monday"));
    store.add(meeting("next-week", 7));
    list->SetDateScope(monday, monday.plus_days(7));
    list->Rebuild();
    EXPECT_EQ(rest_of(*list), "monday ");
    EXPECT_EQ(rest_of(*database->Activity()), "monday next-week ");
}

TEST_F(ActivityTable, KeepsSeveralTypesAndPrioritiesOut) {
    for (const auto type : {store::ActivityType::call, store::ActivityType::meeting, store::ActivityType::to_do}) {
        store::Activity activity = meeting(std::to_string(static_cast<int>(type)));
        activity.type = type;
        activity.priority = static_cast<store::Priority>(type);
        store.add(activity);
    }
    list->SetTypeFilter(act::ActivityType::call);
    list->SetTypeFilter(act::ActivityType::to_do);
    EXPECT_EQ(rest_of(*list), "1 ");
    list->ClearTypeFilter();
    list->SetPriorityFilter(act::Priority::medium);
    list->SetPriorityFilter(act::Priority::low);
    EXPECT_EQ(rest_of(*list), "0 ");
    list->SetPriorityFilter(static_cast<act::Priority>(7)); // there is no such priority to keep out
    EXPECT_EQ(rest_of(*list), "0 ");
}

TEST_F(ActivityTable, StaysAtItsEnd) {
    store.add(meeting("monday"));
    list->MoveNext();
    EXPECT_TRUE(list->isEOF());
    list->MoveNext();
    EXPECT_TRUE(list->isEOF());
    EXPECT_EQ(list->Data(id), Value());
}

TEST_F(ActivityTable, FailsWith91WhereARecordIsNeededAndThereIsNone) {
    list->Rebuild();
    EXPECT_EQ(failure_number([&] { list->isRecurring(); }), 91);
    EXPECT_EQ(failure_number([&] { list->recurringType(); }), 91);
    EXPECT_EQ(failure_number([&] { list->GetRecurringFrequency(); }), 91);
    EXPECT_EQ(failure_number([&] { list->GetRecurringUntilDate(); }), 91);
    EXPECT_EQ(failure_number([&] { list->GetDaysOfWeekBits(); }), 91);
    EXPECT_EQ(failure_number([&] { list->GetDaysOfMonthBits(); }), 91);
    EXPECT_EQ(failure_number([&] { list->GetWeeksOfMonthBits(); }), 91);
    EXPECT_EQ(failure_number([&] { list->ExceptionInfo(); }), 91);
    EXPECT_EQ(failure_number([&] { list->Edit(); }), 91);
    EXPECT_EQ(failure_number([&] { list->Delete(); }), 91);
    EXPECT_EQ(failure_number([&] { list->FirstScheduledWith(); }), 91);
    EXPECT_EQ(failure_number([&] { list->NextScheduledWith(); }), 91);
    EXPECT_EQ(failure_number([&] { list->FirstScheduledWith("C00000000001"); }), 91);
    EXPECT_EQ(list->Data(id), Value());
}

TEST_F(ActivityTable, GivesNothingAfterGoingToARecordThatThereIsNot) {
    store.add(meeting("monday"));
    EXPECT_FALSE(list->Goto("A99999999999"));
    EXPECT_EQ(list->Data(id), Value());
    EXPECT_TRUE(list->isEOF());
    list->MoveFirst();
    EXPECT_EQ(rest_of(*list), "monday ");
}

TEST_F(ActivityTable, GoesOnBehindARecordItWentTo) {
    const std::string outside = store.add(meeting("outside", -3));
    store.add(meeting("monday"));
    const std::string tuesday = store.add(meeting("tuesday", 1));
    store.add(meeting("wednesday", 2));
    list->SetDateScope(monday, monday.plus_days(7));
    EXPECT_TRUE(list->Goto(tuesday));
    EXPECT_EQ(rest_of(*list), "tuesday wednesday ");
    EXPECT_TRUE(list->Goto(outside));
    EXPECT_EQ(rest_of(*list), "outside monday tuesday wednesday ");
}

TEST_F(ActivityTable, StaysOnItsRecordWhenAWalkGoesToTheRecordItIsOn) {
    store.add(meeting("monday"));
    store.add(daily("tuesday", 1));
    list->SetDateScope(monday, monday.plus_days(7));
    std::string names;
    for (; !list->isEOF(); list->MoveNext()) {
        EXPECT_TRUE(list->Goto(text(list->Data(id))));
        names += text(list->Data(regarding)) + " ";
    }
    EXPECT_EQ(names, "monday tuesday ");
}

TEST_F(ActivityTable, GivesTheDetailsOfARecord) {
    store::Activity with = meeting("with");
    with.details = "Bring the slides.";
    store.add(with);
    store.add(meeting("without", 1));
    EXPECT_EQ(list->Data(details), Value(std::string("Bring the slides.")));
    list->MoveNext();
    EXPECT_EQ(list->Data(details), Value(std::string()));
}

TEST_F(ActivityTable, TellsASeries) {
    store::Activity series = daily("series");
    series.recurrence = {.kind = RecurrenceKind::weekdays_of_month,
                         .frequency = 3,
                         .until = DateTime::of(2025, 6, 30),
                         .days_of_week = 0x42,
                         .weeks_of_month = 0x11,
                         .days_of_month = 0x40000001};
    store.add(series);
    store.add(daily("endless", 1));
    store.add(meeting("plain", 2));
    EXPECT_TRUE(list->isRecurring());
    EXPECT_EQ(list->recurringType(), RecurrenceKind::weekdays_of_month);
    EXPECT_EQ(list->GetRecurringFrequency(), 3);
    EXPECT_EQ(list->GetRecurringUntilDate(), DateTime::of(2025, 6, 30));
    EXPECT_EQ(list->GetDaysOfWeekBits(), 0x42);
    EXPECT_EQ(list->GetWeeksOfMonthBits(), 0x11);
    EXPECT_EQ(list->GetDaysOfMonthBits(), 0x40000001);
    list->MoveNext();
    EXPECT_EQ(list->recurringType(), RecurrenceKind::daily);
    EXPECT_EQ(list->GetRecurringUntilDate(), DateTime::of(2099, 12, 31));
    EXPECT_EQ(list->GetRecurringFrequency(), 1);
    list->MoveNext();
    EXPECT_FALSE(list->isRecurring());
    EXPECT_EQ(list->recurringType(), RecurrenceKind::none);
}

TEST_F(ActivityTable, ReadsTheStoreAfreshOnRebuild) {
    store.add(meeting("monday"));
    EXPECT_EQ(rest_of(*list), "monday ");
    store.add(meeting("sunday", -1));
    file.now = file.now.plus_minutes(1);
    const std::string changed = store.add(meeting("tuesday", 1));
    list->Rebuild();
    EXPECT_EQ(rest_of(*list), "sunday monday tuesday ");
    list->Goto(changed);
    EXPECT_EQ(list->Data(edited), Value(file.now));
}

TEST_F(ActivityTable, TellsTheFirstCharacterThatAllIdsHaveInCommon) {
    EXPECT_EQ(list->FirstCharacterOfIds(), 'A');
    store.add(meeting("own"));
    EXPECT_EQ(list->FirstCharacterOfIds(), 'A');
    store::Activity imported = meeting("imported");
    imported.id = "00000001A000";
    store.add(imported);
    EXPECT_FALSE(list->FirstCharacterOfIds());
    store.remove_activity(imported.id);
    EXPECT_EQ(list->FirstCharacterOfIds(), 'A');
}

TEST_F(ActivityTable, TellsWhichIdsAreGoneSinceAMoment) {
    const std::string kept = store.add(meeting("kept")), gone = store.add(meeting("gone"));
    list->Rebuild();
    const std::int64_t moment = database->Moment();
    store.remove_activity(gone);
    using Ids = std::vector<std::string_view>;
    EXPECT_EQ(list->IdsGoneSince(Ids{kept, gone}, moment), Ids{gone});
    EXPECT_FALSE(list->IdsGoneSince(Ids{kept, gone}, moment - 10)) << "before the database was opened";
}

TEST_F(ActivityTable, GivesEachFieldOfTheTableOfFields) {
    for (const bool is_series : {false, true}) {
        store::Activity full = support::full_activity();
        if (is_series) {
            full.id = "0000000002A ";
            full.recurrence.kind = RecurrenceKind::daily;
        } else {
            store.add(store::User{.id = full.user, .name = "Ann"});
            store.add(store::Group{.id = full.group, .name = "Board"});
            for (const std::string& contact : full.contacts)
                store.add(store::Contact{.id = contact});
        }
        file.now = full.edited;
        store.add(full);
        ASSERT_TRUE(list->Goto(full.id));
        for (const auto& field : support::fields_of_full_activity()) {
            if (field.number != id) {
                EXPECT_EQ(list->Data(field.number), field.value) << field.number;
            }
        }
        EXPECT_EQ(list->Data(id), Value(full.id));
    }
}
