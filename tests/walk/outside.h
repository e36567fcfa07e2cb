#pragma once

#include "companions/activitywin/dialog_filler.h"
#include "core/host/shell.h"
#include "core/settings/per_user_store.h"
#include "core/shell/program.h"

namespace walk {

// The desktop without other programs: files and pages lead nowhere, and the companion works inside this process.
class CompanionsOnly : public host::Shell {
public:
    CompanionsOnly(const QDBusConnection& bus, settings::PerUserStore& values) : bus_(bus), values_(values) {}

    bool open(const std::string&) override { return true; }
    bool start_companion(const std::string& name) override {
        if (name != "ActivityWin")
            return false;
        auto* filler = new companions::DialogFiller(bus_, values_);
        filler->setParent(&fillers_);
        QObject::connect(filler, &companions::DialogFiller::done, filler, &QObject::deleteLater);
        filler->start();
        return true;
    }
    void beep() override {}

private:
    QDBusConnection bus_;
    settings::PerUserStore& values_;
    QObject fillers_;
};

// The process that doesn't end, so that the calendar can be started again in it.
class NoProcess : public shell::Program {
public:
    bool already_running() override { return false; }
    void end() override { has_ended = true; }

    bool has_ended = false;
};

} // namespace walk
