#pragma once

#include "core/host/folders.h"

#include <string>
#include <utility>

namespace support {

// A program's folder of that name.
class FakeFolders : public host::Folders {
public:
    explicit FakeFolders(std::string folder = "/program") : folder_(std::move(folder)) {}
    std::string program_folder() const override { return folder_; }

private:
    std::string folder_;
};

} // namespace support
