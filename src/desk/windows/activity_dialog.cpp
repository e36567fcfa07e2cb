#include "desk/windows/activity_dialog.h"

#include "desk/model/activity_values.h"
#include "desk/model/refusal.h"
#include "desk/windows/boxes.h"
#include "desk/windows/conversions.h"
#include "desk/windows/rows.h"
#include "ui_activity_dialog.h"
#include "widgets/date_field.h"

#include <algorithm>

namespace windows {
namespace {

void choose(QComboBox* box, const std::string& id, const QString& unknown) {
    if (box->findData(shown(id)) < 0)
        box->insertItem(0, unknown, shown(id));
    box->setCurrentIndex(box->findData(shown(id)));
}

constexpr std::pair<ActivityDialog::Tab, const char*> tab_names[] = {
    {ActivityDialog::Tab::general, "General"},
    {ActivityDialog::Tab::details, "Details"},
    {ActivityDialog::Tab::recurring, "Recurring"}};

// What the box shows unless it was changed is as near to the number as it could come.
int typed_number(const QSpinBox* box, int number) {
    return box->value() == std::clamp(number, box->minimum(), box->maximum()) ? number : box->value();
}

std::string chosen(const QComboBox* box) { return stored(box->currentData().toString()); }

} // namespace

ActivityDialog::ActivityDialog(OpenDatabase& database, store::Activity activity, QWidget* parent)
    : QDialog(parent), database_(database), activity_(std::move(activity)),
      ui_(std::make_unique<Ui::ActivityDialog>()) {
    ui_->setupUi(this);
    setWindowTitle(activity_.id.empty() ? tr("Schedule Activity") : tr("Edit Activity"));
    show_choices();
    show_activity();
    connect_parts();
    show_tab(Tab::general);
}

ActivityDialog::~ActivityDialog() = default;

void ActivityDialog::show_choices() {
    using store::ActivityType;
    for (const auto type : {ActivityType::call, ActivityType::meeting, ActivityType::to_do})
        ui_->type_box->addItem(type_icon(type), type_name(type), static_cast<int>(type));
    for (const auto priority : {store::Priority::high, store::Priority::medium, store::Priority::low})
        ui_->priority_box->addItem(priority_name(priority), static_cast<int>(priority));
    for (const store::User& user : database_.directory().users())
        ui_->user_box->addItem(shown(user.name), shown(user.id));
    ui_->group_box->addItem(tr("None"), QString());
    for (const store::Group& group : database_.directory().groups())
        ui_->group_box->addItem(shown(group.name), shown(group.id));
    ui_->date_edit->set_locale(database_.locale());
    ui_->time_edit->set_locale(database_.locale());
}

void ActivityDialog::show_activity() {
    ui_->type_box->setCurrentIndex(ui_->type_box->findData(static_cast<int>(activity_.type)));
    ui_->priority_box->setCurrentIndex(ui_->priority_box->findData(static_cast<int>(activity_.priority)));
    ui_->date_edit->set_date(activity_.start);
    ui_->time_edit->set_time(activity_.start.value_or(store::DateTime()));
    ui_->duration_box->setValue(activity_.duration);
    ui_->contact_chooser->show_contacts(activity_.contacts, database_.directory());
    contacts_shown_ = ui_->contact_chooser->contacts();
    ui_->regarding_edit->setText(shown(activity_.regarding));
    ui_->colour_box->set_colour(activity_.colour);
    choose(ui_->user_box, activity_.user, tr("Nobody"));
    choose(ui_->group_box, activity_.group, tr("Unknown"));
    ui_->private_box->setChecked(activity_.is_private);
    ui_->alarm_box->setChecked(activity_.alarm);
    ui_->alarm_lead_box->setValue(activity_.alarm_lead);
    ui_->alarm_lead_box->setEnabled(activity_.alarm);
    ui_->details_edit->setPlainText(shown(activity_.details));
    ui_->recurring_tab->show_rule(activity_.recurrence, activity_.exceptions,
                                  activity_.start.value_or(database_.today()), database_.locale());
}

void ActivityDialog::connect_parts() {
    connect(ui_->alarm_box, &QCheckBox::toggled, ui_->alarm_lead_box, &QWidget::setEnabled);
    connect(ui_->date_edit, &widgets::DateField::date_changed, this,
            [this] { ui_->recurring_tab->set_start(*ui_->date_edit->known_date()); });
}

void ActivityDialog::show_tab(Tab tab) {
    ui_->tabs->setCurrentIndex(static_cast<int>(tab));
    QWidget* const first[] = {ui_->regarding_edit, ui_->details_edit, ui_->recurring_tab};
    first[static_cast<int>(tab)]->setFocus();
}

void ActivityDialog::show_tab(const std::string& name) {
    for (const auto& [tab, its_name] : tab_names)
        if (name == its_name)
            return show_tab(tab);
    model::refuse("The dialog has no tab \"" + name + "\".");
}

void ActivityDialog::fill(const model::ActivityValues& values) {
    const model::ReadValues read = model::read_values(values, database_.directory().users(), database_.locale());
    if (read.type)
        ui_->type_box->setCurrentIndex(ui_->type_box->findData(static_cast<int>(*read.type)));
    if (read.date)
        show_date(*read.date);
    if (read.time)
        ui_->time_edit->set_time(*read.time);
    if (read.duration)
        ui_->duration_box->setValue(*read.duration);
    if (read.regarding)
        ui_->regarding_edit->setText(shown(*read.regarding));
    if (read.priority)
        ui_->priority_box->setCurrentIndex(ui_->priority_box->findData(static_cast<int>(*read.priority)));
    if (read.user)
        choose(ui_->user_box, *read.user, tr("Nobody"));
}

void ActivityDialog::show_date(values::DateTime date) {
    ui_->date_edit->set_date(date);
    ui_->recurring_tab->set_start(date);
}

// An activity that came without a date keeps none until the user gives it one.
std::optional<store::DateTime> ActivityDialog::typed_start() const {
    const auto date = ui_->date_edit->date();
    model::require(date || !activity_.start, "Give the activity a date.");
    if (!date)
        return std::nullopt;
    return store::DateTime::from_seconds(date->seconds() + ui_->time_edit->time().seconds());
}

store::Activity ActivityDialog::typed() const {
    store::Activity result = activity_;
    result.type = static_cast<store::ActivityType>(ui_->type_box->currentData().toInt());
    result.priority = static_cast<store::Priority>(ui_->priority_box->currentData().toInt());
    result.start = typed_start();
    result.duration = typed_number(ui_->duration_box, activity_.duration);
    const bool has_moved = result.start != activity_.start || result.duration != activity_.duration;
    if (result.start && (has_moved || is_new()))
        result.end = result.start->plus_minutes(result.duration);
    if (ui_->contact_chooser->contacts() != contacts_shown_)
        result.contacts = ui_->contact_chooser->contacts();
    if (is_new() || ui_->regarding_edit->isModified())
        result.regarding = stored(ui_->regarding_edit->text());
    result.colour = ui_->colour_box->colour();
    result.user = chosen(ui_->user_box);
    result.group = chosen(ui_->group_box);
    result.is_private = ui_->private_box->isChecked();
    result.alarm = ui_->alarm_box->isChecked();
    result.alarm_lead = typed_number(ui_->alarm_lead_box, activity_.alarm_lead);
    if (ui_->details_edit->document()->isModified())
        result.details = stored(ui_->details_edit->toPlainText());
    result.recurrence = ui_->recurring_tab->rule();
    result.exceptions = ui_->recurring_tab->exceptions();
    return result;
}

void ActivityDialog::require_complete(const store::Activity& activity) const {
    const bool may_be_alone = !is_new() && activity_.contacts.empty();
    model::require(may_be_alone || !activity.contacts.empty(), "Choose at least one contact for the activity.");
    model::require(activity.start || activity.recurrence.kind == store::RecurrenceKind::none,
                   "An activity that repeats needs a date.");
}

void ActivityDialog::store_typed() {
    const store::Activity activity = typed();
    if (!is_new() && activity == activity_)
        return;
    require_complete(activity);
    if (is_new())
        database_.store().add(activity);
    else
        database_.store().update(activity);
}

void ActivityDialog::accept() {
    if (result() == Accepted)
        return; // the second click of a double one, which would store a new activity twice
    if (attempt(this, [this] { store_typed(); }))
        QDialog::accept();
}

} // namespace windows
