#include "desk/windows/activity_list.h"

#include "core/values/failure.h"
#include "desk/windows/boxes.h"
#include "desk/windows/conversions.h"
#include "desk/windows/rows.h"
#include "ui_activity_list.h"
#include "widgets/date_field.h"

#include <QMenu>

#include <algorithm>
#include <iterator>
#include <memory>
#include <optional>
#include <tuple>
#include <utility>

namespace windows {
namespace {

constexpr int rows_at_once = 500;

// The button tells when its menu keeps something out.
template <typename Choices>
void mark(QPushButton* button, const QString& name, const Choices& choices) {
    const auto shown = std::count_if(choices.begin(), choices.end(),
                                     [](const auto& choice) { return choice.action->isChecked(); });
    const bool is_whole = shown == static_cast<int>(choices.size());
    button->setText(is_whole ? name : QStringLiteral("%1 (%2 of %3)").arg(name).arg(shown).arg(choices.size()));
}

template <typename Kind, typename Choices>
std::set<Kind> checked(const Choices& choices) {
    std::set<Kind> kinds;
    for (const auto& choice : choices)
        if (choice.action->isChecked())
            kinds.insert(choice.kind);
    return kinds;
}

} // namespace

ActivityList::ActivityList(OpenDatabase& database, Scope scope, QWidget* parent)
    : QWidget(parent), database_(database), scope_(scope), ui_(std::make_unique<Ui::ActivityList>()) {
    ui_->setupUi(this);
    ui_->activity_table->set_columns(activity_columns(), date_column);
    for (widgets::DateField* field : {ui_->from_edit, ui_->to_edit}) {
        field->set_locale(database.locale());
        connect(field, &widgets::DateField::date_changed, this, &ActivityList::take_filter);
    }
    filter_.from = filter_.to = database.today();
    build_choices();
    show_users();
    show_filter();
    connect_bar();
    connect(&database, &OpenDatabase::changed, this, [this] {
        show_users();
        reload_when_seen();
    });
    connect(ui_->activity_table, &RecordTable::opened, this, &ActivityList::opened);
    connect(ui_->activity_table, &RecordTable::chosen, this, &ActivityList::chosen);
}

ActivityList::~ActivityList() = default;

void ActivityList::build_choices() {
    auto* types = new QMenu(this);
    types->setObjectName("types_menu");
    using store::ActivityType;
    for (const auto type : {ActivityType::call, ActivityType::meeting, ActivityType::to_do})
        types_.push_back({type, types->addAction(type_name(type) + "s")});
    ui_->types_button->setMenu(types);
    auto* priorities = new QMenu(this);
    priorities->setObjectName("priorities_menu");
    for (const auto priority : {store::Priority::high, store::Priority::medium, store::Priority::low})
        priorities_.push_back({priority, priorities->addAction(priority_name(priority))});
    ui_->priorities_button->setMenu(priorities);
    for (QMenu* menu : {types, priorities})
        for (QAction* action : menu->actions()) {
            action->setCheckable(true);
            connect(action, &QAction::triggered, this, &ActivityList::take_filter);
        }
}

void ActivityList::connect_bar() {
    connect(ui_->period_box, &QComboBox::activated, this, &ActivityList::take_filter);
    connect(ui_->cleared_box, &QCheckBox::clicked, this, &ActivityList::take_filter);
    connect(ui_->user_box, &QComboBox::activated, this, [this] {
        filter_.users = stored(ui_->user_box->currentData().toString());
        take_filter();
    });
}

void ActivityList::show_contact(const std::string& contact) {
    contact_ = contact;
    reload();
}

void ActivityList::set_filter(const model::ActivityFilter& filter) {
    const auto range = std::pair(filter_.from, filter_.to);
    filter_ = filter;
    if (filter.period != model::Period::range)
        std::tie(filter_.from, filter_.to) = range;
    show_filter();
    reload();
}

void ActivityList::take_filter() {
    filter_.types = checked<store::ActivityType>(types_);
    filter_.priorities = checked<store::Priority>(priorities_);
    filter_.period = static_cast<model::Period>(ui_->period_box->currentIndex());
    filter_.from = ui_->from_edit->known_date().value_or(filter_.from);
    filter_.to = ui_->to_edit->known_date().value_or(filter_.to);
    filter_.with_cleared = ui_->cleared_box->isChecked();
    show_filter();
    attempt(window(), [this] { reload(); });
}

void ActivityList::show_filter() {
    for (const auto& choice : types_)
        choice.action->setChecked(filter_.types.contains(choice.kind));
    for (const auto& choice : priorities_)
        choice.action->setChecked(filter_.priorities.contains(choice.kind));
    mark(ui_->types_button, tr("&Types"), types_);
    mark(ui_->priorities_button, tr("&Priorities"), priorities_);
    ui_->period_box->setCurrentIndex(static_cast<int>(filter_.period));
    ui_->from_edit->set_date(filter_.from);
    ui_->to_edit->set_date(filter_.to);
    const bool is_range = filter_.period == model::Period::range;
    for (QWidget* widget : {static_cast<QWidget*>(ui_->from_edit), static_cast<QWidget*>(ui_->to_edit),
                            static_cast<QWidget*>(ui_->to_label)})
        widget->setVisible(is_range);
    ui_->user_box->setCurrentIndex(ui_->user_box->findData(shown(filter_.users)));
    ui_->cleared_box->setChecked(filter_.with_cleared);
}

void ActivityList::show_users() {
    ui_->user_box->clear();
    ui_->user_box->addItem(tr("Everyone"), QString());
    for (const store::User& user : database_.directory().users())
        ui_->user_box->addItem(shown(user.name), shown(user.id));
    ui_->user_box->setCurrentIndex(ui_->user_box->findData(shown(filter_.users)));
}

// Everybody's activities can be many, so nobody waits for them unseen. A contact's rows are asked for from outside
// too and are always there.
void ActivityList::reload_when_seen() {
    is_stale_ = scope_ == Scope::everybody && !isVisible();
    if (!is_stale_)
        attempt(window(), [this] { reload(); });
}

void ActivityList::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (is_stale_)
        attempt(window(), [this] { reload(); });
}

void ActivityList::reload() {
    is_stale_ = false;
    const int seen = static_cast<int>(activities_.size());
    activities_.clear();
    const bool is_anybody = scope_ == Scope::everybody || !contact_.empty();
    if (!database_.is_open() || !is_anybody) {
        ui_->activity_table->show_rows({});
        show_count(0);
        return;
    }
    const auto found = std::make_shared<model::FilteredActivities>(
        database_.store(), filter_, database_.today(),
        scope_ == Scope::contact ? std::optional(contact_) : std::nullopt);
    if (scope_ == Scope::contact)
        ui_->activity_table->show_rows(rows_of(found->next(found->count())));
    else
        ui_->activity_table->show_rows(rows_of(found->next(std::max(seen, rows_at_once))), further_rows(found));
    show_count(found->count());
}

FurtherRows ActivityList::further_rows(const std::shared_ptr<model::FilteredActivities>& found) {
    const std::weak_ptr<store::Store> open = database_.kept_store();
    return [this, found, open] {
        std::vector<Row> rows;
        if (const auto store = open.lock())
            attempt(window(), [&] { rows = rows_of(found->next(rows_at_once)); });
        return rows;
    };
}

std::vector<Row> ActivityList::rows_of(std::vector<store::Activity> activities) {
    auto rows = activity_rows(activities, database_.directory(), database_.locale());
    std::ranges::move(activities, std::back_inserter(activities_));
    return rows;
}

void ActivityList::show_count(int count) {
    ui_->count_label->setText(count == 1 ? tr("1 activity") : tr("%1 activities").arg(count));
}

int ActivityList::row_count() const { return ui_->activity_table->row_count(); }

store::Activity ActivityList::activity(int row) const {
    const std::string id = ui_->activity_table->id_at(row);
    const auto found = std::find_if(activities_.begin(), activities_.end(),
                                    [&](const store::Activity& activity) { return activity.id == id; });
    if (id.empty() || found == activities_.end())
        throw values::Failure(values::FailureNumber::subscript_out_of_range);
    return *found;
}

void ActivityList::select(int row, bool selected) {
    const std::string id = activity(row).id;
    if (selected)
        ui_->activity_table->select(id);
    else if (current_id() == id)
        ui_->activity_table->clear_choice();
}

std::string ActivityList::current_id() const { return ui_->activity_table->current_id(); }

} // namespace windows
