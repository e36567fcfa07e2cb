#include "desk/store/people_records.h"

#include "core/values/failure.h"
#include "core/values/ids.h"
#include "desk/store/conflict.h"
#include "desk/store/contact_fields.h"
#include "desk/store/sql.h"

#include <algorithm>

namespace store {

namespace {

Contact contact_of(const Rows& rows) {
    Contact contact{.id = rows.text(0), .fields = {}, .revision = rows.number(1)};
    int column = 2;
    for (const ContactField& field : contact_fields()) {
        if (const std::string_view text = rows.view(column++); !text.empty())
            contact.fields.emplace_hint(contact.fields.end(), field.number, text);
    }
    return contact;
}

void require_known_fields(const Contact& contact) {
    for (const auto& [number, text] : contact.fields) {
        const auto same = [number = number](const ContactField& field) { return field.number == number; };
        if (std::none_of(contact_fields().begin(), contact_fields().end(), same))
            throw values::Failure(values::FailureNumber::invalid_property_index,
                                  "There is no contact field " + std::to_string(number) + ".");
    }
}

void bind_fields(Rows& statement, const Contact& contact) {
    for (const ContactField& field : contact_fields()) {
        const auto place = contact.fields.find(field.number);
        statement.bind_all(place == contact.fields.end() ? std::string_view() : std::string_view(place->second));
    }
}

} // namespace

std::vector<User> PeopleRecords::users() {
    std::vector<User> result;
    Rows rows = connection_.query(sql::users);
    while (rows.step())
        result.push_back(
            {.id = rows.text(0), .name = rows.text(1), .security = rows.text(2), .access = rows.text(3)});
    return result;
}

std::string PeopleRecords::add(const User& user) {
    std::string id;
    transactions_.together([&] {
        id = transactions_.id_for(user.id, "users", 'U');
        connection_.run(sql::add_user, id, transactions_.next_revision(), user.name, user.security, user.access);
    });
    return id;
}

std::vector<Contact> PeopleRecords::contacts() {
    std::vector<Contact> result;
    Rows rows = connection_.query(sql::contacts());
    while (rows.step())
        result.push_back(contact_of(rows));
    return result;
}

std::optional<Contact> PeopleRecords::contact(const std::string& id) {
    Rows rows = connection_.query(sql::contact(), values::whole_id(id));
    return rows.step() ? std::optional(contact_of(rows)) : std::nullopt;
}

std::string PeopleRecords::add(const Contact& contact) {
    require_known_fields(contact);
    std::string id;
    transactions_.together([&] {
        id = transactions_.id_for(contact.id, "contacts", 'C');
        Rows statement = connection_.query(sql::add_contact(), id, transactions_.next_revision());
        bind_fields(statement, contact);
        statement.step();
    });
    return id;
}

std::int64_t PeopleRecords::update(const Contact& contact) {
    require_known_fields(contact);
    std::int64_t revision = 0;
    transactions_.together([&] {
        const std::string id = values::whole_id(contact.id);
        revision = transactions_.next_revision();
        Rows statement = connection_.query(sql::update_contact(), revision);
        bind_fields(statement, contact);
        statement.bind_all(id, contact.revision);
        statement.step();
        if (connection_.changed_rows() == 0)
            fail_with_conflict("contact", connection_.query(sql::contact_exists, id).step()
                                              ? EditConflict::Cause::changed
                                              : EditConflict::Cause::deleted);
    });
    return revision;
}

std::vector<Group> PeopleRecords::groups() {
    std::vector<Group> result;
    Rows rows = connection_.query(sql::groups);
    while (rows.step())
        result.push_back({.id = rows.text(0), .name = rows.text(1), .contacts = members(rows.text(0))});
    return result;
}

std::optional<Group> PeopleRecords::group(const std::string& id) {
    Rows rows = connection_.query(sql::group, values::whole_id(id));
    if (!rows.step())
        return std::nullopt;
    return Group{.id = rows.text(0), .name = rows.text(1), .contacts = members(rows.text(0))};
}

std::string PeopleRecords::add(const Group& group) {
    std::string id;
    transactions_.together([&] {
        id = transactions_.id_for(group.id, "groups", 'G');
        connection_.run(sql::add_group, id, transactions_.next_revision(), group.name);
        write_members(id, group.contacts);
    });
    return id;
}

void PeopleRecords::update(const Group& group) {
    transactions_.together([&] {
        const std::string id = values::whole_id(group.id);
        connection_.run(sql::update_group, transactions_.next_revision(), group.name, id);
        if (connection_.changed_rows() == 0)
            fail_with_conflict("group", EditConflict::Cause::deleted);
        connection_.run(sql::clear_group_members, id);
        write_members(id, group.contacts);
    });
}

std::vector<std::string> PeopleRecords::members(const std::string& group) {
    std::vector<std::string> result;
    Rows rows = connection_.query(sql::group_members, group);
    while (rows.step())
        result.push_back(rows.text(0));
    return result;
}

void PeopleRecords::write_members(const std::string& group, const std::vector<std::string>& contacts) {
    int position = 0;
    for (const std::string& contact : contacts)
        connection_.run(sql::add_group_member, group, position++, values::whole_id(contact));
}

std::vector<Note> PeopleRecords::notes(const std::string& contact) {
    std::vector<Note> result;
    Rows rows = connection_.query(sql::notes, values::whole_id(contact));
    while (rows.step())
        result.push_back({.id = rows.text(0),
                          .contact = rows.text(1),
                          .written = DateTime::from_seconds(rows.number(2)),
                          .text = rows.text(3)});
    return result;
}

std::string PeopleRecords::add(const Note& note) {
    std::string id;
    transactions_.together([&] {
        id = transactions_.id_for(note.id, "notes", 'N');
        connection_.run(sql::add_note, id, transactions_.next_revision(), values::whole_id(note.contact),
                        note.written.seconds(), note.text);
    });
    return id;
}

} // namespace store
