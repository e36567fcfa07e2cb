#include "core/values/locale.h"

namespace values {

const Locale& english_us() {
    static const Locale locale{
        .name = "en_US",
        .short_date = "M/d/yyyy",
        .long_time = "h:mm:ss tt",
        .weekdays = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"},
        .months = {"January", "February", "March", "April", "May", "June", "July", "August", "September",
                   "October", "November", "December"}};
    return locale;
}

} // namespace values
