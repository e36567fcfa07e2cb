#pragma once

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <system_error>

namespace support {

// An empty folder that goes away with its contents.
class TemporaryFolder {
public:
    TemporaryFolder()
        : path_(std::filesystem::temp_directory_path() /
                ("orvanta-test-" + std::to_string(std::random_device()()) + "-" +
                 std::to_string(std::random_device()()))) {
        std::filesystem::create_directory(path_);
    }
    ~TemporaryFolder() {
        std::error_code error;
        std::filesystem::remove_all(path_, error);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::string path() const { return path_.string(); }
    std::string file(const std::string& name) const { return (path_ / name).string(); }
    // How many files and folders lie in it.
    std::ptrdiff_t count() const {
        return std::distance(std::filesystem::directory_iterator(path_), std::filesystem::directory_iterator());
    }

private:
    std::filesystem::path path_;
};

inline std::string content_of(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

// Writes as an editor that isn't ours does: in place.
inline void write_file(const std::string& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
}

// Makes the file look as if it was last written a minute ago.
inline void age(const std::string& path) {
    std::filesystem::last_write_time(path, std::filesystem::last_write_time(path) - std::chrono::minutes(1));
}

} // namespace support
