#include "desk/store/activity_records.h"

#include "core/values/failure.h"
#include "core/values/ids.h"
#include "desk/store/activity_columns.h"
#include "desk/store/conflict.h"
#include "desk/store/sql.h"

#include <algorithm>

namespace store {

namespace {

constexpr int contact_count_column = 16;

std::optional<std::string> optional_id(const std::string& id) {
    return id.empty() ? std::nullopt : std::optional(values::whole_id(id));
}

void require_dates(const Activity& activity) {
    const auto is_date = [](const std::optional<DateTime>& moment) { return !moment || moment->is_date(); };
    const bool are_dates = is_date(activity.start) && is_date(activity.end) &&
                           is_date(activity.recurrence.until) &&
                           std::ranges::all_of(activity.exceptions, &DateTime::is_date);
    if (!are_dates)
        throw values::Failure(values::FailureNumber::automation,
                              "An activity can only be stored with dates of the years 100 to 9999.");
}

// The record as it is stored: without what can't be.
Activity in_order(const Activity& given) {
    require_dates(given);
    Activity activity = given;
    activity.duration = std::clamp(activity.duration, 0, longest_duration);
    activity.alarm_lead = std::max(activity.alarm_lead, 0);
    if (activity.start && activity.end < *activity.start)
        activity.end = activity.start->plus_minutes(activity.duration);
    std::erase(activity.contacts, "");
    activity.recurrence.frequency = std::max(activity.recurrence.frequency, 1);
    for (DateTime& date : activity.exceptions)
        date = date.date();
    std::sort(activity.exceptions.begin(), activity.exceptions.end());
    const auto doubles = std::unique(activity.exceptions.begin(), activity.exceptions.end());
    activity.exceptions.erase(doubles, activity.exceptions.end());
    return activity;
}

// All columns after the id, of which the revision and the edit date are the store's.
void bind_record(Rows& statement, const Activity& activity, std::int64_t revision, DateTime edited) {
    const auto seconds = [](const std::optional<DateTime>& date) {
        return date ? std::optional(date->seconds()) : std::nullopt;
    };
    const Recurrence& recurrence = activity.recurrence;
    const std::string first_contact = activity.contacts.empty() ? "" : activity.contacts.front();
    statement.bind_all(revision, edited.seconds(), static_cast<int>(activity.type),
                       static_cast<int>(activity.priority), activity.regarding, seconds(activity.start),
                       activity.end.seconds(), activity.duration, activity.is_private, activity.alarm,
                       activity.alarm_lead, activity.colour, optional_id(activity.user),
                       optional_id(activity.group), optional_id(first_contact), activity.contacts.size(),
                       activity.cleared, activity.result, activity.details, !activity.details.empty(),
                       static_cast<int>(recurrence.kind), recurrence.frequency, seconds(recurrence.until),
                       recurrence.days_of_week, recurrence.weeks_of_month, recurrence.days_of_month);
}

Activity activity_of(const Rows& rows) {
    Activity activity{.id = rows.text(0),
                      .edited = DateTime::from_seconds(rows.number(2)),
                      .type = type_of(rows.number(3)),
                      .priority = priority_of(rows.number(4)),
                      .regarding = rows.text(5),
                      .start = date_of(rows, 6),
                      .end = DateTime::from_seconds(rows.number(7)),
                      .duration = duration_of(rows, 8),
                      .is_private = rows.flag(9),
                      .alarm = rows.flag(10),
                      .alarm_lead = std::max(rows.small_number(11), 0),
                      .colour = colour_of(rows, 12),
                      .user = rows.text(13),
                      .group = rows.text(14),
                      .contacts = {},
                      .cleared = rows.flag(17),
                      .result = rows.text(18),
                      .details = rows.text(19),
                      .recurrence = recurrence_of(rows, recurrence_of(rows.number(21)), 22),
                      .exceptions = {},
                      .revision = rows.number(1)};
    if (!rows.is_null(15))
        activity.contacts.push_back(rows.text(15));
    return activity;
}

void bind_query(Rows& rows, const ActivityQuery& query) {
    if (query.from)
        rows.bind_all(query.from->seconds());
    if (query.to)
        rows.bind_all(query.to->seconds());
    for (const std::string& user : query.users)
        rows.bind_all(values::whole_id(user));
    if (query.contact)
        rows.bind_all(values::whole_id(*query.contact), values::whole_id(*query.contact));
}

} // namespace

std::vector<Activity> ActivityRecords::read(const std::string& sql, const ActivityQuery& query) {
    Rows rows = connection_.query(sql);
    bind_query(rows, query);
    std::vector<Activity> result;
    while (rows.step()) {
        result.push_back(activity_of(rows));
        read_lists(result.back(), rows.small_number(contact_count_column));
    }
    return result;
}

int ActivityRecords::count(const ActivityQuery& query) {
    Rows rows = connection_.query(sql::count_activities(query));
    bind_query(rows, query);
    rows.step();
    return rows.small_number(0);
}

std::optional<Activity> ActivityRecords::activity(const std::string& id) {
    Rows rows = connection_.query(sql::activity(), values::whole_id(id));
    if (!rows.step())
        return std::nullopt;
    Activity activity = activity_of(rows);
    read_lists(activity, rows.small_number(contact_count_column));
    return activity;
}

void ActivityRecords::read_lists(Activity& activity, int contact_count) {
    if (contact_count > 1) {
        Rows contacts = connection_.query(sql::further_contacts, activity.id);
        while (contacts.step())
            activity.contacts.push_back(contacts.text(0));
    }
    if (activity.recurrence.kind != RecurrenceKind::none) {
        Rows exceptions = connection_.query(sql::exceptions, activity.id);
        while (exceptions.step())
            activity.exceptions.push_back(DateTime::from_seconds(exceptions.number(0)));
    }
}

void ActivityRecords::write_lists(const Activity& activity) {
    for (std::size_t i = 1; i < activity.contacts.size(); ++i)
        connection_.run(sql::add_further_contact, activity.id, i, values::whole_id(activity.contacts[i]));
    for (const DateTime date : activity.exceptions)
        connection_.run(sql::add_exception, activity.id, date.seconds());
}

std::string ActivityRecords::add(const Activity& given) {
    Activity activity = in_order(given);
    transactions_.together([&] {
        activity.id = transactions_.id_for(given.id, "activities", first_of_own_ids);
        Rows statement = connection_.query(sql::add_activity(), activity.id);
        bind_record(statement, activity, transactions_.next_revision(), clock_());
        statement.step();
        write_lists(activity);
        if (!given.id.empty())
            connection_.run(sql::forget_removal, activity.id);
    });
    return activity.id;
}

std::int64_t ActivityRecords::update(const Activity& given) {
    Activity activity = in_order(given);
    activity.id = values::whole_id(given.id);
    std::int64_t revision = 0;
    transactions_.together([&] {
        revision = transactions_.next_revision();
        Rows statement = connection_.query(sql::update_activity());
        bind_record(statement, activity, revision, clock_());
        statement.bind_all(activity.id, activity.revision);
        statement.step();
        if (connection_.changed_rows() == 0)
            fail_with_conflict("activity", connection_.query(sql::activity_exists, activity.id).step()
                                               ? EditConflict::Cause::changed
                                               : EditConflict::Cause::deleted);
        connection_.run(sql::clear_further_contacts, activity.id);
        connection_.run(sql::clear_exceptions, activity.id);
        write_lists(activity);
    });
    return revision;
}

void ActivityRecords::remove(const std::string& given) {
    const std::string id = values::whole_id(given);
    transactions_.together([&] {
        connection_.run(sql::remove_activity, id);
        if (connection_.changed_rows() > 0)
            connection_.run(sql::log_removal, id, transactions_.next_revision());
    });
}

void ActivityRecords::touch(const std::string& activity) {
    connection_.run(sql::touch_activity, transactions_.next_revision(), clock_().seconds(), activity);
}

void ActivityRecords::add_exception(const std::string& activity, DateTime date) {
    const std::string id = values::whole_id(activity);
    transactions_.together([&] {
        if (!connection_.query(sql::activity_exists, id).step())
            fail_with_conflict("activity", EditConflict::Cause::deleted);
        connection_.run(sql::add_exception, id, date.date().seconds());
        if (connection_.changed_rows() > 0)
            touch(id);
    });
}

void ActivityRecords::remove_exception(const std::string& activity, DateTime date) {
    const std::string id = values::whole_id(activity);
    transactions_.together([&] {
        connection_.run(sql::remove_exception, id, date.date().seconds());
        if (connection_.changed_rows() > 0)
            touch(id);
    });
}

} // namespace store
