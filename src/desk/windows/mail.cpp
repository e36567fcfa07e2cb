#include "desk/windows/mail.h"

#include "desk/model/refusal.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTimer>

#include <memory>
#include <utility>

namespace windows {
namespace {

constexpr auto mail_program = "xdg-email";

// Mail programs take the message apart again by marks of their own, so that no text may hold one: a quote in a
// subject could name another file to attach.
QString plain(QString text) {
    text.replace('"', QChar(0x201D)).replace('\'', QChar(0x2019)).replace('`', QChar(0x2019));
    for (QChar& letter : text)
        if (letter.category() == QChar::Other_Control || letter == '\\')
            letter = ' ';
    return text.simplified();
}

bool is_address(const QString& text) {
    static const QRegularExpression address("\\A[A-Za-z0-9][A-Za-z0-9._+-]*@[A-Za-z0-9][A-Za-z0-9.-]*\\z");
    return address.match(text).hasMatch();
}

} // namespace

void Mail::hand_over(const Message& message, Done done) {
    const QString program = QStandardPaths::findExecutable(mail_program);
    if (program.isEmpty()) {
        QMetaObject::invokeMethod(
            this, [done = std::move(done)] { done(false); }, Qt::QueuedConnection);
        return;
    }
    QStringList arguments{"--utf8", "--subject", plain(message.subject), "--attach", keep(message)};
    for (const QString& address : message.addresses)
        if (is_address(address))
            arguments << address;
    start(program, arguments, std::move(done));
}

// Each in a folder of its own, so that its name can be the one that the receiver sees.
QString Mail::keep(const Message& message) {
    const QString folder = folder_.filePath(QString::number(++messages_));
    QFile file(QDir(folder).filePath(message.attachment_name));
    const bool is_written =
        folder_.isValid() && QDir().mkpath(folder) &&
        file.open(QIODevice::WriteOnly | QIODevice::NewOnly, QFileDevice::ReadOwner | QFileDevice::WriteOwner) &&
        file.write(message.attachment) == message.attachment.size() && file.flush();
    if (!is_written)
        model::refuse("The attachment can't be written to " + file.fileName().toStdString() + ".");
    return file.fileName();
}

void Mail::start(const QString& program, const QStringList& arguments, Done done) {
    auto* process = new QProcess(this);
    const auto settle = [done = std::make_shared<Done>(std::move(done))](bool is_taken) {
        if (const Done told = std::exchange(*done, nullptr))
            told(is_taken);
    };
    process->setStandardInputFile(QProcess::nullDevice());
    process->setProcessChannelMode(QProcess::ForwardedChannels);
    connect(process, &QProcess::finished, this, [=](int status, QProcess::ExitStatus how) {
        process->deleteLater();
        settle(how == QProcess::NormalExit && status == 0);
    });
    connect(process, &QProcess::errorOccurred, this, [=](QProcess::ProcessError error) {
        if (error != QProcess::FailedToStart)
            return; // which finishes as well
        process->deleteLater();
        settle(false);
    });
    QTimer::singleShot(patience_, process, [=] { settle(true); });
    process->start(program, arguments);
}

} // namespace windows
