#pragma once

#include "core/host/files.h"

namespace host {

// Files by the standard library alone, for tests and for platforms without an adapter. It knows neither another
// program's locks nor how to force bytes onto the disk: a killed process leaves the old or the new file, a power
// cut may not.
class PlainFiles : public Files {
public:
    bool exists(const std::string& path) const override;
    std::optional<FileStamp> stamp(const std::string& path) const override;
    std::optional<FileContent> read(const std::string& path, std::size_t most) const override;
    bool replace(const std::string& path, const std::string& bytes) override;
    std::unique_ptr<FileLock> lock(const std::string& path) override;
};

} // namespace host
