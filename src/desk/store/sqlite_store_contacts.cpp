#include "core/values/failure.h"
#include "core/values/ids.h"
#include "desk/store/contact_fields.h"
#include "desk/store/sql.h"
#include "desk/store/sqlite_store.h"

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

std::vector<Contact> SqliteStore::contacts() {
    std::vector<Contact> result;
    Rows rows = connection_->query(sql::contacts());
    while (rows.step())
        result.push_back(contact_of(rows));
    return result;
}

std::optional<Contact> SqliteStore::contact(const std::string& id) {
    Rows rows = connection_->query(sql::contact(), values::whole_id(id));
    return rows.step() ? std::optional(contact_of(rows)) : std::nullopt;
}

std::string SqliteStore::add(const Contact& contact) {
    require_known_fields(contact);
    std::string id;
    together([&] {
        id = id_for(contact.id, "contacts", 'C');
        Rows statement = connection_->query(sql::add_contact(), id, next_revision());
        bind_fields(statement, contact);
        statement.step();
    });
    return id;
}

std::int64_t SqliteStore::update(const Contact& contact) {
    require_known_fields(contact);
    std::int64_t revision = 0;
    together([&] {
        const std::string id = values::whole_id(contact.id);
        revision = next_revision();
        Rows statement = connection_->query(sql::update_contact(), revision);
        bind_fields(statement, contact);
        statement.bind_all(id, contact.revision);
        statement.step();
        if (connection_->changed_rows() == 0)
            fail_as_changed("contact", connection_->query(sql::contact_exists, id).step());
    });
    return revision;
}

std::vector<Group> SqliteStore::groups() {
    std::vector<Group> result;
    Rows rows = connection_->query(sql::groups);
    while (rows.step())
        result.push_back({.id = rows.text(0), .name = rows.text(1), .contacts = members(rows.text(0))});
    return result;
}

std::optional<Group> SqliteStore::group(const std::string& id) {
    Rows rows = connection_->query(sql::group, values::whole_id(id));
    if (!rows.step())
        return std::nullopt;
    return Group{.id = rows.text(0), .name = rows.text(1), .contacts = members(rows.text(0))};
}

std::string SqliteStore::add(const Group& group) {
    std::string id;
    together([&] {
        id = id_for(group.id, "groups", 'G');
        connection_->run(sql::add_group, id, next_revision(), group.name);
        write_members(id, group.contacts);
    });
    return id;
}

void SqliteStore::update(const Group& group) {
    together([&] {
        const std::string id = values::whole_id(group.id);
        connection_->run(sql::update_group, next_revision(), group.name, id);
        if (connection_->changed_rows() == 0)
            fail_as_changed("group", false);
        connection_->run(sql::clear_group_members, id);
        write_members(id, group.contacts);
    });
}

std::vector<std::string> SqliteStore::members(const std::string& group) {
    std::vector<std::string> result;
    Rows rows = connection_->query(sql::group_members, group);
    while (rows.step())
        result.push_back(rows.text(0));
    return result;
}

void SqliteStore::write_members(const std::string& group, const std::vector<std::string>& contacts) {
    int position = 0;
    for (const std::string& contact : contacts)
        connection_->run(sql::add_group_member, group, position++, values::whole_id(contact));
}

} // namespace store
