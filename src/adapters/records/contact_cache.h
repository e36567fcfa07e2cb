#pragma once

#include "adapters/records/id_map.h"
#include "desk/store/activity_reading.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace records {

// What has been read of a database's contacts: of each one that was asked for, the fields that were ever asked for
// of any, since a calendar shows the same few of all of them.
class ContactCache {
public:
    explicit ContactCache(store::ActivityReading& reading) : reading_(reading) {}

    bool exists(const store::Id& contact) { return fields_of(contact) != nullptr; }
    // A field of those in contact_fields(). None when there is no such contact. It lives until the next call of
    // any member.
    const std::string* field(const store::Id& contact, int number);

    void forget(const store::Id& contact);
    void forget_all();

private:
    using Fields = std::vector<std::string>; // as many of the wanted ones as were wanted when they were read

    const Fields* fields_of(const store::Id& contact);

    store::ActivityReading& reading_;
    std::vector<int> wanted_; // the numbers of the fields, in the order in which they were first asked for
    IdMap<Fields> contacts_;
    std::optional<std::pair<store::Id, const Fields*>> last_; // mostly the next question is for the same one
};

} // namespace records
