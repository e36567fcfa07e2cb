#include "support/plain_files.h"

#include <chrono>
#include <filesystem>
#include <fstream>
#include <random>
#include <system_error>
#include <thread>

namespace support {

namespace {

namespace fs = std::filesystem;
using std::chrono::file_clock;
using std::chrono::milliseconds;
using std::chrono::seconds;

// Longer than the coarsest grain of times that file systems have, two seconds.
constexpr auto settling_time = seconds(3);
constexpr auto lock_patience = seconds(5);
// Locks are held for one reading and one replacing of a small file; an older one was left by a process that died.
constexpr auto lock_lifetime = seconds(20);

fs::path path_of(const std::string& utf8) { return fs::path(std::u8string(utf8.begin(), utf8.end())); }

// The file that a chain of links ends at; it need not be there.
std::optional<fs::path> link_target(fs::path path) {
    std::error_code error;
    for (int links = 0; links < 40; ++links) {
        if (!fs::is_symlink(path, error))
            return path;
        const fs::path next = fs::read_symlink(path, error);
        if (error)
            return std::nullopt;
        path = path.parent_path() / next;
    }
    return std::nullopt;
}

bool can_be_written(const fs::path& file) {
    std::error_code error;
    const fs::perms any_write = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    const fs::file_status status = fs::status(file, error);
    return fs::is_regular_file(status) && (status.permissions() & any_write) != fs::perms::none &&
           std::ofstream(file, std::ios::binary | std::ios::in).is_open();
}

std::string random_name() {
    std::random_device source;
    return std::to_string(source()) + std::to_string(source());
}

bool write_whole(const fs::path& path, const std::string& bytes) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    return !file.fail();
}

// A folder of this name is the lock: making it succeeds for one process alone.
class FolderLock : public host::FileLock {
public:
    explicit FolderLock(fs::path folder) : folder_(std::move(folder)) {}
    ~FolderLock() override {
        std::error_code error; // whoever broke the lock has removed it already
        fs::remove(folder_, error);
    }

private:
    fs::path folder_;
};

} // namespace

bool PlainFiles::exists(const std::string& path) const {
    std::error_code error;
    return fs::exists(path_of(path), error);
}

std::optional<host::FileStamp> PlainFiles::stamp(const std::string& path) const {
    const fs::path file = path_of(path);
    std::error_code error;
    if (!fs::is_regular_file(file, error))
        return std::nullopt;
    const auto size = fs::file_size(file, error);
    if (error)
        return std::nullopt;
    const auto modified = fs::last_write_time(file, error);
    if (error)
        return std::nullopt;
    return host::FileStamp{.size = size, .modified = modified.time_since_epoch().count()};
}

std::optional<host::FileContent> PlainFiles::read(const std::string& path, std::size_t most) const {
    const auto before = stamp(path);
    if (!before || before->size > most)
        return std::nullopt;
    const auto now = file_clock::now();
    std::ifstream file(path_of(path), std::ios::binary);
    host::FileContent content{.bytes = std::string(before->size, '\0'), .stamp = *before};
    if (!file.read(content.bytes.data(), static_cast<std::streamsize>(content.bytes.size())) && !file.eof())
        return std::nullopt;
    content.bytes.resize(static_cast<std::size_t>(file.gcount()));
    const file_clock::time_point modified{file_clock::duration(before->modified)};
    content.settled = now - modified > settling_time;
    return content;
}

bool PlainFiles::replace(const std::string& path, const std::string& bytes) {
    const auto target = link_target(path_of(path));
    std::error_code error;
    if (!target || (fs::exists(*target, error) && !can_be_written(*target)))
        return false;
    fs::path fresh = *target;
    fresh += "." + random_name();
    bool done = write_whole(fresh, bytes);
    if (done && fs::exists(*target, error))
        fs::permissions(fresh, fs::status(*target).permissions(), error);
    if (done && !error)
        fs::rename(fresh, *target, error);
    done = done && !error;
    if (!done)
        fs::remove(fresh, error);
    return done;
}

std::unique_ptr<host::FileLock> PlainFiles::lock(const std::string& path) {
    const auto target = link_target(path_of(path));
    if (!target)
        return nullptr;
    fs::path folder = *target;
    folder += ".lock";
    const auto deadline = std::chrono::steady_clock::now() + lock_patience;
    while (true) {
        std::error_code error;
        if (fs::create_directory(folder, error))
            return std::make_unique<FolderLock>(folder);
        const auto made = fs::last_write_time(folder, error);
        if (!error && file_clock::now() - made > lock_lifetime)
            fs::remove(folder, error);
        else if (error && !fs::exists(folder.parent_path()))
            return nullptr;
        if (std::chrono::steady_clock::now() > deadline)
            return nullptr;
        std::this_thread::sleep_for(milliseconds(2));
    }
}

} // namespace support
