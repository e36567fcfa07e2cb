#pragma once

#include "core/values/failure.h"
#include "desk/import/import_file.h"
#include "fuzz/target.h"
#include "support/temporary_database.h"

#include <string>

namespace fuzz {

// Takes the input into a database that afterwards is as it was. Only failures with a sentence may come out of it.
inline void import_and_forget(std::string_view input, const std::string& name) {
    static support::TemporaryDatabase database;
    static const std::string user = database.store().add(store::User{.name = "Ann"});
    struct Forget {};
    try {
        database.store().together([&] {
            importing::import_bytes(
                database.store(), input, name,
                {.now = values::DateTime::of(2024, 1, 10), .local_time = importing::system_local_time});
            throw Forget();
        });
    } catch (const Forget&) {
    } catch (const values::Failure& failure) {
        require(!failure.description().empty());
    }
}

} // namespace fuzz
