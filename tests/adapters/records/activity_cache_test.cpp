#include "adapters/records/activity_cache.h"

#include "records_fixture.h"

#include <functional>
#include <map>

using records::ActivityCache;
using records::Scope;
using store::ActivityEntry;
using store::ActivityKey;
using store::ActivityRow;
using store::Id;
using support::daily;
using support::meeting;
using support::monday;

namespace {

// Hands reading on and counts it.
class CountedReading final : public store::ActivityReading {
public:
    explicit CountedReading(store::ActivityReading& reading) : reading_(reading) {}
    std::map<std::string, int> calls;

    void each_entry(const std::function<void(const ActivityEntry&)>& take) override {
        ++calls["each_entry"], reading_.each_entry(take);
    }
    void each_edited(values::DateTime since, const std::function<void(const ActivityEntry&)>& take) override {
        ++calls["each_edited"], reading_.each_edited(since, take);
    }
    void each_series(values::DateTime from, values::DateTime to,
                     const std::function<void(ActivityRow&&)>& take) override {
        ++calls["each_series"], reading_.each_series(from, to, take);
    }
    void each_in_scope(values::DateTime from, values::DateTime to,
                       const std::function<void(ActivityRow&&)>& take) override {
        ++calls["each_in_scope"], reading_.each_in_scope(from, to, take);
    }
    void each_from(const ActivityKey& first, int count, const std::function<void(ActivityRow&&)>& take) override {
        ++calls["each_from"], reading_.each_from(first, count, take);
    }
    void each_exception(const std::function<void(const Id&, values::DateTime)>& take) override {
        ++calls["each_exception"], reading_.each_exception(take);
    }
    bool has_own_ids_alone() override { return ++calls["has_own_ids_alone"], reading_.has_own_ids_alone(); }
    std::optional<ActivityRow> row(const Id& id) override { return ++calls["row"], reading_.row(id); }
    std::vector<values::DateTime> exceptions(const Id& id) override {
        return ++calls["exceptions"], reading_.exceptions(id);
    }
    std::string details(const Id& id) override { return ++calls["details"], reading_.details(id); }
    std::vector<std::string> contacts(const Id& id) override { return ++calls["contacts"], reading_.contacts(id); }
    std::optional<std::vector<std::string>> contact_fields(const Id& id, const std::vector<int>& fields) override {
        return ++calls["contact_fields"], reading_.contact_fields(id, fields);
    }
    store::ActivityChanges changes_since(std::int64_t revision) override {
        return ++calls["changes_since"], reading_.changes_since(revision);
    }

private:
    store::ActivityReading& reading_;
};

using Calls = std::map<std::string, int>;

class Cache : public testing::Test {
protected:
    support::TemporaryDatabase file;
    store::Store& store = file.store();
    CountedReading reading{store.reading()};
    ActivityCache cache{reading};
    const Scope week{.from = monday.seconds(), .to = monday.plus_days(7).seconds()};

    // The subjects of a walk, each record's row read.
    std::string walk(const std::optional<Scope>& scope) {
        std::string names;
        ActivityCache::Hint hint = 0;
        const ActivityEntry* entry = cache.first(scope, hint);
        while (entry) {
            const ActivityEntry here = *entry;
            names += cache.row(here)->regarding + " ";
            entry = cache.next(here.key, scope, hint);
        }
        return names;
    }
    const records::SeriesDates week_of_series{.from = week.from, .to = monday.plus_days(6).seconds()};
    std::string series_of(const records::SeriesDates& dates) {
        std::string names;
        for (const auto& row : cache.series(dates))
            names += row->regarding + " ";
        return names;
    }
    void take_in_changes_since(std::int64_t revision) { cache.take_in(store.reading().changes_since(revision)); }
};

} // namespace

TEST_F(Cache, ReadsAScopeOnce) {
    store.add(meeting("first"));
    store.add(daily("second", 1));
    EXPECT_EQ(walk(week), "first second ");
    EXPECT_EQ(walk(week), "first second ");
    EXPECT_EQ(walk(Scope{.from = monday.plus_days(1).seconds(), .to = monday.plus_days(2).seconds()}), "second ");
    EXPECT_EQ(reading.calls, (Calls{{"each_in_scope", 1}}));
}

TEST_F(Cache, JoinsScopesThatTouch) {
    store.add(meeting("monday"));
    store.add(meeting("next-monday", 7));
    walk(week);
    walk(Scope{.from = week.to, .to = monday.plus_days(14).seconds()});
    EXPECT_EQ(walk(Scope{.from = week.from, .to = monday.plus_days(14).seconds()}), "monday next-monday ");
    EXPECT_EQ(reading.calls, (Calls{{"each_in_scope", 2}}));
}

TEST_F(Cache, WalksTheWholeListByItsEntriesAlone) {
    store.together([&] {
        for (int i = 0; i < 1000; ++i)
            store.add(i % 10 == 0 ? daily("series", i) : meeting("plain", i));
    });
    int series = 0, all = 0;
    ActivityCache::Hint hint = 0;
    for (const ActivityEntry* entry = cache.first({}, hint); entry;
         entry = cache.next(ActivityKey(entry->key), {}, hint)) {
        series += entry->recurring;
        ++all;
    }
    EXPECT_EQ(all, 1000);
    EXPECT_EQ(series, 100);
    EXPECT_EQ(reading.calls, (Calls{{"each_entry", 1}}));
}

TEST_F(Cache, ReadsTheSeriesOfSomeDatesOnceAndInOrder) {
    store.add(daily("second", 3));
    store.add(meeting("plain", 1));
    store.add(daily("first", 1));
    store.add(daily("later", 7));
    EXPECT_EQ(series_of(week_of_series), "first second ");
    EXPECT_EQ(series_of(week_of_series), "first second ");
    EXPECT_EQ(reading.calls, (Calls{{"each_series", 1}}));
    EXPECT_EQ(series_of({.from = week.to, .to = week.to + 86400}), "first second later ");
}

TEST_F(Cache, TakesChangesOfTheSeriesInWithoutReadingAgain) {
    const std::string removed = store.add(daily("removed")), ended = store.add(daily("ended"));
    const std::string moved = store.add(daily("moved", 20));
    series_of(week_of_series);
    reading.calls.clear();
    const std::int64_t before = store.revision();
    store.remove_activity(removed);
    store::Activity activity = *store.activity(ended);
    activity.recurrence.until = monday.plus_days(-1);
    store.update(activity);
    activity = *store.activity(moved);
    activity.start = monday.plus_days(1);
    store.update(activity);
    store.add(daily("new"));
    take_in_changes_since(before);
    EXPECT_EQ(series_of(week_of_series), "new moved ");
    EXPECT_EQ(reading.calls, Calls{});
}

TEST_F(Cache, TellsWhatWasEditedSinceAsOfTheLastChangeTakenIn) {
    const std::int64_t long_ago = monday.plus_days(-40000).seconds();
    store.add(meeting("first"));
    EXPECT_EQ(cache.edited_since(long_ago).size(), 1u);
    const std::int64_t before = store.revision();
    store.add(meeting("second", 1));
    EXPECT_EQ(cache.edited_since(long_ago).size(), 1u);
    EXPECT_EQ(reading.calls, (Calls{{"each_edited", 1}}));
    take_in_changes_since(before);
    EXPECT_EQ(cache.edited_since(long_ago).size(), 2u);
    EXPECT_TRUE(cache.edited_since(monday.plus_days(100000).seconds()).empty());
}

TEST_F(Cache, KnowsWhetherAllIdsAreTheStoresOwn) {
    store.add(meeting("own"));
    EXPECT_TRUE(cache.has_own_ids_alone());
    std::int64_t before = store.revision();
    store.add(meeting("own too"));
    take_in_changes_since(before);
    EXPECT_TRUE(cache.has_own_ids_alone());
    EXPECT_EQ(reading.calls, (Calls{{"has_own_ids_alone", 1}}));
    before = store.revision();
    store::Activity imported = meeting("imported");
    imported.id = "99887766554 ";
    store.add(imported);
    take_in_changes_since(before);
    EXPECT_FALSE(cache.has_own_ids_alone());
}

TEST_F(Cache, ReadsTheRowsOfAWholeListInBlocks) {
    store.together([&] {
        for (int i = 0; i < 1000; ++i)
            store.add(meeting("p", i));
    });
    walk({});
    EXPECT_EQ(reading.calls, (Calls{{"each_entry", 1}, {"each_from", 4}}));
}

TEST_F(Cache, ReadsExceptionsAtOnceAndDetailsOnce) {
    store::Activity with_details = daily("series");
    with_details.details = "Long";
    with_details.exceptions = {monday.plus_days(2)};
    const Id id(store.add(with_details)), other(store.add(daily("other")));
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(cache.exceptions(id), std::vector<values::DateTime>{monday.plus_days(2)});
        EXPECT_TRUE(cache.exceptions(other).empty());
        EXPECT_EQ(cache.details(id), "Long");
    }
    EXPECT_EQ(reading.calls, (Calls{{"each_exception", 1}, {"details", 1}}));
}

TEST_F(Cache, TakesASeriesOutThatBecamePlainOrWasReadAnew) {
    store::Activity changed = *store.activity(store.add(daily("series")));
    const Id other(store.add(daily("other", 1)));
    EXPECT_EQ(series_of(week_of_series), "series other ");
    walk(week);
    EXPECT_EQ(series_of(week_of_series), "series other ");
    const std::int64_t before = store.revision();
    changed.recurrence = {};
    store.update(changed);
    take_in_changes_since(before);
    EXPECT_EQ(series_of(week_of_series), "other ");
    EXPECT_EQ(walk(week), "series other ");
}

TEST_F(Cache, FindsARecordOnceAndNoneThatThereIsNot) {
    const Id id(store.add(meeting("monday")));
    EXPECT_EQ(cache.find(id)->regarding, "monday");
    EXPECT_EQ(cache.find(id)->regarding, "monday");
    EXPECT_EQ(cache.find(Id("A99999999999")), nullptr);
    EXPECT_EQ(reading.calls, (Calls{{"row", 2}}));
}

TEST_F(Cache, TakesChangesInWithoutReadingAgain) {
    const std::string removed = store.add(meeting("removed"));
    const std::string changed = store.add(meeting("changed", 1));
    const std::string moved_out = store.add(meeting("moved-out", 2)), series = store.add(daily("series", 3));
    const std::string moved_in = store.add(meeting("moved-in", 30));
    walk({});
    walk(week);
    series_of({.from = week.from, .to = monday.plus_days(50).seconds()});
    cache.exceptions(Id(series));
    reading.calls.clear();

    const std::int64_t before = store.revision();
    const auto change = [&](const std::string& id, const std::string& name, int day) {
        store::Activity activity = *store.activity(id);
        activity.regarding = name;
        activity.start = monday.plus_days(day);
        store.update(activity);
    };
    store.remove_activity(removed);
    change(changed, "changed-indeed", 1);
    change(moved_out, "moved-out", 20);
    change(moved_in, "moved-in", 4);
    store.add(meeting("new", 5));
    store.add(daily("new-series", 40));
    store.add_exception(series, monday.plus_days(4));
    take_in_changes_since(before);

    EXPECT_EQ(walk(week), "changed-indeed series moved-in new ");
    EXPECT_EQ(walk({}), "changed-indeed series moved-in new moved-out new-series ");
    EXPECT_EQ(cache.exceptions(Id(series)), std::vector<values::DateTime>{monday.plus_days(4)});
    EXPECT_EQ(reading.calls.count("each_entry"), 0u);
    EXPECT_EQ(reading.calls.count("each_in_scope"), 0u);
    EXPECT_EQ(reading.calls.count("each_from"), 0u);
    EXPECT_EQ(reading.calls.count("row"), 0u);
}

TEST_F(Cache, TakesTheSameChangesTwiceWithoutHarm) {
    store.add(meeting("first"));
    const std::string removed = store.add(meeting("removed"));
    walk({});
    const std::int64_t before = store.revision();
    store.add(meeting("second", 1));
    store.remove_activity(removed);
    take_in_changes_since(before);
    take_in_changes_since(before);
    EXPECT_EQ(walk({}), "first second ");
}

TEST_F(Cache, ForgetsTheDetailsOfAChangedRecord) {
    store::Activity activity = meeting("monday");
    activity.details = "Old";
    activity = *store.activity(store.add(activity));
    const Id id(activity.id);
    EXPECT_EQ(cache.details(id), "Old");
    const std::int64_t before = store.revision();
    activity.details = "New";
    store.update(activity);
    take_in_changes_since(before);
    EXPECT_EQ(cache.details(id), "New");
}

TEST_F(Cache, KeepsARecordOnceThatMovedBetweenTwoReadings) {
    store::Activity activity = *store.activity(store.add(meeting("moving")));
    walk(week);
    activity.start = monday.plus_days(9);
    store.update(activity);
    // Read again under its new start before anybody told of the change.
    EXPECT_EQ(walk(Scope{.from = week.to, .to = monday.plus_days(14).seconds()}), "moving ");
    EXPECT_EQ(walk(week), "");
}

TEST_F(Cache, ReadsAfreshWhenItHasForgottenAll) {
    store.add(meeting("monday"));
    walk(week);
    walk({});
    cache.forget_all();
    EXPECT_EQ(walk(week), "monday ");
    EXPECT_EQ(walk({}), "monday ");
    EXPECT_EQ(reading.calls["each_in_scope"], 2);
    EXPECT_EQ(reading.calls["each_entry"], 2);
}
