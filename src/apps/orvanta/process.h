#pragma once

#include "adapters/qt/single_instance.h"
#include "core/shell/program.h"

#include <QCoreApplication>

namespace apps {

// The calendar's own process.
class Process : public shell::Program {
public:
    bool already_running() override { return instance_.already_running(); }
    void end() override { QCoreApplication::exit(0); }

private:
    qt::SingleInstance instance_{"orvanta"};
};

} // namespace apps
