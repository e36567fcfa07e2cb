#pragma once

#include "desk/store/records.h"

#include <array>
#include <compare>
#include <cstdint>
#include <cstring>
#include <functional>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

// Reading for a process that keeps what it has read in memory and brings it up to date by what has changed since,
// instead of reading it again.
namespace store {

// An id in 12 bytes. All zero means none.
struct Id {
    std::array<char, 12> characters{};

    Id() = default;
    explicit Id(std::string_view text) { text.copy(characters.data(), characters.size()); }
    bool empty() const { return characters.front() == 0; }
    std::string text() const {
        return empty() ? std::string() : std::string(characters.data(), characters.size());
    }
    auto operator<=>(const Id&) const = default;
};

// The letter with which the store's own ids of activities begin; it stands nowhere else in them.
inline constexpr char first_of_own_ids = 'A';

// The place of an activity in the list.
struct ActivityKey {
    static constexpr std::int64_t no_start = std::numeric_limits<std::int64_t>::min(); // sorts first

    std::int64_t start = no_start; // DateTime::seconds
    Id id;

    auto operator<=>(const ActivityKey&) const = default;
};

// What a walk over the whole list needs of each activity.
struct ActivityEntry {
    ActivityKey key;
    std::int64_t edited = 0;
    ActivityType type = ActivityType::meeting;
    Priority priority = Priority::low;
    bool cleared = false;
    bool recurring = false;
};

// An activity without the texts and lists that are seldom asked for.
struct ActivityRow {
    ActivityEntry entry;
    std::int64_t end = 0;
    Id user, group, contact; // the contact is the activity's own
    int contact_count = 0;
    int duration = 0;
    int alarm_lead = 0;
    std::optional<std::uint32_t> colour;
    bool is_private = false;
    bool alarm = false;
    bool has_details = false;
    Recurrence recurrence{};
    std::string regarding{};
};

struct ActivityChanges {
    std::vector<ActivityRow> changed; // added or changed, in no order
    std::vector<Id> removed;
    std::vector<std::string> contacts; // changed or added
};

// Rows come in the list's order where nothing else is said. Failures as the store's.
class ActivityReading {
public:
    virtual ~ActivityReading() = default;

    virtual void each_entry(const std::function<void(const ActivityEntry&)>& take) = 0; // all activities
    // Those that were edited later than that, in no order.
    virtual void each_edited(DateTime since, const std::function<void(const ActivityEntry&)>& take) = 0;
    // The series that start at or before `to` and don't end before `from`, in no order.
    virtual void each_series(DateTime from, DateTime to, const std::function<void(ActivityRow&&)>& take) = 0;
    // Starts at or after `from` and before `to`.
    virtual void each_in_scope(DateTime from, DateTime to, const std::function<void(ActivityRow&&)>& take) = 0;
    // From this place on, at most so many; among those without a start all.
    virtual void each_from(const ActivityKey& first, int count,
                           const std::function<void(ActivityRow&&)>& take) = 0;
    // Every exception of every series, those of a series together and rising.
    virtual void each_exception(const std::function<void(const Id& activity, DateTime date)>& take) = 0;

    // Whether the id of every activity begins as those do that the store makes.
    virtual bool has_own_ids_alone() = 0;
    virtual std::optional<ActivityRow> row(const Id& id) = 0;
    virtual std::vector<DateTime> exceptions(const Id& id) = 0;
    virtual std::string details(const Id& id) = 0; // empty also when the activity is gone
    virtual std::vector<std::string> contacts(const Id& id) = 0;
    // These fields of a contact, in their order; each is one of contact_fields(). None when the contact is gone.
    virtual std::optional<std::vector<std::string>> contact_fields(const Id& contact,
                                                                   const std::vector<int>& fields) = 0;

    // What changed after a revision. Read the store's revision before: what changes in between is told again by
    // the next call.
    virtual ActivityChanges changes_since(std::int64_t revision) = 0;
};

} // namespace store

template <>
struct std::hash<store::Id> {
    std::size_t operator()(const store::Id& id) const noexcept {
        std::uint64_t head = 0;
        std::uint32_t tail = 0;
        static_assert(sizeof head + sizeof tail == sizeof id.characters);
        std::memcpy(&head, id.characters.data(), sizeof head);
        std::memcpy(&tail, id.characters.data() + sizeof head, sizeof tail);
        const std::uint64_t mixed = (head ^ tail * 0x9E3779B97F4A7C15u) * 0xD6E8FEB86659FD93u;
        return static_cast<std::size_t>(mixed ^ mixed >> 32);
    }
};
