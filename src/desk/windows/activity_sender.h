#pragma once

#include "desk/windows/mail.h"
#include "desk/windows/open_database.h"

#include <QDialog>
#include <QPointer>

#include <functional>

namespace windows {

// Sends an activity as a calendar file: by the mail program or, where there is none, into a file of the user's.
class ActivitySender {
public:
    ActivitySender(OpenDatabase& database, QWidget& window) : database_(database), window_(window) {}

    // Returns at once; `finished` is called once from a later event, when the message is on its way or the last
    // dialog has closed. Fails with 440 when the activity has no date.
    void send(const store::Activity& activity, std::function<void()> finished);
    // Closes the dialog that is open, if one is.
    void close_dialog();

private:
    Message message_of(const store::Activity& activity) const;
    void offer_file(const Message& message, std::function<void()> finished);
    void ask_for_file(const Message& message, std::function<void()> finished);
    void open(QDialog* dialog, std::function<void(int result)> closed);

    OpenDatabase& database_;
    QWidget& window_;
    Mail mail_;
    QPointer<QDialog> dialog_;
};

} // namespace windows
