#include "desk/import/local_zone.h"

#include "core/values/failure.h"

#include <ctime>

namespace importing {

values::DateTime system_local_time(std::int64_t seconds) {
    const std::time_t moment = seconds;
    std::tm local{};
    if (!localtime_r(&moment, &local))
        throw values::Failure(values::FailureNumber::overflow);
    return values::DateTime::of(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min,
                                local.tm_sec);
}

} // namespace importing
