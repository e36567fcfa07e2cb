#include "core/values/locale.h"

namespace values {

namespace {

const std::array<std::string, 7> english_weekdays = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                     "Thursday", "Friday", "Saturday"};
const std::array<std::string, 12> english_months = {"January",   "February", "March",    "April",
                                                    "May",       "June",     "July",     "August",
                                                    "September", "October",  "November", "December"};

} // namespace

const Locale& english_us() {
    static const Locale locale{.name = "en_US",
                               .short_date = "M/d/yyyy",
                               .long_time = "h:mm:ss tt",
                               .weekdays = english_weekdays,
                               .months = english_months};
    return locale;
}

const Locale& english_gb() {
    static const Locale locale{.name = "en_GB",
                               .short_date = "dd/MM/yyyy",
                               .long_time = "HH:mm:ss",
                               .weekdays = english_weekdays,
                               .months = english_months};
    return locale;
}

const Locale& german() {
    static const Locale locale{
        .name = "de_DE",
        .short_date = "dd.MM.yyyy",
        .long_time = "HH:mm:ss",
        .weekdays = {"Sonntag", "Montag", "Dienstag", "Mittwoch", "Donnerstag", "Freitag", "Samstag"},
        .months = {"Januar", "Februar", "März", "April", "Mai", "Juni", "Juli", "August", "September", "Oktober",
                   "November", "Dezember"},
        .decimal_point = ','};
    return locale;
}

const Locale& french() {
    static const Locale locale{
        .name = "fr_FR",
        .short_date = "dd/MM/yyyy",
        .long_time = "HH:mm:ss",
        .weekdays = {"dimanche", "lundi", "mardi", "mercredi", "jeudi", "vendredi", "samedi"},
        .months = {"janvier", "février", "mars", "avril", "mai", "juin", "juillet", "août", "septembre", "octobre",
                   "novembre", "décembre"},
        .decimal_point = ','};
    return locale;
}

} // namespace values
