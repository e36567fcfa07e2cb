#include "adapters/records/cursor.h"

#include "records_fixture.h"

#include <stdexcept>

using records::Cursor;
using records::ListFilters;
using records::SharedStore;
using support::daily;
using support::meeting;
using support::monday;
using values::DateTime;

namespace {

class Cursors : public testing::Test {
protected:
    support::TemporaryDatabase file;
    store::Store& store = file.store();
    std::shared_ptr<SharedStore> session = std::make_shared<SharedStore>(file.open_again(), values::english_us());
    Cursor cursor{session};

    std::string rest() {
        std::string names;
        for (; !cursor.is_at_end(); cursor.to_next())
            names += cursor.row()->regarding + " ";
        return names;
    }
    using Ids = std::vector<std::string>;
    // Where the session can tell.
    Ids gone_since(std::int64_t moment, const Ids& of) {
        const std::vector<std::string_view> ids(of.begin(), of.end());
        const auto gone = cursor.ids_gone_since(ids, moment);
        if (!gone)
            throw std::logic_error("The session can't tell.");
        return Ids(gone->begin(), gone->end());
    }
    static records::Scope days(int from, int to) {
        return {.from = monday.plus_days(from).seconds(), .to = monday.plus_days(to).seconds()};
    }
};

} // namespace

TEST_F(Cursors, WalkTheListByStartAndThenById) {
    store.add(meeting("wednesday", 2));
    store.add(meeting("monday"));
    store.add(daily("monday-too"));
    store.add(meeting("tuesday", 1));
    EXPECT_EQ(rest(), "monday monday-too tuesday wednesday ");
    cursor.to_first();
    EXPECT_EQ(cursor.row()->regarding, "monday");
}

TEST_F(Cursors, WalkActivitiesWithoutAStartFirst) {
    store.add(meeting("dated"));
    store::Activity undated = meeting("undated");
    undated.start.reset();
    store.add(undated);
    EXPECT_EQ(rest(), "undated dated ");
    cursor.set_filters({.scope = days(-1000, 1000)});
    EXPECT_EQ(rest(), "dated ");
}

TEST_F(Cursors, WalkAScopeWithItsBeginningButNotItsEnd) {
    store.add(meeting("sunday", -1, 23));
    store.add(meeting("first", 0, 0));
    store.add(daily("last", 6, 23));
    store.add(meeting("after", 7, 0));
    cursor.set_filters({.scope = days(0, 7)});
    EXPECT_EQ(rest(), "first last ");
    cursor.set_filters({});
    EXPECT_EQ(rest(), "sunday first last after ");
}

TEST_F(Cursors, AreAtTheEndOfAnEmptyScope) {
    store.add(meeting("monday"));
    cursor.set_filters({.scope = days(3, 3)});
    EXPECT_TRUE(cursor.is_at_end());
    cursor.set_filters({.scope = days(5, 1)});
    EXPECT_TRUE(cursor.is_at_end());
    EXPECT_EQ(cursor.entry(), nullptr);
    EXPECT_EQ(cursor.row(), nullptr);
}

TEST_F(Cursors, WalkScopesThatOverlapEachOther) {
    for (int day = 0; day < 6; ++day)
        store.add(meeting(std::to_string(day), day));
    cursor.set_filters({.scope = days(1, 3)});
    EXPECT_EQ(rest(), "1 2 ");
    cursor.set_filters({.scope = days(4, 5)});
    EXPECT_EQ(rest(), "4 ");
    cursor.set_filters({.scope = days(0, 6)});
    EXPECT_EQ(rest(), "0 1 2 3 4 5 ");
    cursor.set_filters({.scope = days(2, 5)});
    EXPECT_EQ(rest(), "2 3 4 ");
}

TEST_F(Cursors, KeepOutWhatTheFiltersSay) {
    store::Activity call = meeting("call");
    call.type = store::ActivityType::call;
    call.priority = store::Priority::high;
    store.add(call);
    store::Activity cleared = daily("cleared");
    cleared.cleared = true;
    cleared.priority = store::Priority::medium;
    store.add(cleared);
    store.add(meeting("meeting"));
    for (const auto& scope : {std::optional<records::Scope>(), std::optional(days(0, 7))}) {
        cursor.set_filters({.scope = scope, .without_types = {act::ActivityType::call}});
        EXPECT_EQ(rest(), "cleared meeting ");
        cursor.set_filters({.scope = scope, .without_priorities = {act::Priority::high, act::Priority::low}});
        EXPECT_EQ(rest(), "cleared ");
        cursor.set_filters({.scope = scope, .without_cleared = true});
        EXPECT_EQ(rest(), "call meeting ");
        cursor.set_filters(
            {.scope = scope, .without_types = {act::ActivityType::call, act::ActivityType::meeting}});
        EXPECT_EQ(rest(), "");
    }
}

TEST_F(Cursors, GoToARecordOutsideTheFiltersAndOnBehindIt) {
    store.add(meeting("monday"));
    const std::string tuesday = store.add(daily("tuesday", 1));
    store.add(meeting("wednesday", 2));
    store::Activity call = meeting("thursday", 3);
    call.type = store::ActivityType::call;
    const std::string thursday = store.add(call);
    store.add(meeting("friday", 4));
    cursor.set_filters({.scope = days(2, 5), .without_types = {act::ActivityType::call}});
    EXPECT_TRUE(cursor.go_to(tuesday));
    EXPECT_EQ(cursor.row()->regarding, "tuesday");
    cursor.to_next();
    EXPECT_EQ(cursor.row()->regarding, "wednesday");
    EXPECT_TRUE(cursor.go_to(thursday));
    cursor.to_next();
    EXPECT_EQ(cursor.row()->regarding, "friday");
    cursor.set_filters({});
    EXPECT_TRUE(cursor.go_to(thursday));
    cursor.to_next();
    EXPECT_EQ(rest(), "friday ");
}

TEST_F(Cursors, AreNowhereAfterARecordThatThereIsNot) {
    const std::string id = store.add(meeting("monday"));
    for (const std::string& wrong : {std::string("A99999999999"), std::string(), id + "X", id.substr(0, 5)}) {
        ASSERT_TRUE(cursor.go_to(id));
        EXPECT_FALSE(cursor.go_to(wrong));
        EXPECT_EQ(cursor.entry(), nullptr);
        EXPECT_TRUE(cursor.is_at_end());
        cursor.to_next();
        EXPECT_TRUE(cursor.is_at_end());
    }
    cursor.to_first();
    EXPECT_EQ(rest(), "monday ");
}

TEST_F(Cursors, FindAnIdThatLostItsTrailingBlank) {
    store::Activity imported = meeting("imported");
    imported.id = "99887766554 ";
    store.add(imported);
    EXPECT_TRUE(cursor.go_to("99887766554"));
    EXPECT_EQ(cursor.entry()->key.id.text(), "99887766554 ");
}

TEST_F(Cursors, SeeWhatAnotherProcessDidWhenTheyStartAgain) {
    const std::string gone = store.add(meeting("gone"));
    const std::string moved = store.add(meeting("moved", 1));
    store.add(meeting("stays", 2));
    for (const auto& scope : {std::optional<records::Scope>(), std::optional(days(0, 7))}) {
        cursor.set_filters({.scope = scope});
        EXPECT_EQ(rest(), "gone moved stays ");
    }
    store.remove_activity(gone);
    store::Activity activity = *store.activity(moved);
    activity.start = monday.plus_days(3);
    store.update(activity);
    store.add(daily("new", 4));
    for (const auto& scope : {std::optional<records::Scope>(), std::optional(days(0, 7))}) {
        cursor.set_filters({.scope = scope});
        EXPECT_EQ(rest(), "stays moved new ");
    }
}

TEST_F(Cursors, WalkOnRightlyWhenTheListChangesRoundThem) {
    const std::string first = store.add(meeting("first"));
    store.add(meeting("second", 1));
    store.add(meeting("third", 2));
    for (const auto& scope : {std::optional<records::Scope>(), std::optional(days(0, 7))}) {
        cursor.set_filters({.scope = scope});
        cursor.to_next();
        ASSERT_EQ(cursor.row()->regarding, "second");
        const std::string before = store.add(meeting("before", 0, 12)),
                          behind = store.add(meeting("behind", 1, 12));
        session->catch_up();
        cursor.to_next();
        EXPECT_EQ(rest(), "behind third ");
        store.remove_activity(before);
        store.remove_activity(behind);
    }
    cursor.set_filters({});
    ASSERT_EQ(cursor.row()->regarding, "first");
    store.remove_activity(first);
    session->catch_up();
    cursor.to_next();
    EXPECT_EQ(rest(), "second third ");
}

TEST_F(Cursors, GiveNoRowWhenTheRecordWasDeletedUnderThem) {
    const std::string id = store.add(meeting("monday"));
    ASSERT_NE(cursor.entry(), nullptr);
    store.remove_activity(id);
    session->catch_up();
    EXPECT_EQ(cursor.row(), nullptr);
    EXPECT_EQ(cursor.entry()->key.id.text(), id);
}

TEST_F(Cursors, NoticeOnGoingToTheSameRecordAgainThatItWasDeleted) {
    const std::string id = store.add(meeting("monday"));
    ASSERT_TRUE(cursor.go_to(id));
    store.remove_activity(id);
    EXPECT_FALSE(cursor.go_to(id));
}

TEST_F(Cursors, StandBehindARecordThatWasRemoved) {
    store.add(meeting("first"));
    store.add(meeting("second", 1));
    ASSERT_EQ(cursor.row()->regarding, "first");
    cursor.record_was_removed();
    EXPECT_EQ(cursor.entry(), nullptr);
    EXPECT_FALSE(cursor.is_at_end());
    cursor.to_next();
    EXPECT_EQ(cursor.row()->regarding, "second");
}

TEST_F(Cursors, SkipToTheSeriesOfSomeDatesInsideTheFilters) {
    store.add(meeting("plain"));
    store.add(daily("first", 1));
    store::Activity call = daily("call", 2);
    call.type = store::ActivityType::call;
    store.add(call);
    store.add(daily("second", 3));
    store.add(meeting("between", 4));
    store.add(daily("last", 5));
    store.add(daily("too-late", 9));
    const records::SeriesDates week{.from = monday.seconds(), .to = monday.plus_days(6).seconds()};
    const auto series = [&] {
        std::string names;
        for (cursor.to_series(week); !cursor.is_at_end(); cursor.to_next(), cursor.to_series(week))
            names += cursor.row()->regarding + " ";
        return names;
    };
    cursor.set_filters({.without_types = {act::ActivityType::call}});
    EXPECT_EQ(series(), "first second last ");
    cursor.set_filters({.scope = days(2, 5)});
    EXPECT_EQ(series(), "call second ");
    cursor.set_filters({});
    cursor.to_next();
    cursor.to_next();
    EXPECT_EQ(cursor.row()->regarding, "call");
    EXPECT_EQ(series(), "call second last ") << "the current record counts";
    cursor.to_series(week);
    EXPECT_TRUE(cursor.is_at_end());
}

TEST_F(Cursors, SkipFromAPlainRecordAndWalkOnBehindASeries) {
    store.add(meeting("plain"));
    store.add(daily("series", 1));
    store.add(meeting("behind", 2));
    ASSERT_EQ(cursor.row()->regarding, "plain");
    cursor.to_series({.from = monday.seconds(), .to = monday.plus_days(6).seconds()});
    EXPECT_EQ(rest(), "series behind ");
}

TEST_F(Cursors, SkipToWhatWasEditedSince) {
    DateTime now = monday;
    const auto clocked = store::Store::open(file.path(), [&] { return now; });
    clocked->add(meeting("before"));
    now = monday.plus_minutes(1);
    clocked->add(meeting("later", 3));
    clocked->add(meeting("earlier", 1));
    std::string names;
    for (cursor.to_edited(monday.seconds()); !cursor.is_at_end();
         cursor.to_next(), cursor.to_edited(monday.seconds()))
        names += cursor.row()->regarding + " ";
    EXPECT_EQ(names, "earlier later ");
}

TEST_F(Cursors, TellWhichIdsTheListHoldsNoLonger) {
    const std::string plain = store.add(meeting("plain")), gone = store.add(meeting("gone"));
    const std::string series = store.add(daily("series", 2));
    session->catch_up();
    const std::int64_t moment = session->moment();
    EXPECT_EQ(gone_since(moment, {}), Ids{});
    EXPECT_EQ(gone_since(moment, {gone, plain, series}), Ids{});
    store.remove_activity(gone);
    EXPECT_EQ(gone_since(moment, {gone, plain, series}), Ids{gone});
    EXPECT_EQ(gone_since(moment, {plain, series}), Ids{});
    EXPECT_EQ(gone_since(session->moment(), {gone, plain}), Ids{});
}

TEST_F(Cursors, TellWhichIdsTheFiltersKeepOutSinceAChange) {
    const std::string plain = store.add(meeting("plain")), other = store.add(meeting("other"));
    session->catch_up();
    const std::int64_t moment = session->moment();
    store::Activity changed = *store.activity(plain);
    changed.type = store::ActivityType::call;
    changed.start = monday.plus_days(2).plus_minutes(600);
    store.update(changed);
    EXPECT_EQ(gone_since(moment, {other, plain}), Ids{});
    cursor.set_filters({.without_types = {act::ActivityType::call}});
    EXPECT_EQ(gone_since(moment, {other, plain}), Ids{plain});
    cursor.set_filters({.scope = days(0, 2)});
    EXPECT_EQ(gone_since(moment, {other, plain}), Ids{plain});
    cursor.set_filters({.scope = days(0, 3)});
    EXPECT_EQ(gone_since(moment, {other, plain}), Ids{});
}

TEST_F(Cursors, TellItOfIdsThatTheStoreDidNotMakeToo) {
    store::Activity imported = meeting("imported");
    imported.id = "00000001A00 ";
    store.add(imported);
    session->catch_up();
    const std::int64_t moment = session->moment();
    store.remove_activity(imported.id);
    EXPECT_EQ(gone_since(moment, {"00000001A00 "}), Ids{"00000001A00 "});
}

TEST_F(Cursors, DoNotTellItOfAMomentBeforeTheyWereOpened) {
    EXPECT_FALSE(cursor.ids_gone_since({}, session->moment() - 1));
}
