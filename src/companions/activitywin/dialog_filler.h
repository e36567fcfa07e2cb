#pragma once

#include "contract/activity_dialog_proxy.h"
#include "core/settings/per_user_store.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QTimer>

#include <chrono>

namespace companions {

// Waits for the dialog that the calendar has the contact desk open, and gives it what the calendar left in the
// per-user store: the values of a new activity, or, for a stored one whose recurring settings are to be edited,
// the word to show its Recurring tab. It begins before the dialog opens as well as after.
class DialogFiller : public QObject {
    Q_OBJECT

public:
    DialogFiller(const QDBusConnection& bus, settings::PerUserStore& values,
                 std::chrono::milliseconds patience = std::chrono::minutes(1));

    // Takes the word about the recurring settings out of the store, so that it serves once, and waits. Fails with
    // 5 when the store can't be written.
    void start();

Q_SIGNALS:
    // Once. The problem is empty when the dialog has got what is for it, else a sentence: no dialog opened in
    // time, or the desk can't be reached.
    void done(const QString& problem);

private:
    void attend(const QString& kind);
    void attend_reply(const QDBusPendingCall& call);
    QDBusPendingReply<> fill();
    void end(const QString& problem);

    settings::PerUserStore& values_;
    ActivityDialogProxy dialog_;
    QDBusServiceWatcher departure_;
    QTimer patience_;
    bool is_for_recurring_ = false;
    bool is_attended_ = false; // the dialog has been found
    bool is_done_ = false;
};

} // namespace companions
