#pragma once

#include "desk/store/store.h"
#include "support/temporary_folder.h"

#include <memory>
#include <string>

namespace support {

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
