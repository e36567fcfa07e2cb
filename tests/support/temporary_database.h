#pragma once

#include "store/store.h"

#include <stdlib.h>

#include <filesystem>
#include <memory>
#include <string>

namespace support {

// A folder of its own that goes with the object, for tests that need real files.
class TemporaryFolder {
public:
    TemporaryFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "orvanta-test-XXXXXX").string();
        path_ = ::mkdtemp(pattern.data());
    }
    ~TemporaryFolder() { std::filesystem::remove_all(path_); }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::string file(const std::string& name) const { return (path_ / name).string(); }

private:
    std::filesystem::path path_;
};

// A new contact database in a file, its store, and the moment that the store believes it is.
class TemporaryDatabase {
public:
    TemporaryDatabase() : store_(store::Store::create(path(), clock())) {}

    std::string path() const { return folder_.file("contacts.desk"); }
    store::Store& store() { return *store_; }
    // Another process's view of the same file.
    std::unique_ptr<store::Store> open_again() { return store::Store::open(path(), clock()); }
    void close() { store_.reset(); }

    values::DateTime now = values::DateTime::of(2024, 3, 11, 9);

private:
    store::Clock clock() {
        return [this] { return now; };
    }

    TemporaryFolder folder_;
    std::unique_ptr<store::Store> store_;
};

} // namespace support
