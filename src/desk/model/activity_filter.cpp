#include "desk/model/activity_filter.h"

#include "core/values/ids.h"
#include "core/values/text.h"
#include "core/values/text_forms.h"
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

constexpr int cleared_bit = 2;
constexpr std::array type_bits{std::pair{ActivityType::call, 4}, std::pair{ActivityType::meeting, 8},
                               std::pair{ActivityType::to_do, 16}};
constexpr std::array priority_bits{std::pair{Priority::high, 32}, std::pair{Priority::medium, 64},
                                   std::pair{Priority::low, 128}};
constexpr std::array period_codes{std::pair{Period::all, "1"}, std::pair{Period::today, "2"},
                                  std::pair{Period::past, "3"}, std::pair{Period::future, "4"}};

template <typename Kinds, typename Bits>
int bits_of(const Kinds& kinds, const Bits& bits) {
    int mask = 0;
    for (const auto& [kind, bit] : bits)
        if (kinds.contains(kind))
            mask |= bit;
    return mask;
}

template <typename Kinds, typename Bits>
Kinds kinds_of(int mask, const Bits& bits) {
    Kinds kinds;
    for (const auto& [kind, bit] : bits)
        if (mask & bit)
            kinds.insert(kind);
    return kinds;
}

template <typename Kinds, typename Bits>
Kinds missing(const Kinds& kinds, const Bits& bits) {
    Kinds result;
    for (const auto& [kind, bit] : bits)
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
    const auto pieces = values::split(dates, "\\");
    const auto from = pieces.size() == 3 ? values::parse_date(pieces[1], locale) : std::nullopt;
    const auto to = pieces.size() == 3 ? values::parse_date(pieces[2], locale) : std::nullopt;
    if (pieces.empty() || pieces[0] != "6" || !from || !to)
        refuse("The dates of the activity filter can't be read: \"" + dates + "\".");
    filter.period = Period::range;
    filter.from = from->date();
    filter.to = to->date();
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
           !(query.without_cleared && entry.cleared) && (!query.user || *query.user == row.user.text());
}

bool runs_into(const store::ActivityRow& row, DateTime from) {
    const auto& until = row.recurrence.until;
    return row.entry.key.start != store::ActivityKey::no_start && row.entry.key.start < from.seconds() &&
           (!until || until->date() >= from.date());
}

// The series that began before the period and are still running when it begins.
void append_earlier_series(std::vector<store::Activity>& activities, store::Store& store,
                           const store::ActivityQuery& query) {
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
    activities.insert(activities.begin(), std::make_move_iterator(series.begin()),
                      std::make_move_iterator(series.end()));
}

} // namespace

act::ListFilter codes_of(const ActivityFilter& filter, const values::Locale& locale) {
    act::ListFilter codes;
    codes.mask = bits_of(filter.types, type_bits) | bits_of(filter.priorities, priority_bits) |
                 (filter.with_cleared ? cleared_bit : 0);
    codes.users = filter.users;
    for (const auto& [period, code] : period_codes)
        if (period == filter.period)
            codes.dates = code;
    if (filter.period == Period::range)
        codes.dates =
            "6\\" + values::short_date(filter.from, locale) + "\\" + values::short_date(filter.to, locale);
    return codes;
}

ActivityFilter filter_of(const act::ListFilter& codes, const values::Locale& locale) {
    ActivityFilter filter;
    filter.types = kinds_of<std::set<ActivityType>>(codes.mask, type_bits);
    filter.priorities = kinds_of<std::set<Priority>>(codes.mask, priority_bits);
    filter.with_cleared = (codes.mask & cleared_bit) != 0;
    filter.users = values::whole_id(codes.users);
    read_dates(filter, codes.dates, locale);
    return filter;
}

std::vector<store::Activity> filtered(store::Store& store, const ActivityFilter& filter, DateTime today,
                                      const std::optional<std::string>& contact) {
    store::ActivityQuery query;
    query.without_types = missing(filter.types, type_bits);
    query.without_priorities = missing(filter.priorities, priority_bits);
    query.without_cleared = !filter.with_cleared;
    query.contact = contact;
    limit_period(query, filter, today);
    const auto users = values::ids_in(filter.users);
    if (users.size() == 1)
        query.user = users.front();
    auto activities = store.activities(query);
    if (query.from)
        append_earlier_series(activities, store, query);
    if (users.size() > 1)
        std::erase_if(activities, [&](const store::Activity& activity) {
            return std::find(users.begin(), users.end(), activity.user) == users.end();
        });
    return activities;
}

} // namespace model
