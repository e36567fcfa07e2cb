#include "desk/import/local_zone.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <optional>
#include <string>

namespace {

class Zone {
public:
    explicit Zone(const char* name) {
        if (const char* before = std::getenv("TZ"))
            before_ = before;
        setenv("TZ", name, 1);
        tzset();
    }
    ~Zone() {
        before_ ? setenv("TZ", before_->c_str(), 1) : unsetenv("TZ");
        tzset();
    }

private:
    std::optional<std::string> before_;
};

TEST(SystemLocalTime, FollowsTheMachinesZone) {
    const Zone zone("EST5");
    EXPECT_EQ(importing::system_local_time(0), values::DateTime::of(1969, 12, 31, 19));
}

} // namespace
