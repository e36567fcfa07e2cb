#pragma once

#include "core/act/list_filter.h"
#include "core/values/locale.h"
#include "desk/store/store.h"

#include <optional>
#include <set>
#include <string>
#include <vector>

namespace model {

using values::DateTime;

enum class Period { all, today, past, future, range };

// Which activities a list shows: those of certain types and priorities, of a period, of certain users, with or
// without the cleared ones.
struct ActivityFilter {
    std::set<store::ActivityType> types{store::ActivityType::call, store::ActivityType::meeting,
                                        store::ActivityType::to_do};
    std::set<store::Priority> priorities{store::Priority::high, store::Priority::medium, store::Priority::low};
    bool with_cleared = false;
    Period period = Period::all;
    DateTime from; // first and last day of Period::range, both inside
    DateTime to;
    std::string users; // ids joined; empty for every user

    bool operator==(const ActivityFilter&) const = default;
};

// The filter as other programs read and set it (list_filter.h).
act::ListFilter codes_of(const ActivityFilter& filter, const values::Locale& locale);
// Fails with 440 when the dates can't be read.
ActivityFilter filter_of(const act::ListFilter& codes, const values::Locale& locale);

// The activities of the store that pass, those of a contact alone where one is given, by start and then by id. A
// series is in a period when its run, from its first date to its last, meets the period. They can be read piece by
// piece, as long as the store isn't changed.
class FilteredActivities {
public:
    FilteredActivities(store::Store& store, const ActivityFilter& filter, DateTime today,
                       const std::optional<std::string>& contact);

    // So many, with all the earlier series before the first ones; none at the end.
    std::vector<store::Activity> next(int most);
    int count() const { return count_; } // of them all, read or not

private:
    store::Store& store_;
    store::ActivityQuery query_;
    std::vector<store::Activity> earlier_series_; // not yet given
    int count_ = 0;
    int given_ = 0; // of those that start in the period
};

} // namespace model
