#pragma once

#include "support/private_bus.h"

#include <QCoreApplication>
#include <QProcess>

#include <csignal>
#include <gtest/gtest.h>

// Starts desk_process.cpp on a bus and ends it with itself.
class DeskProcess {
public:
    explicit DeskProcess(const support::PrivateBus& bus) {
        process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process_.start(QCoreApplication::applicationDirPath() + "/desk_process", {bus.address()});
        EXPECT_TRUE(process_.waitForReadyRead()) << "The desk's process didn't start.";
    }
    ~DeskProcess() {
        freeze(false);
        kill();
    }

    void kill() {
        process_.kill();
        process_.waitForFinished();
    }
    void freeze(bool on = true) {
        if (process_.processId() != 0)
            ::kill(static_cast<pid_t>(process_.processId()), on ? SIGSTOP : SIGCONT);
    }
    bool runs() const { return process_.state() == QProcess::Running; }

private:
    QProcess process_;
};
