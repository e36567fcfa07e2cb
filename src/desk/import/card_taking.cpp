#include "desk/import/card_taking.h"

#include "desk/import/digest.h"

#include <algorithm>

namespace importing {
namespace {

using store::ImportedRecord;

std::string told_by(const FoundCard& card) {
    Digest digest;
    digest.add(digest_of(card.contact));
    for (const FoundNote& note : card.notes)
        digest.add(note.text);
    return digest.text();
}

} // namespace

void CardTaking::take(const FoundCard& card) {
    if (card.is_empty())
        return skip(card, "It has neither a name nor a company.");
    const std::string contact = contact_of(card);
    if (card.is_own)
        people_.claim(contact);
    for (const Membership& membership : card.groups)
        groups_.join(membership, contact);
}

std::string CardTaking::contact_of(const FoundCard& card) {
    const ImportedRecord imported{
        .kind = store::RecordKind::contact, .uid = card.uid, .record = {}, .told = told_by(card), .kept = {}};
    if (const auto id = card.uid.empty() ? std::nullopt : people_.contact_named(card.uid)) {
        const auto before = store_.imported_records().of(imported.kind, "", imported.uid);
        take_again(card, imported, *store_.contact(*id),
                   before.empty() ? std::nullopt : std::optional(before.front()));
        return *id;
    }
    if (const auto id = known(card)) {
        skip(card, "The database has this contact already.");
        return *id;
    }
    return add(card, imported);
}

// Two cards of a desk are two contacts, however alike.
std::optional<std::string> CardTaking::known(const FoundCard& card) const {
    return card.is_own ? people_.known_and_free(card.contact) : people_.known(card.contact);
}

std::string CardTaking::add(const FoundCard& card, ImportedRecord imported) {
    const std::string id = people_.add(card.contact);
    imported.record = id;
    add_notes(card, id);
    if (!imported.uid.empty())
        remember(std::move(imported));
    for (const std::string& change : card.changes)
        report_.changed.push_back({card.source, change});
    return id;
}

void CardTaking::take_again(const FoundCard& card, ImportedRecord imported, store::Contact current,
                            const std::optional<ImportedRecord>& before) {
    const std::string now = digest_of(current);
    const bool is_same = before ? imported.told == before->told : digest_of(card.contact) == now;
    const bool is_untouched = before ? before->kept == now : is_same || card.exported == now;
    if (is_same) {
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
    for (const FoundNote& found : card.notes) {
        const auto is_found = [&](const store::Note& note) {
            return note.text == found.text && (!found.written || note.written == found.written);
        };
        if (std::ranges::any_of(there, is_found))
            continue;
        there.push_back({.contact = contact, .written = found.written.value_or(now_), .text = found.text});
        store_.add(there.back());
        ++report_.notes;
    }
}

void CardTaking::remember(ImportedRecord imported) {
    imported.kept = digest_of(*store_.contact(imported.record));
    store_.imported_records().remember(imported);
}

} // namespace importing
