#pragma once

#include <string>
#include <vector>

namespace store {

enum class RecordKind { activity, contact, group }; // stored by number

// A record that came from a file, with what a later import finds it by and can tell changes by.
struct ImportedRecord {
    RecordKind kind = RecordKind::activity;
    std::string user{};       // for whom it was taken; empty for what isn't a user's
    std::string uid{};        // the name that the file has for it
    std::string occurrence{}; // which of several records of that name
    std::string record{};     // its id; the record itself may have been deleted since
    std::string told{};       // a digest of what the file told
    std::string kept{};       // a digest of the record as it was then stored

    bool operator==(const ImportedRecord&) const = default;
};

// What was imported. Failures as the store's.
class ImportedRecords {
public:
    virtual ~ImportedRecords() = default;
    virtual std::vector<ImportedRecord> of(RecordKind kind, const std::string& user,
                                           const std::string& uid) = 0; // by occurrence
    virtual void remember(const ImportedRecord& imported) = 0; // in the place of the one that is found by the same
    virtual void forget(const ImportedRecord& imported) = 0;   // an absent one is no failure
};

} // namespace store
