#include "widgets/date_field.h"

#include "core/values/failure.h"
#include "core/values/text_forms.h"

#include <QAction>
#include <QCalendarWidget>
#include <QKeyEvent>

#include <algorithm>

namespace widgets {
namespace {

const QDate first_date(100, 1, 1), last_date(9999, 12, 31); // that a record can have

QDate date_of(values::DateTime value) { return {value.year(), value.month(), value.day()}; }
values::DateTime date_of(QDate value) { return values::DateTime::of(value.year(), value.month(), value.day()); }

} // namespace

DateField::DateField(QWidget* parent) : QLineEdit(parent), locale_(&values::english_us()) {
    QAction* calendar = addAction(QIcon(QStringLiteral(":/widgets/calendar.svg")), TrailingPosition);
    calendar->setToolTip(tr("Show a calendar"));
    connect(calendar, &QAction::triggered, this, &DateField::show_calendar);
    connect(this, &QLineEdit::editingFinished, this, &DateField::take_typed);
    setMinimumWidth(fontMetrics().averageCharWidth() * 16);
}

QString DateField::shown(values::DateTime date) const {
    return QString::fromStdString(values::short_date(date, *locale_));
}

void DateField::set_date(std::optional<values::DateTime> date) {
    known_ = date ? std::optional(date->date()) : std::nullopt;
    setText(date ? shown(*date) : QString());
}

// What stands there untouched is the date that it shows, whether its text could be read or not.
std::optional<values::DateTime> DateField::read() const {
    if (known_ && text() == shown(*known_))
        return known_;
    const auto moment = values::parse_date(text().trimmed().toStdString(), *locale_);
    if (!moment || moment->date() == values::DateTime())
        return std::nullopt;
    return moment->date();
}

std::optional<values::DateTime> DateField::date() const {
    if (text().trimmed().isEmpty())
        return std::nullopt;
    const auto date = read();
    if (!date)
        throw values::Failure(values::FailureNumber::automation, "\"" + text().toStdString() + "\" is no date.");
    return date;
}

void DateField::take_typed() {
    if (const auto date = read())
        take(*date);
}

void DateField::take(values::DateTime date) {
    const bool is_new = known_ != date;
    set_date(date);
    if (is_new)
        emit date_changed();
}

void DateField::keyPressEvent(QKeyEvent* event) {
    const int days = event->key() == Qt::Key_Up ? 1 : event->key() == Qt::Key_Down ? -1 : 0;
    const auto date = read();
    if (days != 0 && date)
        take(date_of(std::clamp(date_of(*date).addDays(days), first_date, last_date)));
    else
        QLineEdit::keyPressEvent(event);
}

void DateField::show_calendar() {
    auto* calendar = new QCalendarWidget(this);
    calendar->setWindowFlag(Qt::Popup);
    calendar->setAttribute(Qt::WA_DeleteOnClose);
    calendar->setDateRange(first_date, last_date);
    calendar->setDateEditEnabled(false); // dates are typed into the field
    if (const auto date = read())
        calendar->setSelectedDate(date_of(*date));
    const auto pick = [this, calendar](QDate date) {
        take(date_of(date));
        calendar->close();
    };
    connect(calendar, &QCalendarWidget::clicked, this, pick);
    connect(calendar, &QCalendarWidget::activated, this, pick);
    calendar->move(mapToGlobal(QPoint(0, height())));
    calendar->show();
}

} // namespace widgets
