#pragma once

#include "core/values/locale.h"
#include "desk/store/records.h"

#include <QCheckBox>
#include <QWidget>

#include <memory>
#include <set>
#include <vector>

namespace Ui {
class RecurrencePage;
}

namespace windows {

// How an activity repeats, and the dates on which it doesn't.
class RecurrencePage : public QWidget {
    Q_OBJECT

public:
    explicit RecurrencePage(QWidget* parent = nullptr);
    ~RecurrencePage() override;

    // Called once, before the page is shown; the locale outlives it. A kind that is chosen afterwards begins with
    // the start's own weekday or day.
    void show_rule(const store::Recurrence& rule, const std::vector<store::DateTime>& exceptions,
                   store::DateTime start, const values::Locale& locale);
    void set_start(store::DateTime start) { start_ = start; }

    // The rule as it stands. Fails with 440 when no date can follow from it: no day is chosen, or the end lies
    // before the start. The one that was shown, which nobody touched, comes back as it was given, and so do its
    // exceptions.
    store::Recurrence rule() const;
    std::vector<store::DateTime> exceptions() const; // rising; none when the activity doesn't repeat

private:
    void build_ticks(const values::Locale& locale);
    void connect_parts();
    void show_kind();
    void suggest();
    void add_exception();
    void show_exceptions();
    store::RecurrenceKind kind() const;
    store::Recurrence typed() const;
    void require_dates(const store::Recurrence& rule) const;

    std::unique_ptr<Ui::RecurrencePage> ui_;
    std::vector<QCheckBox*> weekly_days_; // [0] Sunday
    std::vector<QCheckBox*> month_days_;  // [0] the 1st
    std::vector<QCheckBox*> month_weeks_;
    std::vector<QCheckBox*> month_weekdays_;
    std::set<store::DateTime> exceptions_;
    store::DateTime start_;
    struct {
        store::Recurrence rule;
        std::vector<store::DateTime> exceptions;
        store::DateTime start;
    } given_;
    // The same as the page could show it.
    store::Recurrence rule_shown_;
    std::set<store::DateTime> exceptions_shown_;
    const values::Locale* locale_ = nullptr;
};

} // namespace windows
