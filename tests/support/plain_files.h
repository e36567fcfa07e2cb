#pragma once

#include "core/host/files.h"

namespace support {

// Files by the standard library alone. They know neither another program's locks nor how to force bytes onto the
// disk: a killed process leaves the old or the new file, a power cut may not.
class PlainFiles : public host::Files {
public:
    bool exists(const std::string& path) const override;
    std::optional<host::FileStamp> stamp(const std::string& path) const override;
    std::optional<host::FileContent> read(const std::string& path, std::size_t most) const override;
    bool replace(const std::string& path, const std::string& bytes) override;
    std::unique_ptr<host::FileLock> lock(const std::string& path) override;
};

} // namespace support
