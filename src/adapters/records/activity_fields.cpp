#include "adapters/records/activity_fields.h"

#include "core/values/failure.h"
#include "core/values/ids.h"
#include "core/values/numbers.h"

namespace records {

using act::Value;
using values::DateTime;
using values::Failure;
using values::FailureNumber;
namespace field = act::activity_field;

namespace {

Value date_value(std::int64_t seconds) { return DateTime::from_seconds(seconds); }

template <typename Number>
Value number_value(Number number) {
    return static_cast<std::int64_t>(number);
}

std::string text_given(const Value& value) {
    if (std::holds_alternative<DateTime>(value))
        throw Failure(FailureNumber::type_mismatch);
    return values::text_of(value, values::english_us());
}

std::string id_given(const Value& value) { return values::whole_id(text_given(value)); }

DateTime date_given(const Value& value, const values::Locale& locale) {
    // A number isn't a date, although a text of digits could be read as one.
    const auto date = std::holds_alternative<std::int64_t>(value) ? std::nullopt : values::date_of(value, locale);
    if (!date)
        throw Failure(FailureNumber::type_mismatch);
    return *date;
}

std::optional<std::uint32_t> colour_given(const Value& value) {
    if (text_given(value).empty())
        return std::nullopt;
    return static_cast<std::uint32_t>(values::int32_of(value));
}

template <typename Kind>
Kind kind_given(const Value& value, Kind last) {
    const int number = values::int32_of(value);
    if (number < 0 || number > static_cast<int>(last))
        throw Failure(FailureNumber::invalid_property_value);
    return static_cast<Kind>(number);
}

void set_own_contact(store::Activity& activity, const std::string& contact) {
    if (activity.contacts.empty())
        activity.contacts.push_back(contact);
    else if (contact.empty())
        activity.contacts.erase(activity.contacts.begin());
    else
        activity.contacts.front() = contact;
}

} // namespace

bool is_entry_field(int number) {
    switch (number) {
    case field::id:
    case field::edited:
    case field::type:
    case field::priority:
    case field::start:
    case field::date:
    case field::cleared:
        return true;
    default:
        return false;
    }
}

Value entry_field(const store::ActivityEntry& entry, int number) {
    const bool dated = entry.key.start != store::ActivityKey::no_start;
    switch (number) {
    case field::id:
        return entry.key.id.text();
    case field::edited:
        return date_value(entry.edited);
    case field::type:
        return number_value(entry.type);
    case field::priority:
        return number_value(entry.priority);
    case field::start:
        return dated ? date_value(entry.key.start) : Value();
    case field::date:
        return dated ? Value(DateTime::from_seconds(entry.key.start).date()) : Value();
    case field::cleared:
        return std::string(entry.cleared ? "1" : "0");
    default:
        return {};
    }
}

Value row_field(const store::ActivityRow& row, int number) {
    switch (number) {
    case field::is_private:
        return number_value(row.is_private);
    case field::regarding:
        return row.regarding;
    case field::end:
        return date_value(row.end);
    case field::duration:
        return number_value(row.duration);
    case field::alarm:
        return number_value(row.alarm);
    case field::alarm_lead:
        return number_value(row.alarm_lead);
    case field::colour:
        return row.colour ? std::to_string(*row.colour) : std::string();
    case field::scheduled_for:
        return row.user.text();
    case field::group:
        return row.group.text();
    case field::contact:
        return row.contact.text();
    case field::contact_count:
        return number_value(row.contact_count);
    case field::occurrence_length:
        return number_value(row.entry.key.start == store::ActivityKey::no_start
                                ? row.duration
                                : (row.end - row.entry.key.start) / 60);
    default:
        return entry_field(row.entry, number);
    }
}

store::ActivityRow row_of(const store::Activity& activity) {
    const std::string contact = activity.contacts.empty() ? "" : activity.contacts.front();
    return {.entry = {.key = {.start = activity.start ? activity.start->seconds() : store::ActivityKey::no_start,
                              .id = store::Id(activity.id)},
                      .edited = activity.edited.seconds(),
                      .type = activity.type,
                      .priority = activity.priority,
                      .cleared = activity.cleared,
                      .recurring = activity.recurrence.kind != store::RecurrenceKind::none},
            .end = activity.end.seconds(),
            .user = store::Id(activity.user),
            .group = store::Id(activity.group),
            .contact = store::Id(contact),
            .contact_count = static_cast<int>(activity.contacts.size()),
            .duration = activity.duration,
            .alarm_lead = activity.alarm_lead,
            .colour = activity.colour,
            .is_private = activity.is_private,
            .alarm = activity.alarm,
            .has_details = !activity.details.empty(),
            .recurrence = activity.recurrence,
            .regarding = activity.regarding};
}

void set_field(store::Activity& activity, int number, const Value& value, const values::Locale& locale) {
    switch (number) {
    case field::is_private:
        activity.is_private = values::int32_of(value) != 0;
        break;
    case field::type:
        activity.type = kind_given(value, store::ActivityType::to_do);
        break;
    case field::priority:
        activity.priority = kind_given(value, store::Priority::low);
        break;
    case field::regarding:
        activity.regarding = text_given(value);
        break;
    case field::start:
        activity.start = date_given(value, locale);
        break;
    case field::end:
        activity.end = date_given(value, locale);
        break;
    case field::duration:
        activity.duration = values::int32_of(value);
        break;
    case field::alarm:
        activity.alarm = values::int32_of(value) != 0;
        break;
    case field::alarm_lead:
        activity.alarm_lead = values::int32_of(value);
        break;
    case field::colour:
        activity.colour = colour_given(value);
        break;
    case field::scheduled_for:
        activity.user = id_given(value);
        break;
    case field::group:
        activity.group = id_given(value);
        break;
    case field::contact:
        set_own_contact(activity, id_given(value));
        break;
    case field::cleared:
        activity.cleared = text_given(value) == "1";
        break;
    case field::details:
        activity.details = text_given(value);
        break;
    case field::id:
    case field::edited:
    case field::contact_count:
    case field::occurrence_length:
    case field::date:
        throw Failure(FailureNumber::automation, "The field " + std::to_string(number) + " can't be set.");
    default:
        throw Failure(FailureNumber::invalid_property_index);
    }
}

void settle_times(store::Activity& activity, const std::set<int>& written) {
    if (!activity.start)
        return;
    const bool is_series = activity.recurrence.kind != store::RecurrenceKind::none;
    const bool has_end = written.contains(field::end), has_duration = written.contains(field::duration);
    if (!has_end && (has_duration || written.contains(field::start)))
        activity.end = activity.start->plus_minutes(activity.duration);
    if (has_end && !has_duration && !is_series && activity.end >= *activity.start)
        activity.duration = static_cast<int>((activity.end.seconds() - activity.start->seconds()) / 60);
}

} // namespace records
