#include "faults/failing_calls.h"
#include "faults/work_session.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace {

// Carries a step out while the call of that number fails, and looks what became of the files. Gives how many calls
// the step makes at the most, 0 while that isn't reached.
struct Outcome {
    std::string failed_call; // empty when the step makes fewer calls
    std::string told;
};

class EveryCallFails : public testing::Test {
protected:
    static Outcome run(faults::WorkSession& session, const faults::WorkSession::Step& step,
                       const std::string& folder, int number) {
        faults::begin(folder, number);
        std::string told = session.run(step);
        faults::end();
        return {.failed_call = faults::failed_call(), .told = std::move(told)};
    }

    // The session up to a step, and then that step with a failing call. False when the step makes fewer calls.
    static bool fails_well(std::size_t place, int number) {
        const support::TemporaryFolder folder;
        faults::WorkSession session(folder.path());
        for (std::size_t i = 0; i < place; ++i)
            EXPECT_EQ(session.run(session.steps()[i]), "") << session.steps()[i].name;
        const faults::WorkSession::Step& step = session.steps()[place];
        const std::string before = session.state();
        const Outcome first = run(session, step, folder.path(), number);
        if (first.failed_call.empty())
            return false;
        const std::string after = session.state();
        const std::string what = step.name + ", " + first.failed_call + ", told: " + first.told;
        if (!first.told.empty() && after == before)
            EXPECT_EQ(session.run(step), "") << what << ": it doesn't work later either";
        const std::string at_last = session.state();
        EXPECT_NE(at_last, before) << what << ": nothing was done";
        EXPECT_TRUE(after == before || after == at_last) << what << ": half of it was done\n" << after;
        EXPECT_TRUE(after != before || !first.told.empty()) << what << ": nobody was told";
        return true;
    }
};

TEST_F(EveryCallFails, AndLeavesTheOldOrTheNewAndIsTold) {
    std::size_t steps = 0;
    {
        const support::TemporaryFolder folder;
        steps = faults::WorkSession(folder.path()).steps().size();
    }
    int failures = 0;
    for (std::size_t place = 0; place < steps; ++place)
        for (int number = 1; fails_well(place, number) && !HasFailure(); ++number)
            ++failures;
    std::printf("%d calls of %zu steps failed in turn.\n", failures, steps);
    EXPECT_GT(failures, 100);
}

} // namespace
