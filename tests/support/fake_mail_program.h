#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

namespace support {

// Takes the place of the machine's mail program for as long as it lives: keeps what it is given, and answers with
// a status. Without one there is no mail program at all.
class FakeMailProgram {
public:
    FakeMailProgram() : path_(qgetenv("PATH")) { qputenv("PATH", folder_.path().toLocal8Bit()); }
    ~FakeMailProgram() { qputenv("PATH", path_); }
    FakeMailProgram(const FakeMailProgram&) = delete;
    FakeMailProgram& operator=(const FakeMailProgram&) = delete;

    // Answers at once with a status, or sleeps and answers with success.
    void install(int status, int seconds = 0) {
        QFile script(folder_.filePath("xdg-email"));
        script.open(QIODevice::WriteOnly);
        script.write(QString("#!/bin/sh\nfor word in \"$@\"; do printf '%%s\\0' \"$word\"; done > '%1/given'\n"
                             "[ %2 = 0 ] || exec /bin/sleep %2\nexit %3\n")
                         .replace("%%", "%")
                         .arg(folder_.path())
                         .arg(seconds)
                         .arg(status)
                         .toUtf8());
        script.close();
        script.setPermissions(QFileDevice::ReadOwner | QFileDevice::ExeOwner);
    }

    // The words of its command line; none when it wasn't started.
    QStringList given() const {
        QFile file(folder_.filePath("given"));
        if (!file.open(QIODevice::ReadOnly))
            return {};
        QStringList words;
        for (const QByteArray& word : file.readAll().split('\0'))
            words << QString::fromUtf8(word);
        words.removeLast();
        return words;
    }

private:
    QTemporaryDir folder_;
    QByteArray path_;
};

} // namespace support
