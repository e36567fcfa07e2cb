// How long a refresh of a week takes on databases of growing size, beside the least that it can cost in the same
// run.
//
// A full refresh is measured up to the filled slots, with every text composed; drawing them is told by itself.
// "plain" leaves series out, "all" expands them; "first" is the first one after the database was opened, "again"
// finds the store as it was. "quick" is a quick refresh, drawn, after another connection wrote one activity,
// beside a full one with its drawing.
//
// Two floors are taken: "best" reads what placing needs from an index made for it and reckons the days of the
// series, "whole rows" reads every column. Each time is the median of eleven, with the least and the most.

#include "benchmarks/bulk_database.h"
#include "benchmarks/calendar_world.h"
#include "benchmarks/floor.h"
#include "benchmarks/times.h"
#include "support/temporary_folder.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

namespace {

const values::DateTime day = values::DateTime::of(2024, 5, 15);
const values::DateTime first_of_week = values::DateTime::of(2024, 5, 12);

struct Result {
    int activities;
    double first, again;
};

[[noreturn]] void give_up(const char* why) {
    std::fprintf(stderr, "%s; its time means nothing.\n", why);
    std::exit(1);
}

void print(const char* what, const bench::Times& times, double part, const char* of) {
    std::printf("  %-12s %10.3f ms (%.3f..%.3f)  %.3f of %s\n", what, times.median(), times.least(), times.most(),
                times.median() / part, of);
}

// An activity of the week that another process moves from one hour to another and back.
class Mover {
public:
    Mover(const std::string& database, const host::Clock& clock)
        : store_(store::Store::open(database, [&clock] { return clock.now(); })) {
        store::ActivityQuery week;
        week.from = first_of_week;
        week.to = first_of_week.plus_days(7);
        week.without_cleared = true;
        for (const store::Activity& activity : store_->activities(week))
            if (activity.recurrence.kind == store::RecurrenceKind::none)
                id_ = activity.id;
        if (id_.empty())
            give_up("The week holds no plain activity");
    }
    void move() {
        store::Activity activity = *store_->activity(id_);
        at_ten_ = !at_ten_;
        activity.start = activity.start->date().plus_minutes(at_ten_ ? 600 : 840);
        activity.duration = 30;
        activity.end = activity.start->plus_minutes(30);
        store_->update(activity);
        start_ = *activity.start;
    }
    bool is_shown_where_it_was_moved(bench::CalendarWorld& world) const {
        const grid::Layout& layout = world.calendar.layout;
        for (int slot = 0; slot < layout.SlotsCount(); ++slot) {
            const grid::clsMsgSchedSlot& one = layout.Slots(grid::SlotNumber(slot), layout.GetDayCol(start_));
            for (int index = 0; index < one.record_count(); ++index)
                if (one.record(index).InUse && one.record(index).ActivityID == id_ &&
                    one.Time() <= start_.time() && start_.time() < one.Time().plus_minutes(60))
                    return true;
        }
        return false;
    }

private:
    std::unique_ptr<store::Store> store_;
    std::string id_;
    bool at_ten_ = false;
    values::DateTime start_;
};

Result measure(const std::string& database, const support::TemporaryFolder& folder, int activities) {
    bench::Floor floor(database, folder.file("floor.desk"), first_of_week);
    const std::string settings = folder.file("Orvanta.ini");
    bench::Times whole, best, first_plain, again_plain, first_all, again_all, drawing, full, quick;
    std::optional<bench::CalendarWorld> plain, all, changing;
    plain.emplace(database, settings, day).engine.refresh.CheckRecurring = false;
    all.emplace(database, settings, day);
    for (int run = 0; run <= bench::runs; ++run) {
        const auto add = [run](bench::Times& times, double time) {
            if (run > 0)
                times.add(time);
        };
        add(whole, bench::measured([&] { floor.read_whole_rows(); }));
        add(best, bench::measured([&] { floor.read_and_expand(); }));
        {
            bench::CalendarWorld fresh(database, settings, day);
            fresh.engine.refresh.CheckRecurring = false;
            add(first_plain, bench::measured([&] { fresh.fill(); }));
        }
        add(again_plain, bench::measured([&] { plain->fill(); }));
        {
            bench::CalendarWorld fresh(database, settings, day);
            add(first_all, bench::measured([&] { fresh.fill(); }));
            if (fresh.failures() > 0)
                give_up("A refresh showed a failure box");
        }
        add(again_all, bench::measured([&] { all->fill(); }));
        add(drawing, bench::measured([&] { all->draw(); }));
    }
    changing.emplace(database, settings, day);
    changing->calendar.selection.SelectedCell =
        changing->calendar.layout.Cells.reference(1, changing->calendar.layout.FixedCols());
    changing->clock.time = store::wall_clock().plus_minutes(1); // after the moment when the database was filled
    Mover mover(database, changing->clock);
    for (int run = 0; run <= bench::runs; ++run) {
        engine::CalendarEngine& engine = changing->engine;
        engine.refresh.Refresh_Data();
        const double again = bench::measured([&] { engine.refresh.Refresh_Data(); });
        changing->clock.time = changing->clock.time.plus_minutes(1);
        mover.move();
        const double changed = bench::measured([&] { engine.quick_refresh.Add_New(engine.placing.LastRefresh); });
        if (!mover.is_shown_where_it_was_moved(*changing))
            give_up("A quick refresh missed the change");
        if (run > 0) {
            full.add(again);
            quick.add(changed);
        }
    }
    if (plain->failures() + all->failures() + changing->failures() > 0)
        give_up("A refresh showed a failure box");

    std::printf("%d activities, %d of them plain ones of the week, %d recurring\n", activities, floor.plain_rows,
                floor.recurring_rows);
    const double least = best.median();
    print("best floor", best, least, "itself");
    print("whole rows", whole, least, "the best floor");
    print("plain first", first_plain, least, "the best floor");
    print("plain again", again_plain, least, "the best floor");
    print("all first", first_all, least, "the best floor");
    print("all again", again_all, least, "the best floor");
    print("", again_all, first_all.median(), "all first");
    print("drawing", drawing, least, "the best floor");
    print("full, drawn", full, least, "the best floor");
    print("quick", quick, full.median(), "full, drawn");
    print("", quick, first_all.median(), "all first");
    std::fflush(stdout);
    return {activities, first_all.median(), again_all.median()};
}

void print_growth(const Result& from, const Result& to) {
    std::printf("from %d to %d activities, %.1f times as many: all first %.1f times, all again %.1f times\n",
                from.activities, to.activities, static_cast<double>(to.activities) / from.activities,
                to.first / from.first, to.again / from.again);
}

} // namespace

// bench_refresh [ACTIVITIES...]
int main(int argc, char** argv) {
    std::vector<int> sizes = {1'000, 10'000, 100'000, 1'000'000};
    if (argc > 1) {
        sizes.clear();
        for (int argument = 1; argument < argc; ++argument)
            sizes.push_back(std::atoi(argv[argument]));
    }
    std::vector<Result> results;
    for (const int size : sizes) {
        const support::TemporaryFolder folder;
        const std::string database = folder.file("bulk.desk");
        bench::fill_bulk(*store::Store::create(database), day, size);
        results.push_back(measure(database, folder, size));
    }
    for (std::size_t i = 1; i < results.size(); ++i)
        print_growth(results[i - 1], results[i]);
    const auto first =
        std::ranges::find_if(results, [](const Result& result) { return result.activities >= 10'000; });
    if (results.end() - first > 2)
        print_growth(*first, results.back());
    return 0;
}
