#include "desk/windows/conversions.h"

#include "core/values/text_forms.h"

#include <QStringList>

namespace windows {
namespace {

void append_amount(QStringList& parts, int amount, const char* unit) {
    if (amount > 0)
        parts << QStringLiteral("%1 %2%3").arg(amount).arg(QLatin1String(unit),
                                                           QLatin1String(amount == 1 ? "" : "s"));
}

} // namespace

QDate date_of(values::DateTime value) { return QDate(value.year(), value.month(), value.day()); }

QTime time_of(values::DateTime value) { return QTime(value.hour(), value.minute(), value.second()); }

values::DateTime joined(QDate date, QTime time) {
    return values::DateTime::of(date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second());
}

QString date_text(values::DateTime value, const values::Locale& locale) {
    return shown(values::short_date(value, locale));
}

QString time_text(values::DateTime value, const values::Locale& locale) {
    return locale.is_24_hour() ? shown(values::hh_nn(value)) : time_of(value).toString(QStringLiteral("h:mm AP"));
}

QString duration_text(int minutes) {
    constexpr int hour = 60;
    constexpr int day = 24 * hour;
    QStringList parts;
    append_amount(parts, minutes / day, "day");
    append_amount(parts, minutes % day / hour, "hour");
    append_amount(parts, minutes % hour, "minute");
    return parts.isEmpty() ? QStringLiteral("0 minutes") : parts.join(QLatin1Char(' '));
}

} // namespace windows
