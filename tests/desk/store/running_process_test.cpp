#include "desk/store/running_process.h"

#include "desk/store/child_process.h"

#include <gtest/gtest.h>

using support::ChildProcess;

TEST(Process, RunsUntilItHasEnded) {
    EXPECT_TRUE(store::is_running(store::this_process()));
    ChildProcess other([](ChildProcess::Report report) {
        report(store::this_process());
        ::pause();
    });
    const std::string name = other.read();
    EXPECT_NE(name, store::this_process());
    EXPECT_TRUE(store::is_running(name));
    other.kill();
    EXPECT_FALSE(store::is_running(name));
}

TEST(Process, IsNotTheOneThatHasItsNumberNow) {
    const std::string name = store::this_process();
    EXPECT_FALSE(store::is_running(name.substr(0, name.rfind(' ')) + " 1"));
    EXPECT_FALSE(store::is_running(name.substr(0, name.rfind(' '))));
}

TEST(Process, OfAnEarlierStartOfTheMachineHasEndedAndOfAnotherMachineMayRun) {
    const std::string name = store::this_process();
    const std::size_t machine_end = name.find(' ');
    const std::size_t boot_end = name.find(' ', machine_end + 1);
    EXPECT_FALSE(store::is_running(name.substr(0, machine_end) + " earlier" + name.substr(boot_end)));
    EXPECT_TRUE(store::is_running("another" + name.substr(machine_end)));
}
