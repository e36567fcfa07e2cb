#pragma once

#include "desk/import/card_reader.h"
#include "desk/import/groups.h"
#include "desk/import/people.h"
#include "desk/store/imported_records.h"
#include "desk/store/store.h"

#include <optional>
#include <string>

namespace importing {

// Address cards into the database, each once however often its file comes. What the file has changed is changed;
// what was changed here since stays. A card without a name of its own (UID) is told from others by its person's
// name and mail address or company.
class CardTaking {
public:
    CardTaking(store::Store& store, People& people, Groups& groups, store::DateTime now, Report& report)
        : store_(store), people_(people), groups_(groups), now_(now), report_(report) {}

    void take(const FoundCard& card);

private:
    std::string contact_of(const FoundCard& card);
    std::string add(const FoundCard& card, store::ImportedRecord imported);
    // The contact that has the card's name, where `before` tells of an earlier import.
    void take_again(const FoundCard& card, store::ImportedRecord imported, store::Contact current,
                    const std::optional<store::ImportedRecord>& before);
    std::optional<std::string> known(const FoundCard& card) const;
    void add_notes(const FoundCard& card, const std::string& contact);
    void remember(store::ImportedRecord imported);
    void skip(const FoundCard& card, const char* why) { report_.skipped.push_back({card.source, why}); }

    store::Store& store_;
    People& people_;
    Groups& groups_;
    const store::DateTime now_;
    Report& report_;
};

} // namespace importing
