#include "companions/activitywin/dialog_filler.h"

#include "contract/names.h"
#include "core/settings/catalogue.h"

#include <QDBusPendingCallWatcher>

#include <utility>

namespace companions {

namespace keys = settings::keys;

DialogFiller::DialogFiller(const QDBusConnection& bus, settings::PerUserStore& values,
                           std::chrono::milliseconds patience)
    : values_(values), dialog_(contract::bus_name, contract::activity_dialog_path, bus),
      departure_(contract::bus_name, bus, QDBusServiceWatcher::WatchForUnregistration) {
    patience_.setSingleShot(true);
    patience_.setInterval(patience);
    connect(&patience_, &QTimer::timeout, this, [this] { end("No dialog for an activity has opened."); });
    connect(&departure_, &QDBusServiceWatcher::serviceUnregistered, this,
            [this] { end("The contact desk has ended."); });
    connect(&dialog_, &ActivityDialogProxy::Opened, this, &DialogFiller::attend);
}

void DialogFiller::start() {
    is_for_recurring_ = settings::read(values_, keys::activity_recurring_edit) == "1";
    if (is_for_recurring_)
        settings::remove(values_, keys::activity_recurring_edit);
    if (!dialog_.connection().isConnected())
        return end("There is no session bus.");
    patience_.start();
    auto* watcher = new QDBusPendingCallWatcher(dialog_.OpenDialog(), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        const QDBusPendingReply<QString> kind = *watcher;
        watcher->deleteLater();
        if (kind.isError())
            end(kind.error().message());
        else
            attend(kind.value());
    });
}

// A dialog for a stored activity that wasn't asked for is another one's, and the right one may yet come.
void DialogFiller::attend(const QString& kind) {
    const bool is_new = kind == contract::new_activity;
    const bool is_meant = is_new || (kind == contract::stored_activity && is_for_recurring_);
    if (!is_meant || std::exchange(is_attended_, true))
        return;
    attend_reply(is_new ? fill() : dialog_.ShowTab("Recurring"));
}

void DialogFiller::attend_reply(const QDBusPendingCall& call) {
    auto* watcher = new QDBusPendingCallWatcher(call, this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        const QDBusPendingReply<> reply = *watcher;
        watcher->deleteLater();
        end(reply.isError() ? reply.error().message() : QString());
    });
}

QDBusPendingReply<> DialogFiller::fill() {
    const auto value = [this](const settings::UserKey& key) {
        return contract::on_wire(settings::read(values_, key));
    };
    return dialog_.Fill(value(keys::activity_type), value(keys::activity_date), value(keys::activity_time),
                        value(keys::activity_duration), value(keys::activity_regarding),
                        value(keys::activity_priority), value(keys::activity_for));
}

void DialogFiller::end(const QString& problem) {
    if (std::exchange(is_done_, true))
        return;
    patience_.stop();
    Q_EMIT done(problem);
}

} // namespace companions
