#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace host {

// What tells one state of a file from another, at the cost of a look into its folder.
struct FileStamp {
    std::uint64_t size = 0;     // bytes
    std::int64_t modified = 0;  // as finely as the platform tells it
    std::uint64_t identity = 0; // the file's number on its disk, new after a replacement; 0 where there is none

    friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

struct FileContent {
    std::string bytes;
    FileStamp stamp; // from before the reading
    // False for a file changed so lately that one more change could leave it the same stamp. Such a stamp proves
    // nothing.
    bool settled = false;
};

// Held as long as it lives.
class FileLock {
public:
    virtual ~FileLock() = default;
};

// Whole files on disk.
class Files {
public:
    virtual ~Files() = default;
    // True for a file or a folder that is there. Nothing is opened.
    virtual bool exists(const std::string& path) const = 0;
    // Absent when there is no such file, when it is a folder, and while another program has locked it.
    virtual std::optional<FileStamp> stamp(const std::string& path) const = 0;
    // Absent as above, and for a file that can't be read or has more than `most` bytes.
    virtual std::optional<FileContent> read(const std::string& path, std::size_t most) const = 0;
    // Makes these bytes the file's content: a full disk, a process killed on the way, or a power cut leaves the
    // old file or the new one. A link is followed, and the file keeps its permissions. In a folder that can't be
    // written the file itself is; there alone a power cut may leave it half old, half new. False, with nothing
    // changed, when the disk is full, the folder is missing, or the file is a folder, read-only, locked by another
    // program, or would have to be made in a folder that can't be written.
    virtual bool replace(const std::string& path, const std::string& bytes) = 0;
    // Keeps the other processes of this program that lock the same path out; they wait a few seconds. Null when
    // the lock can't be had. The lock isn't the file's own: the file may be replaced under it, or be missing. The
    // lock of a process that died frees itself.
    virtual std::unique_ptr<FileLock> lock(const std::string& path) = 0;
};

} // namespace host
