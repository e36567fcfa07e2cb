#include "desk/store/sample.h"
#include "support/private_bus.h"
#include "support/temporary_folder.h"
#include "walk/walker.h"

#include <QDate>

#include <cstdlib>
#include <gtest/gtest.h>

namespace {

constexpr unsigned usual_seed = 1;

long number_from(const char* variable, long otherwise) {
    const char* text = std::getenv(variable);
    return text ? std::atol(text) : otherwise;
}

TEST(RandomWalk, LeavesTheDatabaseWholeWhateverIsClickedAndTyped) {
    const auto seed = static_cast<unsigned>(number_from("ORVANTA_WALK_SEED", usual_seed));
    const long events = number_from("ORVANTA_WALK_EVENTS", ORVANTA_WALK_EVENTS);
    const support::TemporaryFolder folder;
    const std::string database = folder.file("walk.desk");
    const values::DateTime today =
        store::wall_clock().date(); // the programs and the store go by the machine's clock
    store::fill_sample(*store::Store::create(database), today);

    support::PrivateBus bus;
    walk::DeskProcess desk(bus.address(), QString::fromStdString(database), QString::fromStdString(folder.path()),
                           seed);
    {
        walk::Walker walker(bus.connection(), desk, database, folder.path(), seed, events);
        walker.run();
        std::printf("Seed %u on %d-%02d-%02d: %ld events, %d starts, %ld activities at the end.\n", seed,
                    today.year(), today.month(), today.day(), walker.events(), walker.starts,
                    walker.activities_at_end());
        for (const auto& [name, count] : walker.dialogs)
            std::printf("%6d times %s\n", count, name.c_str());
        for (const std::string& fault : walker.faults)
            ADD_FAILURE() << fault;
        for (const auto& [text, count] : walker.failure_boxes)
            std::printf("%6d times %s\n", count, text.c_str());
    }
    bus::make_application(bus::make_link(bus.connection()))->Command(act::CommandNumber::close_application);
    EXPECT_EQ(desk.exit_code(), 0);
}

} // namespace
