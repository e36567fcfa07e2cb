#include "desk/windows/activity_commands.h"

#include "desk/model/refusal.h"
#include "desk/windows/boxes.h"
#include "desk/windows/clear_dialog.h"
#include "desk/windows/conversions.h"

namespace windows {
namespace {

int usual_duration(store::ActivityType type) { return type == store::ActivityType::call ? 15 : 60; }

store::DateTime next_half_hour(store::DateTime now) {
    const int minutes = now.hour() * 60 + now.minute();
    return now.date().plus_minutes((minutes / 30 + 1) * 30);
}

std::string first_enabled(const std::vector<store::User>& users) {
    for (const store::User& user : users)
        if (user.access == "Enabled")
            return user.id;
    return users.empty() ? std::string() : users.front().id;
}

} // namespace

ActivityCommands::ActivityCommands(OpenDatabase& database, Lookup& lookup, QWidget& window)
    : database_(database), lookup_(lookup), window_(window), sender_(database, window) {
    QObject::connect(&database, &OpenDatabase::closed, &window, [this] { close_dialog(); });
}

void ActivityCommands::schedule(store::ActivityType type, Finished finished) {
    require_idle();
    require_writable();
    store::Activity activity;
    activity.type = type;
    activity.start = next_half_hour(database_.now());
    activity.duration = usual_duration(type);
    activity.alarm_lead = 15;
    activity.user = first_enabled(database_.directory().users());
    if (!lookup_.current().empty())
        activity.contacts.push_back(lookup_.current());
    open_fields(new ActivityDialog(database_, activity, &window_), std::move(finished));
}

void ActivityCommands::edit(const std::string& activity, ActivityDialog::Tab tab, Finished finished) {
    require_idle();
    require_writable();
    auto* dialog = new ActivityDialog(database_, stored_activity(activity), &window_);
    dialog->show_tab(tab);
    open_fields(dialog, std::move(finished));
}

void ActivityCommands::clear(const std::string& activity, Finished finished) {
    require_idle();
    require_writable();
    open(new ClearDialog(database_, stored_activity(activity), &window_), std::move(finished));
}

void ActivityCommands::send(const std::string& activity, Finished finished) {
    require_idle();
    sender_.send(stored_activity(activity), ending(std::move(finished)));
    is_under_way_ = true;
}

void ActivityCommands::remove(const std::string& activity) {
    require_idle();
    require_writable();
    const store::Activity record = stored_activity(activity);
    const QString question = record.recurrence.kind == store::RecurrenceKind::none
                                 ? QObject::tr("Delete the activity \"%1\"?")
                                 : QObject::tr("Delete the whole series \"%1\"?");
    if (!confirm(&window_, QObject::tr("Delete Activity"), question.arg(shown(record.regarding))))
        return;
    database_.store().remove_activity(activity);
    database_.refresh();
}

void ActivityCommands::close_dialog() {
    if (dialog_)
        dialog_->reject();
    sender_.close_dialog();
}

void ActivityCommands::require_idle() const {
    if (is_under_way_)
        model::refuse("Another activity is being worked on already. Close its dialog first.");
}

void ActivityCommands::require_writable() const {
    if (database_.store().is_read_only())
        model::refuse("The database is open for reading alone.");
}

store::Activity ActivityCommands::stored_activity(const std::string& id) const {
    if (id.empty())
        model::refuse("No activity is selected.");
    auto activity = database_.store().activity(id);
    if (!activity)
        model::refuse("The activity isn't in the database any more.");
    return *activity;
}

void ActivityCommands::open_fields(ActivityDialog* dialog, Finished finished) {
    const bool is_awaited = static_cast<bool>(finished);
    open(dialog, std::move(finished));
    if (!is_awaited)
        return;
    awaited_dialog_ = dialog;
    if (on_awaited_dialog)
        on_awaited_dialog();
}

void ActivityCommands::open(QDialog* dialog, Finished finished) {
    if (window_.isMinimized())
        window_.showNormal();
    window_.raise();
    dialog_ = dialog;
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(dialog, &QDialog::finished, &window_, ending(std::move(finished)));
    is_under_way_ = true;
    dialog->open();
    dialog->activateWindow();
}

ActivityCommands::Finished ActivityCommands::ending(Finished finished) {
    return [this, finished = std::move(finished)] {
        is_under_way_ = false;
        dialog_ = nullptr;
        awaited_dialog_ = nullptr;
        attempt(&window_, [this] { database_.refresh(); });
        if (finished)
            finished();
    };
}

} // namespace windows
