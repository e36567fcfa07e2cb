#include "desk/import/card_taking.h"

#include "desk/import/digest.h"

#include <algorithm>

namespace importing {
namespace {

using store::ImportedRecord;

std::string told_by(const FoundCard& card) {
    Digest digest;
    digest.add(digest_of(card.contact));
    for (const std::string& note : card.notes)
        digest.add(note);
    return digest.text();
}

} // namespace

void CardTaking::take(const FoundCard& card) {
    if (card.is_empty())
        return skip(card, "It has neither a name nor a company.");
    const ImportedRecord imported{
        .kind = store::RecordKind::contact, .uid = card.uid, .record = {}, .told = told_by(card), .kept = {}};
    const auto before = card.uid.empty() ? std::vector<ImportedRecord>()
                                         : store_.imported_records().of(imported.kind, "", imported.uid);
    auto current = before.empty() ? std::nullopt : store_.contact(before.front().record);
    if (current)
        take_again(card, imported, std::move(*current), before.front());
    else if (people_.has(card.contact))
        skip(card, "The database has this contact already.");
    else
        add(card, imported);
}

void CardTaking::add(const FoundCard& card, ImportedRecord imported) {
    imported.record = people_.add(card.contact);
    add_notes(card, imported.record);
    if (!imported.uid.empty())
        remember(std::move(imported));
    for (const std::string& change : card.changes)
        report_.changed.push_back({card.source, change});
}

void CardTaking::take_again(const FoundCard& card, ImportedRecord imported, store::Contact current,
                            const ImportedRecord& before) {
    const bool is_untouched = digest_of(current) == before.kept;
    if (imported.told == before.told) {
        ++(is_untouched ? report_.contacts_unchanged : report_.contacts_left_as_changed);
    } else if (is_untouched) {
        current.fields = card.contact.fields;
        store_.update(current);
        add_notes(card, current.id);
        imported.record = current.id;
        remember(std::move(imported));
        ++report_.contacts_updated;
    } else {
        ++report_.contacts_left_as_changed;
        skip(card, "It was changed in the file and, since it was taken, here too; what is here was left.");
    }
}

// Those that the contact doesn't have yet.
void CardTaking::add_notes(const FoundCard& card, const std::string& contact) {
    std::vector<store::Note> there = store_.notes(contact);
    for (const std::string& text : card.notes) {
        if (std::ranges::find(there, text, &store::Note::text) != there.end())
            continue;
        there.push_back({.contact = contact, .written = now_, .text = text});
        store_.add(there.back());
        ++report_.notes;
    }
}

void CardTaking::remember(ImportedRecord imported) {
    imported.kept = digest_of(*store_.contact(imported.record));
    store_.imported_records().remember(imported);
}

} // namespace importing
