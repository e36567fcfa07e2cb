#include "desk/store/activity_columns.h"
#include "desk/store/sql.h"
#include "desk/store/sqlite_store.h"

namespace store {

namespace {

// The first seven columns of every statement for entries and rows.
ActivityEntry entry_of(const Rows& rows) {
    return {.key = {.start = rows.is_null(0) ? ActivityKey::no_start : rows.number(0), .id = Id(rows.view(1))},
            .edited = rows.number(2),
            .type = type_of(rows.number(3)),
            .priority = priority_of(rows.number(4)),
            .cleared = rows.flag(5),
            .recurring = recurrence_of(rows.number(6)) != RecurrenceKind::none};
}

ActivityRow row_of(const Rows& rows) {
    return {.entry = entry_of(rows),
            .end = rows.number(7),
            .user = Id(rows.view(8)),
            .group = Id(rows.view(9)),
            .contact = Id(rows.view(10)),
            .contact_count = rows.small_number(11),
            .duration = duration_of(rows, 12),
            .alarm_lead = std::max(rows.small_number(13), 0),
            .colour = colour_of(rows, 14),
            .is_private = rows.flag(15),
            .alarm = rows.flag(16),
            .has_details = rows.flag(17),
            .recurrence = recurrence_of(rows, recurrence_of(rows.number(6)), 18),
            .regarding = rows.text(23)};
}

class SqliteActivityReading final : public ActivityReading {
public:
    explicit SqliteActivityReading(SqliteConnection& connection) : connection_(connection) {}

    void each_entry(const std::function<void(const ActivityEntry&)>& take) override {
        each_entry_in(connection_.query(sql::entries()), take);
    }

    void each_edited(DateTime since, const std::function<void(const ActivityEntry&)>& take) override {
        each_entry_in(connection_.query(sql::edited_entries(), since.seconds()), take);
    }

    void each_series(DateTime from, DateTime to, const std::function<void(ActivityRow&&)>& take) override {
        each(connection_.query(sql::ending_series(), from.seconds(), to.seconds()), take);
        each(connection_.query(sql::endless_series(), to.seconds()), take);
    }

    void each_in_scope(DateTime from, DateTime to, const std::function<void(ActivityRow&&)>& take) override {
        each(connection_.query(sql::rows_in_scope(), from.seconds(), to.seconds()), take);
    }

    void each_from(const ActivityKey& first, int count, const std::function<void(ActivityRow&&)>& take) override {
        if (first.start == ActivityKey::no_start)
            each(connection_.query(sql::rows_without_start()), take);
        else
            each(connection_.query(sql::rows_from(), first.start, first.id.text(), count), take);
    }

    void each_exception(const std::function<void(const Id&, DateTime)>& take) override {
        Rows rows = connection_.query(sql::all_exceptions);
        while (rows.step())
            take(Id(rows.view(0)), DateTime::from_seconds(rows.number(1)));
    }

    bool has_own_ids_alone() override { return !connection_.query(sql::foreign_ids).step(); }

    std::optional<ActivityRow> row(const Id& id) override {
        Rows rows = connection_.query(sql::row(), id.text());
        return rows.step() ? std::optional(row_of(rows)) : std::nullopt;
    }

    std::vector<DateTime> exceptions(const Id& id) override {
        std::vector<DateTime> result;
        Rows rows = connection_.query(sql::exceptions, id.text());
        while (rows.step())
            result.push_back(DateTime::from_seconds(rows.number(0)));
        return result;
    }

    std::string details(const Id& id) override {
        Rows rows = connection_.query(sql::details, id.text());
        return rows.step() ? rows.text(0) : std::string();
    }

    std::vector<std::string> contacts(const Id& id) override {
        std::vector<std::string> result;
        if (Rows first = connection_.query(sql::first_contact, id.text()); first.step() && !first.is_null(0))
            result.push_back(first.text(0));
        Rows further = connection_.query(sql::further_contacts, id.text());
        while (further.step())
            result.push_back(further.text(0));
        return result;
    }

    std::optional<std::vector<std::string>> contact_fields(const Id& contact,
                                                           const std::vector<int>& fields) override {
        if (contact_sql_.empty() || fields != fields_in_sql_) {
            fields_in_sql_ = fields;
            contact_sql_ = sql::contact_fields(fields);
        }
        Rows rows = connection_.query(contact_sql_, contact.text());
        if (!rows.step())
            return std::nullopt;
        std::vector<std::string> result;
        result.reserve(fields.size());
        for (std::size_t column = 0; column < fields.size(); ++column)
            result.push_back(rows.text(static_cast<int>(column)));
        return result;
    }

    ActivityChanges changes_since(std::int64_t revision) override {
        ActivityChanges changes;
        each(connection_.query(sql::changed_rows(), revision),
             [&](ActivityRow&& row) { changes.changed.push_back(std::move(row)); });
        Rows removed = connection_.query(sql::removed_activities, revision);
        while (removed.step())
            changes.removed.emplace_back(removed.view(0));
        Rows contacts = connection_.query(sql::changed_contacts, revision);
        while (contacts.step())
            changes.contacts.push_back(contacts.text(0));
        return changes;
    }

private:
    static void each_entry_in(Rows rows, const std::function<void(const ActivityEntry&)>& take) {
        while (rows.step())
            take(entry_of(rows));
    }

    static void each(Rows rows, const std::function<void(ActivityRow&&)>& take) {
        while (rows.step())
            take(row_of(rows));
    }

    SqliteConnection& connection_;
    std::vector<int> fields_in_sql_; // mostly the same in a row
    std::string contact_sql_;
};

} // namespace

std::unique_ptr<ActivityReading> make_activity_reading(SqliteConnection& connection) {
    return std::make_unique<SqliteActivityReading>(connection);
}

} // namespace store
