#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <chrono>
#include <functional>

namespace windows {

struct Message {
    QStringList addresses; // what is no plain address is left out
    QString subject;
    QString attachment_name; // a plain file name
    QByteArray attachment;
};

// The machine's mail program. Attachments lie in a folder that only the user can read, which goes with this
// object.
class Mail : public QObject {
    Q_OBJECT

public:
    using Done = std::function<void(bool is_taken)>;

    explicit Mail(std::chrono::milliseconds patience = std::chrono::seconds(5)) : patience_(patience) {}

    // Opens a new message in the mail program and returns. `done` is called once from a later event: true when the
    // program took the message or works on it for longer than the patience, false when there is none or it failed.
    // Fails with 440 when the attachment can't be written.
    void hand_over(const Message& message, Done done);

private:
    QString keep(const Message& message);
    void start(const QString& program, const QStringList& arguments, Done done);

    const std::chrono::milliseconds patience_;
    QTemporaryDir folder_;
    int messages_ = 0;
};

} // namespace windows
