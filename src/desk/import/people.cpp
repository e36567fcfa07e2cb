#include "desk/import/people.h"

#include "core/values/text.h"
#include "desk/import/digest.h"
#include "desk/import/own_lines.h"
#include "desk/store/contact_fields.h"
#include "desk/store/imported_records.h"

#include <algorithm>
#include <utility>

namespace importing {
namespace {

namespace field = store::contact_field;

std::string value_of(const store::Contact& contact, int number) {
    const auto place = contact.fields.find(number);
    return place == contact.fields.end() ? std::string() : values::lower(values::trimmed(place->second));
}

// What two cards of one person have in common.
std::string card_key(const store::Contact& contact) {
    const std::string mail = value_of(contact, field::e_mail);
    const std::string rest = mail.empty() ? "\n" + value_of(contact, field::company) : mail;
    return value_of(contact, field::name) + "\n" + rest;
}

} // namespace

People::People(store::Store& store, const std::string& user)
    : store_(store), user_(values::lower(user)), identity_(store.identity()) {
    for (const store::Contact& contact : store.contacts())
        know(contact.id, contact);
}

void People::know(const std::string& id, const store::Contact& contact) {
    if (const std::string mail = value_of(contact, field::e_mail); !mail.empty())
        by_mail_.emplace(mail, id);
    if (const std::string name = value_of(contact, field::name); !name.empty())
        by_name_.emplace(name, id);
    by_card_.emplace(card_key(contact), id);
}

std::string People::add(const store::Contact& contact) {
    std::string id = store_.add(contact);
    know(id, contact);
    ++added_;
    return id;
}

std::optional<std::string> People::contact_named(const std::string& uid) {
    const auto before = store_.imported_records().of(store::RecordKind::contact, "", uid);
    const auto id = before.empty() ? own::id_of(uid, identity_) : before.front().record;
    return id && store_.contact(*id) ? id : std::nullopt;
}

std::string People::own_contact_of(const Person& person) {
    auto id = contact_named(person.uid);
    if (!id) {
        store::Contact contact;
        for (const auto& [number, text] :
             {std::pair{field::name, person.name}, {field::e_mail, person.mail}, {field::company, person.company}})
            if (!text.empty())
                contact.fields[number] = text;
        store::ImportedRecord imported{.kind = store::RecordKind::contact, .uid = person.uid};
        id = known_and_free(contact);
        if (!id) { // its card, if one follows, tells the rest
            id = add(contact);
            imported.kept = digest_of(contact);
        }
        imported.record = *id;
        store_.imported_records().remember(imported);
    }
    claim(*id);
    return *id;
}

std::string People::contact_of(const Person& person) {
    if (!person.uid.empty())
        return own_contact_of(person);
    const auto mail = by_mail_.find(values::lower(person.mail));
    if (mail != by_mail_.end())
        return mail->second;
    const auto name = by_name_.find(values::lower(person.name));
    if (name != by_name_.end())
        return name->second;
    if (values::lower(person.name) == user_ || (person.name.empty() && person.mail.empty()))
        return {};
    store::Contact contact;
    contact.fields[field::name] = person.name.empty() ? person.mail : person.name;
    if (!person.mail.empty())
        contact.fields[field::e_mail] = person.mail;
    return add(contact);
}

std::vector<std::string> People::contacts_of(const std::vector<Person>& persons) {
    std::vector<std::string> contacts;
    for (const Person& person : persons) {
        const std::string id = contact_of(person);
        if (!id.empty() && std::find(contacts.begin(), contacts.end(), id) == contacts.end())
            contacts.push_back(id);
    }
    return contacts;
}

std::string People::contact_of_calendar(const std::string& name) {
    const store::ImportedRecord imported{.kind = store::RecordKind::contact, .uid = "calendar:" + name};
    const auto before = store_.imported_records().of(imported.kind, "", imported.uid);
    if (!before.empty() && store_.contact(before.front().record))
        return before.front().record;
    const auto known = by_name_.find(values::lower(name));
    store::ImportedRecord now = imported;
    now.record = known != by_name_.end() ? known->second : add(store::Contact{.fields = {{field::name, name}}});
    store_.imported_records().remember(now);
    return now.record;
}

std::optional<std::string> People::known(const store::Contact& contact) const {
    const auto place = by_card_.find(card_key(contact));
    return place == by_card_.end() ? std::nullopt : std::optional(place->second);
}

std::optional<std::string> People::known_and_free(const store::Contact& contact) const {
    auto id = known(contact);
    return id && !claimed_.contains(*id) ? id : std::nullopt;
}

} // namespace importing
