#pragma once

#include "core/values/locale.h"
#include "desk/model/desk.h"
#include "desk/store/records.h"

#include <optional>
#include <string>
#include <vector>

namespace model {

// What could be read of the values that another program gives a new activity.
struct ReadValues {
    std::optional<store::ActivityType> type{};
    std::optional<values::DateTime> date{}; // at midnight
    std::optional<values::DateTime> time{}; // on the empty date
    std::optional<int> duration{};          // minutes
    std::optional<std::string> regarding{};
    std::optional<store::Priority> priority{};
    std::optional<std::string> user{}; // the id

    bool operator==(const ReadValues&) const = default;
};

ReadValues read_values(const ActivityValues& given, const std::vector<store::User>& users,
                       const values::Locale& locale);

} // namespace model
