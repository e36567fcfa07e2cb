#include "desk/windows/command_table.h"

#include "core/values/failure.h"

#include <gtest/gtest.h>

using windows::CommandTable;

TEST(CommandTable, RunsTheHandlerOfTheNumber) {
    CommandTable table;
    std::string ran;
    table.add(act::CommandNumber::schedule_activity, [&](const CommandTable::Finished& finished) {
        ran += "schedule ";
        finished();
    });
    table.add(act::CommandNumber::edit_activity, [&](const CommandTable::Finished&) { ran += "edit "; });
    table.run(act::CommandNumber::schedule_activity, [&] { ran += "finished "; });
    table.run(act::CommandNumber::edit_activity, [&] { ran += "never "; });
    EXPECT_EQ(ran, "schedule finished edit ");
}

TEST(CommandTable, ANumberThatNobodyHandlesIsAClearFailure) {
    bool is_finished = false;
    try {
        CommandTable().run(static_cast<act::CommandNumber>(4711), [&] { is_finished = true; });
        FAIL() << "nothing failed";
    } catch (const values::Failure& failure) {
        EXPECT_EQ(failure.number(), 440);
        EXPECT_EQ(failure.description(), "The contact desk has no command 4711.");
    }
    EXPECT_FALSE(is_finished);
}
