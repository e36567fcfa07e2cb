#include "companions/activitywin/dialog_filler.h"

#include "contract/names.h"
#include "core/settings/catalogue.h"
#include "core/values/failure.h"

#include <QDBusPendingCallWatcher>

#include <utility>

namespace companions {

namespace keys = settings::keys;

namespace {

constexpr int withdrawal_milliseconds = 200;

} // namespace

DialogFiller::DialogFiller(const QDBusConnection& bus, settings::PerUserStore& values,
                           std::chrono::milliseconds patience)
    : values_(values), dialog_(contract::bus_name, contract::activity_dialog_path, bus),
      departure_(contract::bus_name, bus, QDBusServiceWatcher::WatchForUnregistration) {
    patience_.setSingleShot(true);
    patience_.setInterval(patience);
    withdrawal_.setInterval(withdrawal_milliseconds);
    connect(&patience_, &QTimer::timeout, this, [this] {
        take_word();
        end("No dialog for an activity has opened.");
    });
    connect(&withdrawal_, &QTimer::timeout, this, &DialogFiller::end_if_withdrawn);
    connect(&departure_, &QDBusServiceWatcher::serviceUnregistered, this,
            [this] { end("The contact desk has ended."); });
    connect(&dialog_, &ActivityDialogProxy::Opened, this, &DialogFiller::attend);
}

void DialogFiller::start() {
    is_for_recurring_ = is_announced();
    if (!dialog_.connection().isConnected())
        return end("There is no session bus.");
    patience_.start();
    if (is_for_recurring_)
        withdrawal_.start();
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

bool DialogFiller::is_announced() const { return settings::read(values_, keys::activity_recurring_edit) == "1"; }

bool DialogFiller::end_if_withdrawn() {
    const bool is_withdrawn = is_for_recurring_ && !is_attended_ && !is_announced();
    if (is_withdrawn)
        end("The dialog for the recurring settings wasn't opened.");
    return is_withdrawn;
}

// It serves once. It can be gone already, or a store that can't be written keeps it.
void DialogFiller::take_word() {
    if (is_for_recurring_)
        values::ignoring_failure([this] { settings::remove(values_, keys::activity_recurring_edit); });
}

// A dialog for a stored activity that wasn't asked for is another one's, and the right one may yet come.
void DialogFiller::attend(const QString& kind) {
    const bool is_new = kind == contract::new_activity;
    const bool is_meant = is_new || (kind == contract::stored_activity && is_for_recurring_);
    if (!is_meant || end_if_withdrawn() || std::exchange(is_attended_, true))
        return;
    take_word();
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
    withdrawal_.stop();
    Q_EMIT done(problem);
}

} // namespace companions
