#include "faults/failing_calls.h"
#include "faults/work_session.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace {

struct Outcome {
    std::string failed_call; // empty when the step makes fewer calls
    std::string told;
};

class EveryCallFails : public testing::Test {
protected:
    static Outcome run(faults::WorkSession& session, const faults::WorkSession::Step& step,
                       const std::string& folder, faults::Fault fault, int number) {
        faults::begin(folder, fault, number);
        std::string told = session.run(step);
        faults::end();
        return {.failed_call = faults::failed_call(), .told = std::move(told)};
    }

    // The session up to a step, and then that step with a failing call. False when the step makes fewer calls.
    static bool fails_well(std::size_t place, faults::Fault fault, int number) {
        const support::TemporaryFolder folder;
        faults::WorkSession session(folder.path());
        for (std::size_t i = 0; i < place; ++i)
            EXPECT_EQ(session.run(session.steps()[i]), "") << session.steps()[i].name;
        const faults::WorkSession::Step& step = session.steps()[place];
        const std::string before = session.state();
        const Outcome first = run(session, step, folder.path(), fault, number);
        if (first.failed_call.empty())
            return false;
        const std::string after = session.state();
        const std::string what = step.name + ", " + first.failed_call + ", told: " + first.told;
        if (!first.told.empty() && after == before) {
            session.start_again(); // a database that didn't open for writing is open for reading
            EXPECT_EQ(session.run(step), "") << what << ": it doesn't work later either";
        }
        if (first.told.empty() && step.can_be_repeated)
            session.run(step); // which brings to light what wasn't done
        const std::string at_last = session.state();
        EXPECT_NE(at_last, before) << what << ": nothing was done";
        EXPECT_TRUE(after == before || after == at_last) << what << ": half of it was done\n" << after;
        EXPECT_TRUE(after != before || !first.told.empty()) << what << ": nobody was told";
        return true;
    }

    static void fail_each(faults::Fault fault) {
        const support::TemporaryFolder folder;
        const std::size_t steps = faults::WorkSession(folder.path()).steps().size();
        int failures = 0;
        for (std::size_t place = 0; place < steps; ++place)
            for (int number = 1; fails_well(place, fault, number) && !HasFailure(); ++number)
                ++failures;
        std::printf("%d calls of %zu steps failed in turn.\n", failures, steps);
        EXPECT_GT(failures, 100);
    }
};

TEST_F(EveryCallFails, OnceAndLeavesTheOldOrTheNewAndIsTold) { fail_each(faults::Fault::once); }

TEST_F(EveryCallFails, OnADiskThatStaysFullAndLeavesTheOldOrTheNewAndIsTold) {
    fail_each(faults::Fault::full_disk);
}

} // namespace
