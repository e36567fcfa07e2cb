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

constexpr std::string_view entry_columns = "starts_at, id, edited_at, type, priority, cleared, recurrence";

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
