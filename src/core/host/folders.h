#pragma once

#include <string>

namespace host {

// The places on disk that the program knows.
class Folders {
public:
    virtual ~Folders() = default;
    // The folder with the program's pictures, template, manual, settings and holidays; without a separator at
    // its end. It can be written.
    virtual std::string program_folder() const = 0;
    // The full path of a name in the program's folder.
    std::string in_program_folder(const std::string& name) const { return program_folder() + "/" + name; }
};

} // namespace host
