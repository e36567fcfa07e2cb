#pragma once

#include "core/shell/program.h"

namespace support {

// Counts how often it was to end, and goes on.
class FakeProgram : public shell::Program {
public:
    bool already_running() override { return is_second; }
    void end() override { ++ends; }

    bool is_second = false;
    int ends = 0;
};

} // namespace support
