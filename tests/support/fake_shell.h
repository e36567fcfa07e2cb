#pragma once

#include "core/host/shell.h"

#include <string>
#include <vector>

namespace support {

// Records what was handed to the desktop; `succeeds` is the answer to every request.
class FakeShell : public host::Shell {
public:
    bool open(const std::string& file_or_page) override {
        opened.push_back(file_or_page);
        return succeeds;
    }
    bool start_companion(const std::string& name) override {
        started.push_back(name);
        return succeeds;
    }
    void beep() override { ++beeps; }

    std::vector<std::string> opened;
    std::vector<std::string> started;
    int beeps = 0;
    bool succeeds = true;
};

} // namespace support
