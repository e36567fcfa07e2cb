#include "windows/activity_commands.h"

#include "windows/activity_dialog.h"
#include "windows/boxes.h"
#include "windows/conversions.h"
#include "windows/refusal.h"

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

ActivityCommands::ActivityCommands(Session& session, Lookup& lookup, QWidget& window)
    : session_(session), lookup_(lookup), window_(window) {}

void ActivityCommands::schedule(store::ActivityType type, std::function<void()> finished) {
    require_ready();
    store::Activity activity;
    activity.type = type;
    activity.start = next_half_hour(session_.now());
    activity.duration = usual_duration(type);
    activity.alarm_lead = 15;
    activity.user = first_enabled(session_.directory().users());
    if (!lookup_.current().empty())
        activity.contacts.push_back(lookup_.current());
    open(activity, std::move(finished));
}

void ActivityCommands::edit(const std::string& activity, std::function<void()> finished) {
    require_ready();
    open(stored_activity(activity), std::move(finished));
}

void ActivityCommands::remove(const std::string& activity) {
    require_ready();
    const store::Activity record = stored_activity(activity);
    const QString question = record.recurrence.kind == store::RecurrenceKind::none
                                 ? QObject::tr("Delete the activity \"%1\"?")
                                 : QObject::tr("Delete the whole series \"%1\"?");
    if (!confirm(&window_, QObject::tr("Delete Activity"), question.arg(shown(record.regarding))))
        return;
    session_.store().remove_activity(activity);
    session_.refresh();
}

void ActivityCommands::require_ready() const {
    if (is_dialog_open())
        refuse("An activity is being edited already. Close its dialog first.");
    if (session_.store().is_read_only())
        refuse("The database is open for reading alone.");
}

store::Activity ActivityCommands::stored_activity(const std::string& id) const {
    if (id.empty())
        refuse("No activity is selected.");
    auto activity = session_.store().activity(id);
    if (!activity)
        refuse("The activity isn't in the database any more.");
    return *activity;
}

void ActivityCommands::open(const store::Activity& activity, std::function<void()> finished) {
    if (window_.isMinimized())
        window_.showNormal();
    window_.raise();
    dialog_ = new ActivityDialog(session_, activity, &window_);
    dialog_->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(dialog_, &QDialog::finished, &window_, [this, finished = std::move(finished)] {
        dialog_ = nullptr;
        attempt(&window_, [this] { session_.refresh(); });
        if (finished)
            finished();
    });
    dialog_->open();
    dialog_->activateWindow();
}

} // namespace windows
