#include "adapters/qt/qt_locale.h"

#include <QLocale>

namespace qt {

namespace {

bool is_pattern_letter(QChar c) { return QStringLiteral("dMyHhmst").contains(c); }

// Walks a pattern of the toolkit and gives the core's, in which there is no quoting: a quoted letter that the
// core would take for a field becomes a blank.
QString core_pattern(const QString& pattern) {
    QString result;
    for (qsizetype i = 0; i < pattern.size();) {
        const QChar c = pattern[i];
        if (c == u'\'') {
            qsizetype end = pattern.indexOf(u'\'', i + 1);
            if (end < 0)
                end = pattern.size();
            for (const QChar quoted : pattern.mid(i + 1, end - i - 1))
                result += is_pattern_letter(quoted) ? u' ' : quoted;
            i = end + 1;
            continue;
        }
        qsizetype length = 1;
        while (i + length < pattern.size() && pattern[i + length] == c)
            ++length;
        if (c == u'y')
            result += "yyyy";
        else if (c == u'd' || c == u'M')
            result += QString(std::min<qsizetype>(length, 2), c); // names of days and months aren't short
        else if (c == u'A' || c == u'a') {
            result += "tt";
            length = pattern.mid(i, 2).compare("ap", Qt::CaseInsensitive) == 0 ? 2 : 1;
        } else if (c != u't' && c != u'z') // neither the time zone nor the milliseconds
            result += pattern.mid(i, length);
        i += length;
    }
    return result.simplified();
}

// What reads "14 h 05 min 07 s" in a locale's long form is written with colons.
QString time_pattern(const QString& pattern) {
    QString core = core_pattern(pattern);
    if (core.contains("ss") && core.contains("mm") && !core.contains("mm "))
        return core;
    const QString hour = core.contains("HH") ? "HH" : core.contains(u'H') ? "H" : core.contains("hh") ? "hh" : "h";
    return hour + ":mm:ss" + (hour.startsWith(u'h') ? " tt" : "");
}

std::string text_or(const QString& text, const char* otherwise) {
    return text.isEmpty() ? otherwise : text.toStdString();
}

} // namespace

values::Locale locale_from(const QLocale& locale) {
    if (locale.language() == QLocale::C)
        return values::english_us();
    values::Locale result;
    result.name = locale.name().toStdString();
    result.short_date = core_pattern(locale.dateFormat(QLocale::ShortFormat)).toStdString();
    result.long_time = time_pattern(locale.timeFormat(QLocale::LongFormat)).toStdString();
    result.am = text_or(locale.amText(), "AM");
    result.pm = text_or(locale.pmText(), "PM");
    // The toolkit counts from Monday, 1, to Sunday, 7.
    for (int day = 7; std::string & name : result.weekdays) {
        name = locale.standaloneDayName(day).toStdString();
        day = day % 7 + 1;
    }
    for (int month = 1; std::string & name : result.months)
        name = locale.standaloneMonthName(month++).toStdString();
    const QString point = locale.decimalPoint();
    result.decimal_point = point.size() == 1 && point[0].unicode() < 128 ? point[0].toLatin1() : '.';
    return result;
}

values::Locale system_locale() { return locale_from(QLocale::system()); }

} // namespace qt
