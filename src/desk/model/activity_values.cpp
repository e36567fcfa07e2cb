#include "desk/model/activity_values.h"

#include "core/values/numbers.h"
#include "core/values/text_forms.h"

#include <map>

namespace model {
namespace {

using values::DateTime;

constexpr int longest = 32767; // minutes

template <typename Kind>
std::optional<Kind> kind_of(const std::string& letter, const std::map<std::string, Kind>& kinds) {
    const auto found = kinds.find(letter);
    return found == kinds.end() ? std::nullopt : std::optional(found->second);
}

std::optional<DateTime> date_of(const std::string& text, const values::Locale& locale) {
    const auto moment = values::parse_date(text, locale);
    return moment && moment->date() != DateTime() ? std::optional(moment->date()) : std::nullopt;
}

std::optional<DateTime> time_of(const std::string& text, const values::Locale& locale) {
    const auto moment = values::parse_date(text, locale);
    return moment ? std::optional(moment->time()) : std::nullopt;
}

std::optional<int> minutes_of(const std::string& text) {
    const auto number = values::parse_number(text);
    return number && *number >= 0 && *number <= longest ? std::optional(values::to_int32(*number)) : std::nullopt;
}

std::optional<std::string> user_named(const std::string& name, const std::vector<store::User>& users) {
    for (const store::User& user : users)
        if (!name.empty() && user.name == name)
            return user.id;
    return std::nullopt;
}

} // namespace

ReadValues read_values(const ActivityValues& given, const std::vector<store::User>& users,
                       const values::Locale& locale) {
    using store::ActivityType;
    using store::Priority;
    return {.type = kind_of<ActivityType>(
                given.type, {{"C", ActivityType::call}, {"M", ActivityType::meeting}, {"T", ActivityType::to_do}}),
            .date = date_of(given.date, locale),
            .time = time_of(given.time, locale),
            .duration = minutes_of(given.duration),
            .regarding = given.regarding.empty() ? std::nullopt : std::optional(given.regarding),
            .priority = kind_of<Priority>(given.priority,
                                          {{"H", Priority::high}, {"M", Priority::medium}, {"L", Priority::low}}),
            .user = user_named(given.scheduled_for, users)};
}

} // namespace model
