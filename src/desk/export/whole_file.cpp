#include "desk/export/whole_file.h"

#include "core/values/failure.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>

namespace exporting {
namespace {

[[noreturn]] void fail(const std::string& path, const std::string& why) {
    throw values::Failure(values::FailureNumber::automation,
                          "The file \"" + path + "\" can't be written: " + why + ". Nothing was changed.");
}

std::string reason(int number) { return std::generic_category().message(number); }

// A new file beside the one that is to be written, which goes unless it is put in that one's place.
class FileBeside {
public:
    explicit FileBeside(const std::string& path) : target_(path) {
        constexpr int most_tries = 100;
        for (int number = 0; file_ < 0 && number < most_tries; ++number) {
            path_ = path + "." + std::to_string(::getpid()) + "-" + std::to_string(number) + ".part";
            file_ = ::open(path_.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0666);
            if (file_ < 0 && errno != EEXIST)
                break;
        }
        if (file_ < 0)
            fail(target_, reason(errno));
    }
    ~FileBeside() {
        close();
        if (!path_.empty())
            ::unlink(path_.c_str());
    }
    FileBeside(const FileBeside&) = delete;
    FileBeside& operator=(const FileBeside&) = delete;

    void write(std::string_view bytes) {
        while (!bytes.empty()) {
            const ssize_t written = ::write(file_, bytes.data(), bytes.size());
            if (written < 0 && errno == EINTR)
                continue;
            check(written > 0);
            bytes.remove_prefix(static_cast<std::size_t>(written));
        }
    }

    // Also what only the closing tells, as on a network's disk.
    void put_in_place() {
        struct stat before {};
        if (::stat(target_.c_str(), &before) == 0)
            check(::fchmod(file_, before.st_mode & 07777) == 0);
        check(::fsync(file_) == 0);
        check(close() == 0);
        check(std::rename(path_.c_str(), target_.c_str()) == 0);
        path_.clear();
    }

private:
    void check(bool done) const {
        if (!done)
            fail(target_, reason(errno));
    }
    int close() {
        const int file = file_;
        file_ = -1;
        return file < 0 ? 0 : ::close(file);
    }

    const std::string target_;
    std::string path_;
    int file_ = -1;
};

// So that the new name outlives a failure of the machine. Some file systems don't know it of folders; the file is
// there all the same.
void sync_folder(const std::filesystem::path& path) {
    const std::string folder = path.has_parent_path() ? path.parent_path().string() : ".";
    if (const int file = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); file >= 0) {
        ::fsync(file);
        ::close(file);
    }
}

} // namespace

void write_whole_file(const std::string& path, std::string_view bytes) {
    std::error_code unknown;
    const bool is_there = std::filesystem::exists(path, unknown);
    if (is_there && !std::filesystem::is_regular_file(path, unknown))
        fail(path, "it isn't a plain file");
    // Of a link the file is written that it stands for.
    std::filesystem::path target = path;
    if (is_there)
        target = std::filesystem::canonical(path, unknown);
    if (unknown)
        fail(path, unknown.message());
    FileBeside file(target.string());
    file.write(bytes);
    file.put_in_place();
    sync_folder(target);
}

} // namespace exporting
