#pragma once

#include "values/date_time.h"
#include "values/locale.h"

#include <QDateTime>
#include <QString>

#include <string>

// Between the store's texts and dates and Qt's.
namespace windows {

inline QString shown(const std::string& text) { return QString::fromStdString(text); }
inline std::string stored(const QString& text) { return text.toStdString(); }

QDate date_of(values::DateTime value);
QTime time_of(values::DateTime value);
values::DateTime joined(QDate date, QTime time = QTime(0, 0));

// The patterns for date and time fields, in the locale's order and with its 12 or 24 hours; times without seconds.
QString date_pattern(const values::Locale& locale);
QString time_pattern(const values::Locale& locale);

QString date_text(values::DateTime value, const values::Locale& locale);
QString time_text(values::DateTime value, const values::Locale& locale);

// "45 minutes", "1 hour", "1 hour 30 minutes", "2 days".
QString duration_text(int minutes);

} // namespace windows
