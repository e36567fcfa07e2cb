#pragma once

#include "core/values/date_time.h"
#include "core/values/locale.h"

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

// Dates in the locale's order, times with its 12 or 24 hours and without seconds.
QString date_text(values::DateTime value, const values::Locale& locale);
QString time_text(values::DateTime value, const values::Locale& locale);

// "45 minutes", "1 hour", "1 hour 30 minutes", "2 days".
QString duration_text(int minutes);

} // namespace windows
