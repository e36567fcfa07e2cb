#include "desk/store/store.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>

using store::wall_clock;

namespace {

// A time zone for the length of a test.
class TimeZone {
public:
    explicit TimeZone(const char* name) { ::setenv("TZ", name, 1), ::tzset(); }
    ~TimeZone() { ::unsetenv("TZ"), ::tzset(); }
};

} // namespace

TEST(WallClock, TellsTheTimeOfTheMachinesZone) {
    values::DateTime far_east, far_west;
    {
        const TimeZone zone("EAST-14");
        far_east = wall_clock();
    }
    {
        const TimeZone zone("WEST12");
        far_west = wall_clock();
    }
    const std::int64_t hours_apart = (far_east.seconds() - far_west.seconds() + 1800) / 3600;
    EXPECT_EQ(hours_apart, 26);
}

TEST(WallClock, CountsFromTheSameDayAsTheRecords) {
    const TimeZone zone("UTC0");
    const std::int64_t since_1970 = wall_clock().seconds() - values::DateTime::of(1970, 1, 1).seconds();
    EXPECT_NEAR(static_cast<double>(since_1970), static_cast<double>(std::time(nullptr)), 60);
}
