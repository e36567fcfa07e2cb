#include "desk/store/sql.h"

#include "core/values/failure.h"
#include "desk/store/contact_fields.h"

#include <algorithm>

namespace store::sql {

namespace {

// The columns of a contact's fields, by rising field number as in contact_fields().
constexpr std::string_view contact_columns =
    "company, name, address, address_2, address_3, city, state, postcode, country, status, phone, fax, home_phone,"
    " mobile, pager, salutation, title, department, birthday, e_mail, web_site, referred_by, extension,"
    " record_creator, record_manager";

constexpr std::string_view activity_columns =
    "id, revision, edited_at, type, priority, regarding, starts_at, ends_at, duration, private, alarm,"
    " alarm_lead, colour, scheduled_for, contact_group, contact, contact_count, cleared, result, details,"
    " has_details, recurrence, frequency, until, days_of_week, weeks_of_month, days_of_month";

constexpr std::string_view row_columns =
    "starts_at, id, edited_at, type, priority, cleared, recurrence, ends_at, scheduled_for, contact_group, "
    "contact,"
    " contact_count, duration, alarm_lead, colour, private, alarm, has_details, frequency, until, days_of_week,"
    " weeks_of_month, days_of_month, regarding";

std::string join(std::initializer_list<std::string_view> pieces) {
    std::string result;
    for (const std::string_view piece : pieces)
        result += piece;
    return result;
}

int columns_in(std::string_view list) {
    int count = 1;
    for (const char c : list)
        count += c == ',';
    return count;
}

std::string_view contact_column(int number) {
    std::string_view rest = contact_columns;
    for (const ContactField& field : store::contact_fields()) {
        const std::string_view column = rest.substr(0, rest.find(", "));
        if (field.number == number)
            return column;
        rest.remove_prefix(std::min(rest.size(), column.size() + 2));
    }
    throw values::Failure(values::FailureNumber::invalid_property_index);
}

std::string insert(std::string_view table, std::string_view columns) {
    std::string marks = "?";
    for (int i = 1; i < columns_in(columns); ++i)
        marks += ", ?";
    return join({"INSERT INTO ", table, " (", columns, ") VALUES (", marks, ")"});
}

// Sets the columns but the id, where the id and the revision are the given ones.
std::string update(std::string_view table, std::string_view columns) {
    std::string settings;
    for (const char c : columns)
        settings += c == ',' ? " = ?," : std::string(1, c);
    return join({"UPDATE ", table, " SET ", settings, " = ? WHERE id = ? AND revision = ?"});
}

constexpr std::string_view tables_of_version_1 = R"(
CREATE TABLE counters (
    name TEXT NOT NULL PRIMARY KEY,
    value INTEGER NOT NULL
);
INSERT INTO counters (name, value)
    VALUES ('revision', 0), ('users', 0), ('groups', 0), ('contacts', 0), ('notes', 0), ('activities', 0);

CREATE TABLE users (
    id TEXT NOT NULL PRIMARY KEY,
    revision INTEGER NOT NULL,
    name TEXT NOT NULL,
    security TEXT NOT NULL,
    access TEXT NOT NULL
);

CREATE TABLE contacts (
    id TEXT NOT NULL PRIMARY KEY,
    revision INTEGER NOT NULL,
    company TEXT NOT NULL,
    name TEXT NOT NULL,
    address TEXT NOT NULL,
    address_2 TEXT NOT NULL,
    address_3 TEXT NOT NULL,
    city TEXT NOT NULL,
    state TEXT NOT NULL,
    postcode TEXT NOT NULL,
    country TEXT NOT NULL,
    status TEXT NOT NULL,
    phone TEXT NOT NULL,
    fax TEXT NOT NULL,
    home_phone TEXT NOT NULL,
    mobile TEXT NOT NULL,
    pager TEXT NOT NULL,
    salutation TEXT NOT NULL,
    title TEXT NOT NULL,
    department TEXT NOT NULL,
    birthday TEXT NOT NULL,
    e_mail TEXT NOT NULL,
    web_site TEXT NOT NULL,
    referred_by TEXT NOT NULL,
    extension TEXT NOT NULL,
    record_creator TEXT NOT NULL,
    record_manager TEXT NOT NULL
);
CREATE INDEX contacts_changed ON contacts (revision);

CREATE TABLE contact_groups (
    id TEXT NOT NULL PRIMARY KEY,
    revision INTEGER NOT NULL,
    name TEXT NOT NULL
);
CREATE TABLE group_members (
    contact_group TEXT NOT NULL REFERENCES contact_groups (id) ON DELETE CASCADE,
    position INTEGER NOT NULL,
    contact TEXT NOT NULL REFERENCES contacts (id) ON DELETE CASCADE,
    PRIMARY KEY (contact_group, position)
);

CREATE TABLE notes (
    id TEXT NOT NULL PRIMARY KEY,
    revision INTEGER NOT NULL,
    contact TEXT NOT NULL REFERENCES contacts (id) ON DELETE CASCADE,
    written_at INTEGER NOT NULL,
    text TEXT NOT NULL
);
CREATE INDEX notes_of_contact ON notes (contact, written_at);

CREATE TABLE activities (
    id TEXT NOT NULL PRIMARY KEY,
    revision INTEGER NOT NULL,
    edited_at INTEGER NOT NULL,
    type INTEGER NOT NULL,
    priority INTEGER NOT NULL,
    regarding TEXT NOT NULL,
    starts_at INTEGER,
    ends_at INTEGER NOT NULL,
    duration INTEGER NOT NULL,
    private INTEGER NOT NULL,
    alarm INTEGER NOT NULL,
    alarm_lead INTEGER NOT NULL,
    colour INTEGER,
    scheduled_for TEXT REFERENCES users (id),
    contact_group TEXT REFERENCES contact_groups (id),
    contact TEXT REFERENCES contacts (id),
    contact_count INTEGER NOT NULL,
    cleared INTEGER NOT NULL,
    result TEXT NOT NULL,
    details TEXT NOT NULL,
    has_details INTEGER NOT NULL,
    recurrence INTEGER NOT NULL,
    frequency INTEGER NOT NULL,
    until INTEGER,
    days_of_week INTEGER NOT NULL,
    weeks_of_month INTEGER NOT NULL,
    days_of_month INTEGER NOT NULL
);
-- The list's order with what a walk over all of it needs.
CREATE INDEX activities_in_order ON activities
    (starts_at, id, edited_at, type, priority, cleared, recurrence);
-- The series, with everything that their rows are read for.
CREATE INDEX activities_recurring ON activities
    (starts_at, id, edited_at, type, priority, cleared, recurrence, ends_at, revision, scheduled_for, contact_group,
     contact, contact_count, duration, alarm_lead, colour, private, alarm, has_details, frequency, until,
     days_of_week, weeks_of_month, days_of_month, regarding)
    WHERE recurrence <> 0;
CREATE INDEX activities_changed ON activities (revision);
CREATE INDEX activities_of_contact ON activities (contact);

CREATE TABLE further_contacts (
    activity TEXT NOT NULL REFERENCES activities (id) ON DELETE CASCADE,
    position INTEGER NOT NULL,
    contact TEXT NOT NULL REFERENCES contacts (id),
    PRIMARY KEY (activity, position)
);
CREATE INDEX further_contacts_of_contact ON further_contacts (contact, activity);

CREATE TABLE exceptions (
    activity TEXT NOT NULL REFERENCES activities (id) ON DELETE CASCADE,
    date INTEGER NOT NULL,
    PRIMARY KEY (activity, date)
);

CREATE TABLE removed_activities (
    id TEXT NOT NULL PRIMARY KEY,
    revision INTEGER NOT NULL
);
CREATE INDEX removed_activities_changed ON removed_activities (revision);

CREATE TABLE toolbar_commands (
    name TEXT NOT NULL PRIMARY KEY,
    program TEXT NOT NULL,
    folder TEXT NOT NULL,
    title TEXT NOT NULL,
    caption TEXT NOT NULL,
    icon TEXT NOT NULL,
    large_icon TEXT NOT NULL,
    flag INTEGER NOT NULL
);
CREATE TABLE toolbar_places (
    command TEXT NOT NULL REFERENCES toolbar_commands (name) ON DELETE CASCADE,
    place INTEGER NOT NULL,
    view INTEGER NOT NULL,
    PRIMARY KEY (command, place, view)
);
)";

constexpr std::string_view changes_of_version_2 = R"(
-- The series by their end, so that those which are over needn't be read, with all that their rows are read for.
DROP INDEX activities_recurring;
CREATE INDEX activities_recurring ON activities
    (until, starts_at, id, edited_at, type, priority, cleared, recurrence, ends_at, revision, scheduled_for,
     contact_group, contact, contact_count, duration, alarm_lead, colour, private, alarm, has_details, frequency,
     days_of_week, weeks_of_month, days_of_month, regarding)
    WHERE recurrence <> 0;
CREATE INDEX activities_edited ON activities (edited_at);
)";

constexpr std::string_view changes_of_version_3 = R"(
-- What came from files, so that it is found again when the file comes again. A record may have been deleted since.
CREATE TABLE imported_records (
    kind INTEGER NOT NULL,
    scheduled_for TEXT NOT NULL,
    uid TEXT NOT NULL,
    occurrence TEXT NOT NULL,
    record TEXT NOT NULL,
    told TEXT NOT NULL,
    kept TEXT NOT NULL,
    PRIMARY KEY (kind, scheduled_for, uid, occurrence)
);
-- A number of this database's own, by which what it exports is told from what others export.
INSERT INTO counters (name, value) VALUES ('identity', random());
)";

constexpr std::string_view changes_of_version_4 = R"(
-- Instances that stand for an occurrence while it is edited, by the process that edits it.
CREATE TABLE temporary_instances (
    instance TEXT NOT NULL PRIMARY KEY,
    series TEXT NOT NULL,
    day INTEGER NOT NULL,
    owner TEXT NOT NULL,
    settled_revision INTEGER
);
)";

constexpr std::string_view entry_columns = "starts_at, id, edited_at, type, priority, cleared, recurrence";

} // namespace

std::string set_application_id(int id) { return "PRAGMA application_id = " + std::to_string(id); }
std::string set_schema_version(int version) { return "PRAGMA user_version = " + std::to_string(version); }

const std::vector<std::string_view>& tables() {
    static const std::vector<std::string_view> names = {"counters",           "users",
                                                        "contacts",           "contact_groups",
                                                        "group_members",      "notes",
                                                        "activities",         "exceptions",
                                                        "removed_activities", "further_contacts",
                                                        "toolbar_commands",   "toolbar_places",
                                                        "imported_records",   "temporary_instances"};
    return names;
}

std::string probe(std::string_view table) { return join({"SELECT 1 FROM ", table, " LIMIT 1"}); }

std::string_view create_tables() { return tables_of_version_1; }
std::string_view change_to_version_2() { return changes_of_version_2; }
std::string_view change_to_version_3() { return changes_of_version_3; }
std::string_view change_to_version_4() { return changes_of_version_4; }

std::string_view contacts() {
    static const std::string text =
        join({"SELECT id, revision, ", contact_columns,
              " FROM contacts ORDER BY lower(company), lower(name), company, name, id"});
    return text;
}

std::string_view contact() {
    static const std::string text =
        join({"SELECT id, revision, ", contact_columns, " FROM contacts WHERE id = ?"});
    return text;
}

std::string contact_fields(const std::vector<int>& numbers) {
    std::string text = "SELECT ";
    for (const int number : numbers)
        text.append(contact_column(number)).append(", ");
    return text + "id FROM contacts WHERE id = ?";
}

std::string_view add_contact() {
    static const std::string text = insert("contacts", join({"id, revision, ", contact_columns}));
    return text;
}

std::string_view update_contact() {
    static const std::string text = update("contacts", join({"revision, ", contact_columns}));
    return text;
}

namespace {

std::string from_activities(const ActivityQuery& query) {
    std::string text = " FROM activities WHERE 1 = 1";
    if (query.from)
        text += " AND starts_at >= ?";
    if (query.to)
        text += " AND starts_at < ?";
    for (const ActivityType type : query.without_types)
        text += " AND type <> " + std::to_string(static_cast<int>(type));
    for (const Priority priority : query.without_priorities)
        text += " AND priority <> " + std::to_string(static_cast<int>(priority));
    if (query.without_cleared)
        text += " AND cleared = 0";
    if (!query.users.empty()) {
        text += " AND scheduled_for IN (?";
        for (std::size_t i = 1; i < query.users.size(); ++i)
            text += ", ?";
        text += ")";
    }
    if (query.contact)
        text += " AND (contact = ? OR id IN (SELECT activity FROM further_contacts WHERE contact = ?))";
    return text;
}

} // namespace

std::string activities(const ActivityQuery& query) {
    return join({"SELECT ", activity_columns, from_activities(query), " ORDER BY starts_at, id"});
}

std::string activities(const ActivityQuery& query, int skip, int most) {
    return activities(query) + " LIMIT " + std::to_string(most) + " OFFSET " + std::to_string(skip);
}

std::string count_activities(const ActivityQuery& query) { return "SELECT count(*)" + from_activities(query); }

std::string_view activity() {
    static const std::string text = join({"SELECT ", activity_columns, " FROM activities WHERE id = ?"});
    return text;
}

std::string_view add_activity() {
    static const std::string text = insert("activities", activity_columns);
    return text;
}

std::string_view update_activity() {
    static const std::string text =
        update("activities", activity_columns.substr(activity_columns.find("revision")));
    return text;
}

std::string_view row() {
    static const std::string text = join({"SELECT ", row_columns, " FROM activities WHERE id = ?"});
    return text;
}

std::string_view entries() {
    static const std::string text = join({"SELECT ", entry_columns, " FROM activities ORDER BY starts_at, id"});
    return text;
}

std::string_view edited_entries() {
    static const std::string text = join({"SELECT ", entry_columns, " FROM activities WHERE edited_at > ?"});
    return text;
}

std::string_view ending_series() {
    static const std::string text =
        join({"SELECT ", row_columns, " FROM activities WHERE recurrence <> 0 AND until >= ? AND starts_at <= ?"});
    return text;
}

std::string_view endless_series() {
    static const std::string text = join(
        {"SELECT ", row_columns, " FROM activities WHERE recurrence <> 0 AND until IS NULL AND starts_at <= ?"});
    return text;
}

std::string_view rows_in_scope() {
    static const std::string text =
        join({"SELECT ", row_columns,
              " FROM activities WHERE starts_at >= ? AND starts_at < ? ORDER BY starts_at, id"});
    return text;
}

std::string_view rows_from() {
    static const std::string text =
        join({"SELECT ", row_columns,
              " FROM activities WHERE (starts_at, id) >= (?, ?) ORDER BY starts_at, id LIMIT ?"});
    return text;
}

std::string_view rows_without_start() {
    static const std::string text =
        join({"SELECT ", row_columns, " FROM activities WHERE starts_at IS NULL ORDER BY id"});
    return text;
}

std::string_view changed_rows() {
    static const std::string text = join({"SELECT ", row_columns, " FROM activities WHERE revision > ?"});
    return text;
}

} // namespace store::sql
