#pragma once

#include "desk/import/entry.h"
#include "desk/import/groups.h"
#include "desk/store/imported_records.h"
#include "desk/store/store.h"

#include <map>
#include <set>
#include <string>
#include <utility>

namespace importing {

// What becomes of activities that were taken before and have been deleted since.
enum class Deleted { stay_deleted, come_back };

// Activities of files into the database, each once however often its file comes. What the file has changed is
// changed; what was changed here since stays.
class ActivityTaking {
public:
    ActivityTaking(store::Store& store, People& people, Groups& groups, Deleted deleted, Report& report);

    void take(const FoundActivity& found, const std::string& user); // the id
    // Once all of the file is taken: removes what its users, or this one where it has nothing of the entry, have
    // of it from earlier files and the entry has no longer.
    void remove_gone(const std::string& uid, const std::string& user);

private:
    // What there is under one name for one user.
    struct Known {
        std::map<std::string, store::ImportedRecord> before{}; // from earlier imports, by occurrence
        std::set<std::string> there{};                         // the occurrences that this one has
        std::map<std::string, int> places{};                   // how many of them bear the same name
    };

    Known& known(const std::string& uid, const std::string& user);
    void add(const FoundActivity& found, store::ImportedRecord imported);
    void update(const FoundActivity& found, store::ImportedRecord imported, const store::Activity& current);
    void take_again(const FoundActivity& found, const store::ImportedRecord& imported,
                    const store::ImportedRecord& before);
    store::Activity record_of(const FoundActivity& found, const std::string& user);
    void remove_gone(const std::string& uid, const std::string& user, const std::set<std::string>& there);
    // An activity of this very database that is there; false for any other.
    bool take_back(const FoundActivity& found, const store::ImportedRecord& imported);
    void remember(store::ImportedRecord imported);
    void count_hours(const store::Activity& activity);

    store::Store& store_;
    People& people_;
    Groups& groups_;
    const std::string identity_;
    const Deleted deleted_;
    Report& report_;
    std::set<std::string> left_own_{};
    std::map<std::pair<std::string, std::string>, Known> known_{}; // by uid and user
};

} // namespace importing
