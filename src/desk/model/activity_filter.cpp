#include "desk/model/activity_filter.h"

#include "core/values/ids.h"
#include "desk/model/refusal.h"
#include "desk/store/activity_reading.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

namespace model {
namespace {

using store::ActivityType;
using store::Priority;

constexpr std::array types{ActivityType::call, ActivityType::meeting, ActivityType::to_do};
constexpr std::array priorities{Priority::high, Priority::medium, Priority::low};
constexpr std::array period_codes{
    std::pair{Period::all, act::filter_dates::all}, std::pair{Period::today, act::filter_dates::today},
    std::pair{Period::past, act::filter_dates::past}, std::pair{Period::future, act::filter_dates::future}};

template <typename Kind>
int mask_of(const std::set<Kind>& kinds) {
    int mask = 0;
    for (const Kind kind : kinds)
        mask |= act::filter_mask::of(kind);
    return mask;
}

template <typename Kinds>
auto kinds_of(int mask, const Kinds& all) {
    std::set<typename Kinds::value_type> kinds;
    for (const auto kind : all)
        if (mask & act::filter_mask::of(kind))
            kinds.insert(kind);
    return kinds;
}

template <typename Kinds>
auto missing(const std::set<typename Kinds::value_type>& kinds, const Kinds& all) {
    std::set<typename Kinds::value_type> result;
    for (const auto kind : all)
        if (!kinds.contains(kind))
            result.insert(kind);
    return result;
}

void read_dates(ActivityFilter& filter, const std::string& dates, const values::Locale& locale) {
    const auto* known = std::find_if(period_codes.begin(), period_codes.end(),
                                     [&](const auto& pair) { return pair.second == dates; });
    if (known != period_codes.end()) {
        filter.period = known->first;
        return;
    }
    const auto range = act::filter_dates::range_of(dates, locale);
    if (!range)
        refuse("The dates of the activity filter can't be read: \"" + dates + "\".");
    filter.period = Period::range;
    filter.from = range->first;
    filter.to = range->last;
}

void limit_period(store::ActivityQuery& query, const ActivityFilter& filter, DateTime today) {
    switch (filter.period) {
    case Period::all:
        break;
    case Period::today:
        query.from = today.date();
        query.to = today.date().plus_days(1);
        break;
    case Period::past:
        query.to = today.date();
        break;
    case Period::future:
        query.from = today.date();
        break;
    case Period::range:
        query.from = filter.from;
        query.to = filter.to.plus_days(1);
        break;
    }
}

bool takes_part(const store::Activity& activity, const std::optional<std::string>& contact) {
    return !contact ||
           std::find(activity.contacts.begin(), activity.contacts.end(), *contact) != activity.contacts.end();
}

bool passes(const store::ActivityRow& row, const store::ActivityQuery& query) {
    const auto& entry = row.entry;
    return !query.without_types.contains(entry.type) && !query.without_priorities.contains(entry.priority) &&
           !(query.without_cleared && entry.cleared) &&
           (query.users.empty() || query.users.contains(row.user.text()));
}

bool runs_into(const store::ActivityRow& row, DateTime from) {
    const auto& until = row.recurrence.until;
    return row.entry.key.start != store::ActivityKey::no_start && row.entry.key.start < from.seconds() &&
           (!until || until->date() >= from.date());
}

// The series that began before the period and are still running when it begins.
std::vector<store::Activity> earlier_series(store::Store& store, const store::ActivityQuery& query) {
    std::vector<store::ActivityKey> keys;
    store.reading().each_series(query.from->date(), *query.from, [&](const store::ActivityRow& row) {
        if (passes(row, query) && runs_into(row, *query.from))
            keys.push_back(row.entry.key);
    });
    std::sort(keys.begin(), keys.end());
    std::vector<store::Activity> series;
    for (const store::ActivityKey& key : keys)
        if (auto activity = store.activity(key.id.text()); activity && takes_part(*activity, query.contact))
            series.push_back(std::move(*activity));
    return series;
}

store::ActivityQuery query_of(const ActivityFilter& filter, DateTime today,
                              const std::optional<std::string>& contact) {
    store::ActivityQuery query;
    query.without_types = missing(filter.types, types);
    query.without_priorities = missing(filter.priorities, priorities);
    query.without_cleared = !filter.with_cleared;
    query.contact = contact;
    limit_period(query, filter, today);
    for (const std::string& user : values::ids_in(filter.users))
        query.users.insert(values::whole_id(user));
    return query;
}

} // namespace

act::ListFilter codes_of(const ActivityFilter& filter, const values::Locale& locale) {
    act::ListFilter codes;
    codes.mask =
        mask_of(filter.types) | mask_of(filter.priorities) | (filter.with_cleared ? act::filter_mask::cleared : 0);
    codes.users = filter.users;
    for (const auto& [period, code] : period_codes)
        if (period == filter.period)
            codes.dates = code;
    if (filter.period == Period::range)
        codes.dates = act::filter_dates::text_of({filter.from, filter.to}, locale);
    return codes;
}

ActivityFilter filter_of(const act::ListFilter& codes, const values::Locale& locale) {
    ActivityFilter filter;
    filter.types = kinds_of(codes.mask, types);
    filter.priorities = kinds_of(codes.mask, priorities);
    filter.with_cleared = (codes.mask & act::filter_mask::cleared) != 0;
    filter.users = values::whole_id(codes.users);
    read_dates(filter, codes.dates, locale);
    return filter;
}

FilteredActivities::FilteredActivities(store::Store& store, const ActivityFilter& filter, DateTime today,
                                       const std::optional<std::string>& contact)
    : store_(store), query_(query_of(filter, today, contact)) {
    if (query_.from)
        earlier_series_ = earlier_series(store, query_);
    count_ = static_cast<int>(earlier_series_.size()) + store.count(query_);
}

std::vector<store::Activity> FilteredActivities::next(int most) {
    std::vector<store::Activity> result = std::exchange(earlier_series_, {});
    auto activities = store_.activities(query_, given_, most);
    given_ += static_cast<int>(activities.size());
    std::ranges::move(activities, std::back_inserter(result));
    return result;
}

} // namespace model
