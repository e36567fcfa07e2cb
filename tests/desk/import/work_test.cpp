#include "desk/import/work.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using importing::Work;

TEST(Work, IsExhaustedBeforeMoreIsSpentThanThereIs) {
    Work work(10);
    work.spend(10);
    EXPECT_EQ(work.left(), 0u);
    EXPECT_THROW(work.spend(1), Work::Exhausted);
}

TEST(Work, ATaskThatTakesMoreThanItsShareEndsAlone) {
    Work work(100);
    bool went_on = false;
    EXPECT_FALSE(work.within(20, [&] {
        work.spend(15);
        work.spend(15);
        went_on = true;
    }));
    EXPECT_FALSE(went_on);
    EXPECT_EQ(work.left(), 80u);
    EXPECT_TRUE(work.within(20, [&] { work.spend(20); }));
    EXPECT_EQ(work.left(), 60u);
}

TEST(Work, AShareWithinAShareEndsAlone) {
    Work work(100);
    EXPECT_TRUE(work.within(50, [&] {
        EXPECT_FALSE(work.within(10, [&] { work.spend(11); }));
        work.spend(30);
    }));
    EXPECT_EQ(work.left(), 60u);
}

TEST(Work, ATaskThatTakesAllThatIsLeftTellsSo) {
    Work work(10);
    EXPECT_THROW(work.within(20, [&] { work.spend(11); }), Work::Exhausted);
}

TEST(Work, TellsHowFarItIs) {
    std::vector<double> parts;
    Work work(10, [&](double part) {
        parts.push_back(part);
        return true;
    });
    work.expect(2, 0.5);
    work.step();
    work.step();
    work.expect(1, 1);
    work.step();
    EXPECT_EQ(parts, (std::vector{0.25, 0.5, 1.0}));
}

TEST(Work, TellsAlsoWithinALongStep) {
    int told = 0;
    Work work(100'000'000, [&](double) { return ++told < 3; });
    EXPECT_THROW(for (int i = 0; i < 50; ++i) work.spend(1'000'000), Work::Cancelled);
    EXPECT_EQ(told, 3);
}

} // namespace
