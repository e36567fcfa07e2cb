#pragma once

#include "core/host/files.h"

#include <map>
#include <set>
#include <string>

namespace support {

// Files in memory, by their path. A test fills `content` or looks into it.
class MemoryFiles : public host::Files {
public:
    bool exists(const std::string& path) const override { return content.contains(path); }
    std::optional<host::FileStamp> stamp(const std::string& path) const override {
        const auto found = content.find(path);
        if (found == content.end())
            return {};
        return host::FileStamp{.size = found->second.size(),
                               .modified = static_cast<std::int64_t>(std::hash<std::string>()(found->second)),
                               .identity = 0};
    }
    std::optional<host::FileContent> read(const std::string& path, std::size_t most) const override {
        const auto found = content.find(path);
        if (found == content.end() || found->second.size() > most)
            return {};
        return host::FileContent{.bytes = found->second, .stamp = *stamp(path), .settled = true};
    }
    bool replace(const std::string& path, const std::string& bytes) override {
        if (read_only.contains(path))
            return false;
        content[path] = bytes;
        return true;
    }
    std::unique_ptr<host::FileLock> lock(const std::string&) override {
        return std::make_unique<host::FileLock>();
    }

    std::map<std::string, std::string> content;
    std::set<std::string> read_only; // paths that can't be written
};

} // namespace support
