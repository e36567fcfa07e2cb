#include "desk/windows/recurrence_page.h"

#include "desk/model/refusal.h"
#include "desk/windows/boxes.h"
#include "desk/windows/conversions.h"
#include "ui_recurrence_page.h"
#include "widgets/date_field.h"

#include <QGridLayout>

namespace windows {
namespace {

using store::RecurrenceKind;

std::uint32_t bits_of(const std::vector<QCheckBox*>& ticks) {
    std::uint32_t bits = 0;
    for (std::size_t place = 0; place < ticks.size(); ++place)
        if (ticks[place]->isChecked())
            bits |= 1u << place;
    return bits;
}

void tick(const std::vector<QCheckBox*>& ticks, std::uint32_t bits) {
    for (std::size_t place = 0; place < ticks.size(); ++place)
        ticks[place]->setChecked((bits >> place & 1u) != 0);
}

// The boxes go below those that the page has already.
std::vector<QCheckBox*> add_ticks(QWidget* page, const QStringList& names, int columns) {
    auto* grid = page->layout() ? static_cast<QGridLayout*>(page->layout()) : new QGridLayout(page);
    grid->setContentsMargins(0, 0, 0, 0);
    const int first_row = grid->count() == 0 ? 0 : grid->rowCount();
    std::vector<QCheckBox*> ticks;
    for (const QString& name : names) {
        auto* box = new QCheckBox(name, page);
        box->setObjectName(page->objectName() + "_" + QString(name).replace(' ', '_'));
        box->setAccessibleName(name);
        const int place = static_cast<int>(ticks.size());
        grid->addWidget(box, first_row + place / columns, place % columns);
        ticks.push_back(box);
    }
    return ticks;
}

} // namespace

RecurrencePage::RecurrencePage(QWidget* parent) : QWidget(parent), ui_(std::make_unique<Ui::RecurrencePage>()) {
    ui_->setupUi(this);
    setFocusProxy(ui_->kind_box);
}

RecurrencePage::~RecurrencePage() = default;

void RecurrencePage::show_rule(const store::Recurrence& rule, const std::vector<store::DateTime>& exceptions,
                               store::DateTime start, const values::Locale& locale) {
    build_ticks(locale);
    given_ = {.rule = rule, .exceptions = exceptions, .start = start};
    start_ = start;
    locale_ = &locale;
    for (widgets::DateField* field : {ui_->until_edit, ui_->exception_edit})
        field->set_locale(locale);
    ui_->exception_edit->set_date(start);
    ui_->kind_box->setCurrentIndex(static_cast<int>(rule.kind));
    ui_->frequency_box->setValue(rule.frequency);
    ui_->until_box->setChecked(rule.until.has_value());
    ui_->until_edit->set_date(rule.until.value_or(start.plus_months(12)));
    const auto days = static_cast<std::uint32_t>(rule.days_of_week);
    tick(weekly_days_, days);
    tick(month_weekdays_, days);
    tick(month_weeks_, static_cast<std::uint32_t>(rule.weeks_of_month));
    tick(month_days_, rule.days_of_month);
    for (const store::DateTime exception : exceptions)
        exceptions_.insert(exception.date());
    rule_shown_ = typed();
    exceptions_shown_ = exceptions_;
    connect_parts();
    show_exceptions();
    show_kind();
}

void RecurrencePage::build_ticks(const values::Locale& locale) {
    QStringList weekdays;
    for (const std::string& weekday : locale.weekdays)
        weekdays << shown(weekday);
    QStringList days;
    for (int day = 1; day <= 31; ++day)
        days << QString::number(day);
    weekly_days_ = add_ticks(ui_->weekly_page, weekdays, 4);
    month_days_ = add_ticks(ui_->days_page, days, 8);
    month_weeks_ =
        add_ticks(ui_->weekdays_page, {tr("First"), tr("Second"), tr("Third"), tr("Fourth"), tr("Fifth")}, 5);
    month_weekdays_ = add_ticks(ui_->weekdays_page, weekdays, 5);
    for (QWidget* page : {ui_->weekly_page, ui_->days_page, ui_->weekdays_page}) {
        auto* grid = static_cast<QGridLayout*>(page->layout());
        grid->setRowStretch(grid->rowCount(), 1);
    }
}

void RecurrencePage::connect_parts() {
    connect(ui_->kind_box, &QComboBox::activated, this, [this] {
        suggest();
        show_kind();
    });
    connect(ui_->frequency_box, &QSpinBox::valueChanged, this, &RecurrencePage::show_kind);
    connect(ui_->until_box, &QCheckBox::toggled, this, &RecurrencePage::show_kind);
    connect(ui_->add_exception_button, &QPushButton::clicked, this,
            [this] { attempt(window(), [this] { add_exception(); }); });
    connect(ui_->remove_exception_button, &QPushButton::clicked, this, [this] {
        if (const QListWidgetItem* item = ui_->exceptions_list->currentItem())
            exceptions_.erase(store::DateTime::from_seconds(item->data(Qt::UserRole).toLongLong()));
        show_exceptions();
    });
    connect(ui_->exceptions_list, &QListWidget::currentRowChanged, this,
            [this](int row) { ui_->remove_exception_button->setEnabled(row >= 0); });
}

RecurrenceKind RecurrencePage::kind() const { return static_cast<RecurrenceKind>(ui_->kind_box->currentIndex()); }

void RecurrencePage::show_kind() {
    const bool repeats = kind() != RecurrenceKind::none;
    const int frequency = ui_->frequency_box->value();
    const QString unit = kind() == RecurrenceKind::daily    ? tr("day")
                         : kind() == RecurrenceKind::weekly ? tr("week")
                                                            : tr("month");
    ui_->unit_label->setText(frequency == 1 ? unit : unit + "s");
    ui_->rules->setCurrentIndex(ui_->kind_box->currentIndex());
    for (QWidget* part : {static_cast<QWidget*>(ui_->frequency_label), static_cast<QWidget*>(ui_->frequency_box),
                          static_cast<QWidget*>(ui_->unit_label), static_cast<QWidget*>(ui_->until_box),
                          static_cast<QWidget*>(ui_->until_edit), static_cast<QWidget*>(ui_->exceptions_group)})
        part->setEnabled(repeats);
    ui_->until_edit->setEnabled(repeats && ui_->until_box->isChecked());
}

void RecurrencePage::suggest() {
    const std::uint32_t weekday = 1u << (start_.weekday() - 1);
    if (bits_of(weekly_days_) == 0)
        tick(weekly_days_, weekday);
    if (bits_of(month_weekdays_) == 0)
        tick(month_weekdays_, weekday);
    if (bits_of(month_weeks_) == 0)
        tick(month_weeks_, 1u << ((start_.day() - 1) / 7));
    if (bits_of(month_days_) == 0)
        tick(month_days_, 1u << (start_.day() - 1));
}

void RecurrencePage::add_exception() {
    const auto date = ui_->exception_edit->date();
    model::require(date.has_value(), "Give the date to leave out.");
    exceptions_.insert(*date);
    show_exceptions();
}

void RecurrencePage::show_exceptions() {
    ui_->exceptions_list->clear();
    for (const store::DateTime date : exceptions_) {
        auto* item = new QListWidgetItem(date_text(date, *locale_), ui_->exceptions_list);
        item->setData(Qt::UserRole, qlonglong{date.seconds()});
    }
    ui_->remove_exception_button->setEnabled(false);
}

store::Recurrence RecurrencePage::rule() const {
    const store::Recurrence typed_rule = typed();
    const bool is_untouched = typed_rule == rule_shown_;
    if (is_untouched && start_ == given_.start)
        return given_.rule;
    require_dates(typed_rule);
    return is_untouched ? given_.rule : typed_rule;
}

store::Recurrence RecurrencePage::typed() const {
    store::Recurrence rule;
    rule.kind = kind();
    if (rule.kind == RecurrenceKind::none)
        return rule;
    rule.frequency = ui_->frequency_box->value();
    if (ui_->until_box->isChecked()) {
        rule.until = ui_->until_edit->date();
        model::require(rule.until.has_value(), "Give the last date of the series.");
    }
    if (rule.kind == RecurrenceKind::weekly)
        rule.days_of_week = static_cast<int>(bits_of(weekly_days_));
    if (rule.kind == RecurrenceKind::days_of_month)
        rule.days_of_month = bits_of(month_days_);
    if (rule.kind == RecurrenceKind::weekdays_of_month) {
        rule.days_of_week = static_cast<int>(bits_of(month_weekdays_));
        rule.weeks_of_month = static_cast<int>(bits_of(month_weeks_));
    }
    return rule;
}

void RecurrencePage::require_dates(const store::Recurrence& rule) const {
    model::require(rule.kind != RecurrenceKind::weekdays_of_month || rule.weeks_of_month != 0,
                   "Choose at least one week of the month in which the activity repeats.");
    const bool is_by_weekday =
        rule.kind == RecurrenceKind::weekly || rule.kind == RecurrenceKind::weekdays_of_month;
    model::require(!is_by_weekday || rule.days_of_week != 0,
                   "Choose at least one weekday on which the activity repeats.");
    model::require(rule.kind != RecurrenceKind::days_of_month || rule.days_of_month != 0,
                   "Choose at least one day of the month on which the activity repeats.");
    model::require(!rule.until || rule.until->date() >= start_.date(), "The series ends before it begins.");
}

std::vector<store::DateTime> RecurrencePage::exceptions() const {
    if (kind() == given_.rule.kind && exceptions_ == exceptions_shown_)
        return given_.exceptions;
    if (kind() == RecurrenceKind::none)
        return {};
    return {exceptions_.begin(), exceptions_.end()};
}

} // namespace windows
