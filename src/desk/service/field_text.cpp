#include "desk/service/field_text.h"

#include "core/act/activity.h"
#include "core/values/text_forms.h"

#include <cstdint>

namespace service {
namespace {

std::string flag_text(bool flag) { return flag ? "1" : "0"; }

std::int64_t occurrence_length(const store::Activity& activity) {
    return activity.start ? (activity.end.seconds() - activity.start->seconds()) / 60 : activity.duration;
}

} // namespace

std::string field_text(const store::Activity& activity, int field, const values::Locale& locale) {
    namespace number = act::activity_field;
    switch (field) {
    case number::id:
        return activity.id;
    case number::edited:
        return values::default_text(activity.edited, locale);
    case number::is_private:
        return flag_text(activity.is_private);
    case number::type:
        return std::to_string(static_cast<int>(activity.type));
    case number::priority:
        return std::to_string(static_cast<int>(activity.priority));
    case number::regarding:
        return activity.regarding;
    case number::start:
        return activity.start ? values::default_text(*activity.start, locale) : "";
    case number::end:
        return activity.start ? values::default_text(activity.end, locale) : "";
    case number::date:
        return activity.start ? values::short_date(*activity.start, locale) : "";
    case number::duration:
        return std::to_string(activity.duration);
    case number::occurrence_length:
        return std::to_string(occurrence_length(activity));
    case number::alarm:
        return flag_text(activity.alarm);
    case number::alarm_lead:
        return std::to_string(activity.alarm_lead);
    case number::colour:
        return activity.colour ? std::to_string(*activity.colour) : "";
    case number::scheduled_for:
        return activity.user;
    case number::group:
        return activity.group;
    case number::contact:
        return activity.contacts.empty() ? "" : activity.contacts.front();
    case number::contact_count:
        return std::to_string(activity.contacts.size());
    case number::cleared:
        return flag_text(activity.cleared);
    case number::details:
        return activity.details;
    default:
        return "";
    }
}

} // namespace service
