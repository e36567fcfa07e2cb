#pragma once

#include "core/values/locale.h"

// Fixed locales beside the English of the United States.
namespace support {

inline const values::Locale& english_gb() {
    static const values::Locale locale{.name = "en_GB",
                                       .short_date = "dd/MM/yyyy",
                                       .long_time = "HH:mm:ss",
                                       .weekdays = values::english_us().weekdays,
                                       .months = values::english_us().months};
    return locale;
}

inline const values::Locale& german() {
    static const values::Locale locale{
        .name = "de_DE",
        .short_date = "dd.MM.yyyy",
        .long_time = "HH:mm:ss",
        .weekdays = {"Sonntag", "Montag", "Dienstag", "Mittwoch", "Donnerstag", "Freitag", "Samstag"},
        .months = {"Januar", "Februar", "März", "April", "Mai", "Juni", "Juli", "August", "September", "Oktober",
                   "November", "Dezember"},
        .decimal_point = ','};
    return locale;
}

inline const values::Locale& french() {
    static const values::Locale locale{
        .name = "fr_FR",
        .short_date = "dd/MM/yyyy",
        .long_time = "HH:mm:ss",
        .weekdays = {"dimanche", "lundi", "mardi", "mercredi", "jeudi", "vendredi", "samedi"},
        .months = {"janvier", "février", "mars", "avril", "mai", "juin", "juillet", "août", "septembre", "octobre",
                   "novembre", "décembre"},
        .decimal_point = ','};
    return locale;
}

} // namespace support
