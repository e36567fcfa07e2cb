#pragma once

#include "desk/import/card_reader.h"
#include "desk/import/people.h"
#include "desk/store/imported_records.h"
#include "desk/store/store.h"

namespace importing {

// Address cards into the database, each once however often its file comes. What the file has changed is changed;
// what was changed here since stays. A card without a name of its own (UID) is told from others by its person's
// name and mail address or company.
class CardTaking {
public:
    CardTaking(store::Store& store, People& people, store::DateTime now, Report& report)
        : store_(store), people_(people), now_(now), report_(report) {}

    void take(const FoundCard& card);

private:
    void add(const FoundCard& card, store::ImportedRecord imported);
    void take_again(const FoundCard& card, store::ImportedRecord imported, store::Contact current,
                    const store::ImportedRecord& before);
    void add_notes(const FoundCard& card, const std::string& contact);
    void remember(store::ImportedRecord imported);
    void skip(const FoundCard& card, const char* why) { report_.skipped.push_back({card.source, why}); }

    store::Store& store_;
    People& people_;
    const store::DateTime now_;
    Report& report_;
};

} // namespace importing
