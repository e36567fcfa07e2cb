#pragma once

#include <QDBusConnection>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <csignal>
#include <gtest/gtest.h>
#include <sys/prctl.h>

namespace support {

// A message bus of the test's own, a process that ends with it. Nothing of the user's session is touched.
class PrivateBus {
public:
    PrivateBus() {
        QFile rules(folder_.filePath("bus.conf"));
        EXPECT_TRUE(rules.open(QIODevice::WriteOnly));
        rules.write(QString(R"(<busconfig><type>session</type><listen>unix:dir=%1</listen><auth>EXTERNAL</auth>
<policy context="default"><allow send_destination="*"/><allow receive_sender="*"/><allow own="*"/></policy>
</busconfig>)")
                        .arg(folder_.path())
                        .toUtf8());
        rules.close();
        daemon_.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
        daemon_.start("dbus-daemon",
                      {"--config-file=" + rules.fileName(), "--print-address", "--nofork", "--nopidfile"});
        while (!daemon_.canReadLine() && daemon_.waitForReadyRead())
            ;
        address_ = QString::fromUtf8(daemon_.readLine()).trimmed();
        EXPECT_FALSE(address_.isEmpty()) << daemon_.readAllStandardError().toStdString();
    }
    ~PrivateBus() {
        for (const auto& name : names_)
            QDBusConnection::disconnectFromBus(name);
        stop();
    }
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    const QString& address() const { return address_; }

    // A new connection, as another program has it.
    QDBusConnection connection() {
        static int count = 0;
        names_.push_back(QString("private-%1").arg(++count));
        return QDBusConnection::connectToBus(address_, names_.back());
    }

    void stop() {
        daemon_.kill();
        daemon_.waitForFinished();
    }

private:
    QTemporaryDir folder_;
    QProcess daemon_;
    QString address_;
    QStringList names_;
};

} // namespace support
