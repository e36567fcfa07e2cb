#include "desk/store/store.h"

#include <ctime>

namespace store {

DateTime wall_clock() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return DateTime::of(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min,
                        local.tm_sec);
}

} // namespace store
