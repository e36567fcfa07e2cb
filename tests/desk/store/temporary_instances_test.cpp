#include "desk/store/temporary_instances.h"

#include "desk/store/child_process.h"
#include "support/temporary_database.h"

#include <gtest/gtest.h>

using store::Activity;
using store::Store;
using support::ChildProcess;
using values::DateTime;
using Ids = std::vector<std::string>;

namespace {

const DateTime day = DateTime::of(2024, 3, 13);

// A daily series, and what a process did to its occurrence of the 13th before it was killed.
class TemporaryInstances : public testing::Test {
protected:
    TemporaryInstances() {
        series = database.store().add(Activity{.regarding = "Daily round",
                                               .start = DateTime::of(2024, 3, 11, 9),
                                               .end = DateTime::of(2024, 3, 11, 10),
                                               .duration = 60,
                                               .recurrence = {.kind = store::RecurrenceKind::daily}});
        database.close();
    }

    std::string begin_making(Store& store) const {
        std::string id;
        store.together([&] {
            id = store.add(Activity{.regarding = "Daily round", .start = day.plus_minutes(540)});
            store.temporary_instances().remember({.instance = id, .series = series, .day = day});
        });
        return id;
    }
    std::string make(Store& store) const {
        std::string id = begin_making(store);
        store.add_exception(series, day);
        store.temporary_instances().settle(id);
        return id;
    }
    // Runs it in a process that is killed afterwards; gives the instance that it reports.
    template <typename Work>
    std::string in_a_killed_process(Work work) {
        ChildProcess calendar([&](ChildProcess::Report report) {
            report(work(*Store::open(database.path())));
            ::pause();
        });
        std::string id = calendar.read();
        calendar.kill();
        return id;
    }
    static Ids left_in(Store& store) {
        Ids ids;
        for (const auto& one : store.temporary_instances().take_back_abandoned())
            ids.push_back(one.instance);
        return ids;
    }
    std::size_t exceptions_in(Store& store) const { return store.activity(series)->exceptions.size(); }

    support::TemporaryDatabase database;
    std::string series;
};

TEST_F(TemporaryInstances, OfADeadProcessAreTakenBackOnceWhenNobodyChangedThem) {
    const std::string id = in_a_killed_process([&](Store& store) { return make(store); });
    const auto store = database.open_again();
    ASSERT_TRUE(store->activity(id));
    EXPECT_EQ(left_in(*store), Ids{});
    EXPECT_FALSE(store->activity(id));
    EXPECT_EQ(exceptions_in(*store), 0U);
    store->add_exception(series, day);
    EXPECT_EQ(left_in(*store), Ids{});
    EXPECT_EQ(exceptions_in(*store), 1U) << "it was forgotten";
}

TEST_F(TemporaryInstances, OfADeadProcessStayAndAreToldOnceWhenTheyWereChanged) {
    const std::string id = in_a_killed_process([&](Store& store) { return make(store); });
    const auto store = database.open_again();
    Activity changed = *store->activity(id);
    changed.regarding = "Without the boss";
    store->update(changed);
    EXPECT_EQ(left_in(*store), Ids{id});
    EXPECT_TRUE(store->activity(id));
    EXPECT_EQ(exceptions_in(*store), 1U);
    EXPECT_EQ(left_in(*store), Ids{});
}

TEST_F(TemporaryInstances, ThatWereNotYetMadeAreTakenBackHoweverFarTheirProcessCame) {
    const std::string id = in_a_killed_process([&](Store& store) { return begin_making(store); });
    const auto store = database.open_again();
    Activity half_made = *store->activity(id);
    half_made.regarding = "Daily r";
    store->update(half_made);
    EXPECT_EQ(left_in(*store), Ids{});
    EXPECT_FALSE(store->activity(id));
    EXPECT_EQ(exceptions_in(*store), 0U);
}

TEST_F(TemporaryInstances, ThatWereDeletedBeforeTheirProcessDiedGiveTheirOccurrenceBack) {
    in_a_killed_process([&](Store& store) {
        std::string id = make(store);
        store.remove_activity(id);
        return id;
    });
    const auto store = database.open_again();
    EXPECT_EQ(left_in(*store), Ids{});
    EXPECT_EQ(exceptions_in(*store), 0U);
}

TEST_F(TemporaryInstances, WhoseSeriesIsGoneStay) {
    const std::string id = in_a_killed_process([&](Store& store) { return make(store); });
    const auto store = database.open_again();
    store->remove_activity(series);
    EXPECT_EQ(left_in(*store), Ids{id});
    EXPECT_TRUE(store->activity(id));
}

TEST_F(TemporaryInstances, OfALivingProcessAreLeftAlone) {
    ChildProcess calendar([&](ChildProcess::Report report) {
        report(make(*Store::open(database.path())));
        ::pause();
    });
    const std::string id = calendar.read();
    const auto store = database.open_again();
    EXPECT_EQ(left_in(*store), Ids{});
    EXPECT_TRUE(store->activity(id));
    EXPECT_EQ(exceptions_in(*store), 1U);
}

TEST_F(TemporaryInstances, ThatWereKeptOrDroppedAreForgotten) {
    const std::string id = in_a_killed_process([&](Store& store) {
        std::string made = make(store);
        store.temporary_instances().forget(made);
        store.temporary_instances().forget("nobody-knows");
        return made;
    });
    const auto store = database.open_again();
    EXPECT_EQ(left_in(*store), Ids{});
    EXPECT_TRUE(store->activity(id));
    EXPECT_EQ(exceptions_in(*store), 1U);
}

} // namespace
