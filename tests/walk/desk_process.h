#pragma once

#include <QCoreApplication>
#include <QProcess>

#include <csignal>
#include <gtest/gtest.h>
#include <sys/prctl.h>

namespace walk {

// The contact desk of the walk, a process of its own.
class DeskProcess {
public:
    DeskProcess(const QString& bus, const QString& database, const QString& folder, unsigned seed) {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert("HOME", folder);
        process_.setProcessEnvironment(environment);
        process_.setWorkingDirectory(folder);
        process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process_.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
        process_.start(QCoreApplication::applicationDirPath() + "/walk_desk",
                       {bus, database, QString::number(seed)});
        while (!process_.canReadLine() && process_.waitForReadyRead())
            ;
        EXPECT_EQ(process_.readLine(), "ready\n");
    }

    bool runs() const { return process_.state() == QProcess::Running; }
    // Once the desk has been asked to close. Anything but 0 tells of a crash or a leak.
    int exit_code() {
        EXPECT_TRUE(process_.waitForFinished());
        return process_.exitStatus() == QProcess::NormalExit ? process_.exitCode() : -1;
    }

private:
    QProcess process_;
};

} // namespace walk
