#include "adapters/qt/end_requests.h"

#include <QCoreApplication>
#include <QTest>
#include <gtest/gtest.h>

#include <csignal>

namespace {

// The signal is there before raise() returns.
class EndRequests : public testing::TestWithParam<int> {
protected:
    int asked = 0;
    std::unique_ptr<qt::EndRequests> requests = qt::make_end_requests([this] { ++asked; });
};

TEST_P(EndRequests, ComeFromTheEventLoop) {
    std::raise(GetParam());
    EXPECT_EQ(asked, 0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return asked > 0; }, 5000));
    QCoreApplication::processEvents();
    EXPECT_EQ(asked, 1);
}

TEST_P(EndRequests, EndTheProcessTheSecondTime) {
    EXPECT_EXIT(
        {
            std::raise(GetParam());
            std::raise(GetParam());
        },
        testing::KilledBySignal(GetParam()), "");
}

TEST_P(EndRequests, AreLeftToOthersAfterwards) {
    requests.reset();
    EXPECT_EXIT(std::raise(GetParam()), testing::KilledBySignal(GetParam()), "");
}

TEST_P(EndRequests, StayIgnoredWhereTheyWereIgnoredBefore) {
    requests.reset();
    std::signal(GetParam(), SIG_IGN);
    requests = qt::make_end_requests([this] { ++asked; });
    std::raise(GetParam());
    QTest::qWait(20);
    EXPECT_EQ(asked, 0);
    requests.reset();
    std::signal(GetParam(), SIG_DFL);
}

INSTANTIATE_TEST_SUITE_P(Signals, EndRequests, testing::Values(SIGTERM, SIGINT));

} // namespace
