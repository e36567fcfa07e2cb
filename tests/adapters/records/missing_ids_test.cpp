#include "adapters/records/desk_database.h"
#include "core/engine/engine_world.h"
#include "support/recording_act.h"
#include "support/temporary_database.h"

#include <gtest/gtest.h>

#include <optional>
#include <random>
#include <string>
#include <vector>

// A quick refresh finds out by itself which displayed activities are missing, or lets the list tell. Both are to
// give the same, whatever the ids are.
namespace {

using values::DateTime;

// A list that can be told to keep to itself what only walks tell.
class ReticentList final : public support::RecordingActivity {
public:
    ReticentList(std::unique_ptr<act::Activity> real, support::CallRecord& record, const bool& tells)
        : RecordingActivity(std::move(real), record), tells_(tells) {}
    std::optional<std::vector<std::string_view>> IdsGoneSince(std::span<const std::string_view> ids,
                                                              std::int64_t moment) override {
        return tells_ ? RecordingActivity::IdsGoneSince(ids, moment) : std::nullopt;
    }
    std::optional<char> FirstCharacterOfIds() override {
        return tells_ ? RecordingActivity::FirstCharacterOfIds() : std::nullopt;
    }

private:
    const bool& tells_;
};

class MissingIds : public testing::Test, protected support::EngineWorld {
protected:
    void open_database() {
        open_week();
        session.ActDatabase = records::make_database([this] { return file.path(); });
        session.ActDatabase->OpenEx("");
        session.ActContact = session.ActDatabase->Contact();
        session.ActActivity = std::make_unique<ReticentList>(session.ActDatabase->Activity(), record, tells);
    }
    bool is_told() {
        const auto first = session.ActActivity->FirstCharacterOfIds();
        const auto ids = first ? engine.placing.DisplayedIDs.one_by_one(*first) : std::nullopt;
        return ids && session.ActActivity->IdsGoneSince(*ids, engine.placing.displayed_from);
    }
    std::string found(bool told) {
        tells = told;
        std::string result = engine.quick_refresh.Find_New(engine.placing.LastRefresh);
        tells = true;
        return result;
    }
    // On a day from a week before the shown one to a week after it, sometimes a series.
    store::Activity any_activity() {
        store::Activity activity{.type = any(3) == 0 ? store::ActivityType::call : store::ActivityType::meeting,
                                 .start = DateTime::of(2024, 1, 1).plus_days(any(20)).plus_minutes(60 * 9)};
        if (any(4) == 0)
            activity.recurrence.kind = store::RecurrenceKind::weekly, activity.recurrence.days_of_week = any(128);
        return activity;
    }
    // Of few characters, so that it stands in the displayed ids by chance, across borders too.
    std::string foreign_id() {
        const std::string text = engine.placing.DisplayedIDs.text();
        if (text.size() > 24)
            return text.substr(static_cast<std::size_t>(any(static_cast<int>(text.size()) - 12)), 12);
        std::string id;
        for (int at = 0; at < 12; ++at)
            id += "AB"[any(2)];
        return id;
    }
    void change_something() {
        const auto all = file.store().activities({});
        const auto one_of_them = [&] { return all[static_cast<std::size_t>(any(static_cast<int>(all.size())))]; };
        switch (all.empty() ? 0 : any(6)) {
        case 0:
        case 1: {
            file.store().add(any_activity());
            break;
        }
        case 2: {
            store::Activity foreign = any_activity();
            foreign.id = foreign_id();
            if (any(8) == 0 && foreign.id.find_first_not_of(' ') != foreign.id.npos &&
                !file.store().activity(foreign.id))
                file.store().add(foreign);
            break;
        }
        case 3: {
            store::Activity moved = one_of_them();
            moved.start = any_activity().start;
            moved.type = any_activity().type;
            file.store().update(moved);
            break;
        }
        default:
            file.store().remove_activity(one_of_them().id);
        }
    }
    void remove_foreign_activities() {
        for (const store::Activity& one : file.store().activities({}))
            if (one.id.front() != 'A' || one.id.find('A', 1) != one.id.npos)
                file.store().remove_activity(one.id);
    }
    const DateTime before_refresh = DateTime::of(2024, 1, 9), after_refresh = DateTime::of(2024, 1, 11);
    int any(int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); }

    support::TemporaryDatabase file;
    support::CallRecord record;
    bool tells = true;
    std::minstd_rand random{3};
};

} // namespace

TEST_F(MissingIds, AreTheSameWithTheWalkAndWithoutIt) {
    open_database();
    int told = 0, told_of_some = 0, walked = 0;
    for (int round = 0; round < 150; ++round) {
        if (round % 10 == 0)
            remove_foreign_activities();
        set("Filters", "Type0", std::to_string(any(2)));
        engine.refresh.CheckRecurring = any(3) > 0; // else the list keeps its date scope
        engine.refresh.Refresh_Data();
        file.now = round % 2 == 0 ? before_refresh : after_refresh; // after it, a changed one is found first
        for (int change = 0; change < 8; ++change) {
            change_something();
            const std::string by_walk = found(false);
            ASSERT_EQ(found(true), by_walk) << "in round " << round;
            if (is_told())
                ++told, told_of_some += file.now == before_refresh && !by_walk.empty();
            else
                ++walked;
        }
    }
    EXPECT_GT(told, 100);
    EXPECT_GT(told_of_some, 50);
    EXPECT_GT(walked, 100);
}

TEST_F(MissingIds, AreWhatTheWalkLeavesOfOverlappingIds) {
    const auto add = [&](const std::string& id, int day) {
        file.store().add(store::Activity{.id = id, .start = DateTime::of(2024, 1, day, 9)});
    };
    add("111111222222", 8);
    add("333333444444", 9);
    file.now = before_refresh;
    open_database();
    engine.refresh.Refresh_Data();
    ASSERT_EQ(displayed(), "111111222222333333444444");
    file.store().remove_activity("111111222222");
    file.store().remove_activity("333333444444");
    add("222222333333", 9);
    EXPECT_FALSE(is_told());
    EXPECT_EQ(found(true), "111111444444");
    EXPECT_EQ(found(false), "111111444444");
}
