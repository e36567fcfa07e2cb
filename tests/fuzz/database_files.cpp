#include "adapters/records/desk_database.h"
#include "core/values/failure.h"
#include "desk/store/store.h"
#include "desk/store/temporary_instances.h"
#include "fuzz/target.h"
#include "support/temporary_folder.h"

#include <filesystem>

namespace {

void read_all(const std::string& path) {
    const auto store = store::Store::open(path);
    for (const store::Contact& contact : store->contacts())
        store->notes(contact.id);
    store->groups();
    store->users();
    store->activities({});
    store->temporary_instances().take_back_abandoned();
    store->add(store::Contact{.fields = {{26, "Zoe Quinn"}}});
}

void walk(const std::string& path) {
    const auto database = records::make_database([&] { return path; });
    database->OpenEx("");
    const auto activity = database->Activity();
    activity->SetDateScope(values::DateTime::of(2024, 1, 7), values::DateTime::of(2024, 1, 14));
    for (int records = 0; !activity->isEOF() && records < 1000; ++records, activity->MoveNext())
        for (int field = 0; field <= 210; ++field)
            activity->Data(field);
}

} // namespace

// A file that is called a database.
int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static const support::TemporaryFolder folder;
    const std::string path = folder.file("input.desk");
    for (const char* ending : {"-wal", "-shm"})
        std::filesystem::remove(path + ending);
    support::write_file(path, std::string(fuzz::text_of(bytes, size)));
    for (const auto& read : {read_all, walk})
        try {
            read(path);
        } catch (const values::Failure& failure) {
            fuzz::require(!failure.description().empty());
        }
    return 0;
}
