#pragma once

#include "core/values/date_time.h"
#include "core/values/locale.h"

#include <QLineEdit>

#include <optional>

namespace widgets {

// A line for a date, typed in any common form or picked from a calendar. The up and down keys step by days.
class DateField : public QLineEdit {
    Q_OBJECT

public:
    explicit DateField(QWidget* parent = nullptr);

    void set_locale(const values::Locale& locale) { locale_ = &locale; } // which outlives the field
    void set_date(std::optional<values::DateTime> date);                 // empty for none; its time doesn't count
    // Absent when the line is empty. Fails with 440 when what it holds is no date.
    std::optional<values::DateTime> date() const;
    // The last date that could be read.
    std::optional<values::DateTime> known_date() const { return known_; }

signals:
    void date_changed(); // by the user, to another date that can be read

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QString shown(values::DateTime date) const;
    std::optional<values::DateTime> read() const; // absent also when it is no date
    void take_typed();
    void take(values::DateTime date);
    void show_calendar();

    const values::Locale* locale_;
    std::optional<values::DateTime> known_;
};

} // namespace widgets
