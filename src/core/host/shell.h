#pragma once

#include <string>

namespace host {

// Hands things to the desktop.
class Shell {
public:
    virtual ~Shell() = default;
    // Opens a file or page with the program that the desktop has for it. False when there is none.
    virtual bool open(const std::string& file_or_page) = 0;
    // Starts a companion program that lies in the program's folder, by its name without ending. False when it
    // isn't there or doesn't start.
    virtual bool start_companion(const std::string& name) = 0;
    virtual void beep() = 0;
};

} // namespace host
