#include "desk/windows/activity_sender.h"

#include "desk/export/calendar_writer.h"
#include "desk/export/whole_file.h"
#include "desk/store/contact_fields.h"
#include "desk/windows/boxes.h"
#include "desk/windows/conversions.h"
#include "desk/windows/rows.h"

#include <QFileDialog>
#include <QMessageBox>

#include <utility>

namespace windows {
namespace {

namespace field = store::contact_field;

} // namespace

void ActivitySender::send(const store::Activity& activity, std::function<void()> finished) {
    const Message message = message_of(activity);
    mail_.hand_over(message, [this, message, finished = std::move(finished)](bool is_taken) {
        if (is_taken)
            finished();
        else
            offer_file(message, finished);
    });
}

void ActivitySender::close_dialog() {
    if (dialog_)
        dialog_->reject();
}

Message ActivitySender::message_of(const store::Activity& activity) const {
    Message message;
    std::vector<exporting::Participant> participants;
    for (const std::string& id : activity.contacts) {
        const store::Contact* contact = database_.directory().contact(id);
        if (!contact)
            continue;
        const std::string mail = model::field_of(*contact, field::e_mail);
        participants.push_back({database_.directory().contact_name(id), mail});
        message.addresses << shown(mail).trimmed();
    }
    message.subject = QStringLiteral("%1: %2").arg(type_name(activity.type), shown(activity.regarding));
    message.attachment_name = type_name(activity.type).toLower() + ".ics";
    message.attachment = QByteArray::fromStdString(exporting::calendar_text(
        activity, participants,
        {.identity = database_.store().identity(), .stamp = QDateTime::currentSecsSinceEpoch()}));
    return message;
}

void ActivitySender::offer_file(const Message& message, std::function<void()> finished) {
    auto* box = new QMessageBox(QMessageBox::Warning, QObject::tr("Send Activity"),
                                QObject::tr("No mail program took the activity."),
                                QMessageBox::Save | QMessageBox::Cancel, &window_);
    box->setTextFormat(Qt::PlainText);
    box->setInformativeText(QObject::tr("It can be saved as a calendar file instead, to be sent another way."));
    box->setDefaultButton(QMessageBox::Save);
    open(box, [=, this, finished = std::move(finished)](int answer) {
        if (answer == QMessageBox::Save)
            ask_for_file(message, finished);
        else
            finished();
    });
}

void ActivitySender::ask_for_file(const Message& message, std::function<void()> finished) {
    auto* dialog =
        new QFileDialog(&window_, QObject::tr("Save Activity"), QString(), QObject::tr("Calendar files (*.ics)"));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix("ics");
    dialog->selectFile(message.attachment_name);
    open(dialog, [=, this, finished = std::move(finished)](int result) {
        if (result == QDialog::Accepted)
            attempt(&window_, [&] {
                exporting::write_whole_file(stored(dialog->selectedFiles().value(0)),
                                            message.attachment.toStdString());
            });
        finished();
    });
}

void ActivitySender::open(QDialog* dialog, std::function<void(int result)> closed) {
    dialog_ = dialog;
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(dialog, &QDialog::finished, &window_, std::move(closed));
    dialog->open();
}

} // namespace windows
