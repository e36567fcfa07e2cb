#pragma once

#include "core/host/folders.h"

#include <set>
#include <string>
#include <utility>

namespace support {

// A program's folder of that name, in which only the named paths exist.
class FakeFolders : public host::Folders {
public:
    explicit FakeFolders(std::string folder = "/program") : folder_(std::move(folder)) {}
    std::string program_folder() const override { return folder_; }
    bool exists(const std::string& path) const override { return existing.contains(path); }

    std::set<std::string> existing;

private:
    std::string folder_;
};

} // namespace support
