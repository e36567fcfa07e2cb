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
// the word to show its Recurring tab. It begins before the dialog opens as well as after. The calendar withdraws
// the word when the desk has refused that dialog, or it has closed; whoever waits for it then ends without a deed.
class DialogFiller : public QObject {
    Q_OBJECT

public:
    DialogFiller(const QDBusConnection& bus, settings::PerUserStore& values,
                 std::chrono::milliseconds patience = std::chrono::minutes(1));

    // Reads whether it is for the recurring settings, and waits.
    void start();

Q_SIGNALS:
    // Once. The problem is empty when the dialog has got what is for it, else a sentence: no dialog opened in
    // time, it was refused, or the desk can't be reached.
    void done(const QString& problem);

private:
    bool is_announced() const; // the recurring settings
    bool end_if_withdrawn();
    void take_word();
    void attend(const QString& kind);
    void attend_reply(const QDBusPendingCall& call);
    QDBusPendingReply<> fill();
    void end(const QString& problem);

    settings::PerUserStore& values_;
    ActivityDialogProxy dialog_;
    QDBusServiceWatcher departure_;
    QTimer patience_;
    QTimer withdrawal_; // looks for it
    bool is_for_recurring_ = false;
    bool is_attended_ = false; // the dialog has been found
    bool is_done_ = false;
};

} // namespace companions
