// How long a full refresh of a week takes on databases of growing size, beside the least that reading its rows can
// cost. "plain" leaves series out, "all" expands them; "first" has read nothing before, "again" finds the store as
// it was. Filling goes up to the filled slots with every text composed; drawing is told by itself.

#include "benchmarks/bulk_database.h"
#include "benchmarks/calendar_world.h"
#include "benchmarks/floor.h"
#include "benchmarks/times.h"
#include "support/temporary_folder.h"

#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string_view>

namespace {

const values::DateTime day = values::DateTime::of(2024, 5, 15);
const values::DateTime first_of_week = values::DateTime::of(2024, 5, 12);

void print(const char* what, const bench::Times& times, double floor) {
    std::printf("  %-12s %10.3f ms (%.3f..%.3f)  %.2f of the floor\n", what, times.median(), times.least(),
                times.most(), times.median() / floor);
}

// One refresh, cut into filling and drawing.
void refresh(bench::CalendarWorld& world, bench::Times* filling, bench::Times* drawing) {
    const double whole = bench::measured([&] { world.engine.refresh.Refresh_Data(); });
    world.touch_slots();
    const double drawn = bench::measured([&] { world.draw(); });
    if (filling)
        filling->add(whole - drawn);
    if (drawing)
        drawing->add(drawn);
}

void measure(const std::string& database, const std::string& settings, int activities) {
    bench::Floor floor(database);
    bench::Times plain_floor, first_plain, again_plain, first_all, again_all, drawing;
    int plain = 0, recurring = 0;
    std::optional<bench::CalendarWorld> lasting_plain, lasting_all;
    lasting_plain.emplace(database, settings, day).engine.refresh.CheckRecurring = false;
    lasting_all.emplace(database, settings, day);
    for (int run = 0; run <= bench::runs; ++run) {
        const bool counts = run > 0;
        const double read = bench::measured([&] {
            plain = floor.plain_rows(first_of_week, first_of_week.plus_days(7));
            recurring = floor.recurring_rows();
        });
        if (counts)
            plain_floor.add(read);
        for (const bool series : {false, true}) {
            bench::CalendarWorld fresh(database, settings, day);
            fresh.engine.refresh.CheckRecurring = series;
            refresh(fresh, counts ? &(series ? first_all : first_plain) : nullptr, nullptr);
            refresh(series ? *lasting_all : *lasting_plain, counts ? &(series ? again_all : again_plain) : nullptr,
                    counts && series ? &drawing : nullptr);
            if (fresh.failures() + lasting_all->failures() + lasting_plain->failures() > 0) {
                std::fputs("A refresh showed a failure box; its time means nothing.\n", stderr);
                std::exit(1);
            }
        }
    }
    std::printf("%d activities, %d of them plain ones of the week, %d recurring; floor %.3f ms (%.3f..%.3f)\n",
                activities, plain, recurring, plain_floor.median(), plain_floor.least(), plain_floor.most());
    print("plain first", first_plain, plain_floor.median());
    print("plain again", again_plain, plain_floor.median());
    print("all first", first_all, plain_floor.median());
    print("all again", again_all, plain_floor.median());
    print("drawing", drawing, plain_floor.median());
    std::fflush(stdout);
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
    for (const int size : sizes) {
        const support::TemporaryFolder folder;
        const std::string database = folder.file("bulk.desk");
        bench::fill_bulk(*store::Store::create(database), day, size);
        measure(database, folder.file("Orvanta.ini"), size);
    }
    return 0;
}
