#include "desk/import/calendar_reader.h"

#include "desk/import/activity_text.h"
#include "desk/import/recurring_entry.h"
#include "desk/import/uid.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <map>
#include <utility>

namespace importing {
namespace {

constexpr std::size_t share_of_an_entry = 4; // it may take a fourth of the work that is left

// All that the calendar has under one UID.
struct Group {
    const Component* main = nullptr;
    std::map<std::string, const Component*> overrides{}; // by the occurrence that each stands for
};

int sequence_of(const Component& component) {
    const std::string_view text = value_in(component, "SEQUENCE");
    int sequence = 0;
    std::from_chars(text.data(), text.data() + text.size(), sequence);
    return sequence;
}

class Reader {
public:
    Reader(const Component& calendar, const Here& here, Report& report)
        : zones_(calendar, here.zones, here.work), times_(zones_, here.local_time, here.work),
          today_(here.today.date()), work_(here.work), report_(report) {
        for (const Component& part : calendar.parts)
            sort_in(part);
        for (const Group& group : groups_) {
            read_if_possible(group);
            work_.step(entries_of(group).size());
        }
    }
    FoundCalendar found() { return std::move(found_); }

private:
    void skip(const Component& component, const std::string& why) {
        report_.skipped.push_back({source_of(component), why});
    }

    // The newer one of two under the same name stays, and of the same age the later in the file.
    void keep_newer(const Component*& place, const Component& component) {
        const Component* older = &component;
        if (!place || sequence_of(component) >= sequence_of(*place))
            older = std::exchange(place, &component);
        if (older)
            skip(*older, "The file has a newer version of it.");
    }

    void sort_in(const Component& part) {
        if (part.name == "VTIMEZONE")
            return;
        if (part.name != "VEVENT" && part.name != "VTODO")
            return skip(part, part.name == "VJOURNAL"
                                  ? "It is a journal entry, not an appointment."
                                  : "It is a " + single_line(part.name) + ", not an appointment.");
        const std::string uid = part.name + std::string(value_in(part, "UID"));
        auto place = by_uid_.find(uid);
        if (uid == part.name || place == by_uid_.end()) {
            groups_.emplace_back();
            place = by_uid_.insert_or_assign(uid, groups_.size() - 1).first;
        }
        Group& group = groups_[place->second];
        const std::string replaced(value_in(part, "RECURRENCE-ID"));
        keep_newer(replaced.empty() ? group.main : group.overrides[replaced], part);
    }

    void tell_changes(Entry& entry) {
        for (const std::string& name : zones_.take_unknown())
            entry.changes.push_back("Its time zone \"" + single_line(name) +
                                    "\" isn't known, so its times were taken as they stand.");
        for (const std::string& change : entry.changes)
            report_.changed.push_back({entry.source, change});
    }

    static std::vector<const Component*> entries_of(const Group& group) {
        std::vector<const Component*> entries;
        for (const auto& [replaced, component] : group.overrides)
            entries.push_back(component);
        if (group.main)
            entries.push_back(group.main);
        return entries;
    }

    // Whole or not at all.
    void read_if_possible(const Group& group) {
        const std::size_t found = found_.activities.size();
        const std::size_t changed = report_.changed.size();
        const std::size_t skipped = report_.skipped.size();
        bool is_possible = false;
        try {
            is_possible = work_.within(work_.left() / share_of_an_entry, [&] { read(group); });
        } catch (const Work::Exhausted&) { // nothing is left for the entries after it either
        }
        if (!is_possible) {
            found_.activities.erase(found_.activities.begin() + static_cast<std::ptrdiff_t>(found),
                                    found_.activities.end());
            report_.changed.resize(changed);
            report_.skipped.resize(skipped);
            zones_.take_unknown();
            for (const Component* component : entries_of(group))
                skip(*component, "It would take too long to read.");
            is_cut_ = true;
        }
        remember_whether_whole(group);
    }

    void remember_whether_whole(const Group& group) {
        if (is_cut_)
            for (const Component* component : entries_of(group))
                found_.cut_entries.insert(uid_of(*component));
        else if (group.main)
            found_.whole_entries.insert(uid_of(*group.main));
        for (std::set<std::string>* entries : {&found_.cut_entries, &found_.whole_entries})
            entries->erase(std::string()); // one without a name isn't known again
    }

    Entry entry_of(const Component& component) {
        work_.spend(units_to_parse(component));
        return read_entry(component, times_);
    }

    // Where an entry changes occurrences of a series that the file doesn't have, one with a rule of its own stands
    // for all of that rule's dates.
    void read(const Group& group) {
        is_cut_ = false;
        std::map<const Component*, std::vector<ZonedTime>> replaced;
        std::vector<const Component*> leaders;
        for (const auto& [name, component] : group.overrides) {
            Entry entry = entry_of(*component);
            replaced[component] = times_of(entry, ICAL_RECURRENCEID_PROPERTY, times_);
            if (group.main || !has_own_dates(*component)) {
                take_override(entry, *component, replaced[component]);
            } else {
                leaders.push_back(component);
                zones_.take_unknown(); // told when it is read again
            }
        }
        if (group.main)
            leaders.push_back(group.main);
        for (const Component* leader : leaders) {
            Entry entry = entry_of(*leader);
            if (is_skipped(entry))
                continue;
            entry.found.occurrence = occurrence_of(*leader, replaced[leader]);
            std::vector<ZonedTime> others;
            for (const auto& [component, times] : replaced)
                if (component != leader)
                    others.insert(others.end(), times.begin(), times.end());
            work_.spend(replaced.size() * 10);
            take_all(entry, *leader, others);
        }
    }

    bool is_skipped(const Entry& entry) {
        if (entry.skipped.empty())
            return false;
        is_cut_ = is_cut_ || !entry.is_cancelled;
        report_.skipped.push_back({entry.source, entry.skipped});
        return true;
    }

    // Empty for an entry that stands for no occurrence of another.
    std::string occurrence_of(const Component& component, const std::vector<ZonedTime>& replaced) const {
        return replaced.empty() ? std::string(value_in(component, "RECURRENCE-ID"))
                                : name_of_occurrence(times_.local(replaced.front()));
    }

    void take(const FoundActivity& activity) {
        work_.spend(units_to_write(activity));
        found_.activities.push_back(activity);
    }

    void take_all(Entry& entry, const Component& told, const std::vector<ZonedTime>& replaced) {
        if (entry.is_settled) {
            tell_changes(entry);
            return take(entry.found);
        }
        std::vector<FoundActivity> activities = activities_of(entry, told, replaced, {times_, today_, work_});
        if (activities.empty() && replaced.empty())
            report_.skipped.push_back({entry.source, "Its exceptions leave out all of its occurrences."});
        std::ranges::move(activities, std::back_inserter(found_.activities));
        is_cut_ = is_cut_ || entry.is_cut;
        tell_changes(entry);
    }

    static bool has_own_dates(const Component& component) {
        return !value_in(component, "RRULE").empty() || !value_in(component, "RDATE").empty();
    }

    void take_override(Entry& entry, const Component& component, const std::vector<ZonedTime>& replaced) {
        if (is_skipped(entry))
            return;
        icalproperty* property =
            icalcomponent_get_first_property(entry.component.get(), ICAL_RECURRENCEID_PROPERTY);
        if (property && icalproperty_get_first_parameter(property, ICAL_RANGE_PARAMETER))
            entry.changes.push_back("It changes all later occurrences too; only this one was changed.");
        if (has_own_dates(component))
            entry.changes.push_back("It changes one occurrence, so its own further dates were left out.");
        entry.found.occurrence = occurrence_of(component, replaced);
        take(entry.found);
        tell_changes(entry);
    }

    Zones zones_;
    Times times_;
    const values::DateTime today_;
    Work& work_;
    Report& report_;
    FoundCalendar found_;
    bool is_cut_ = false; // the entry that is being read has more than is taken
    std::vector<Group> groups_;
    std::map<std::string, std::size_t> by_uid_;
};

} // namespace

FoundCalendar read_calendar(const Component& calendar, const Here& here, Report& report) {
    return Reader(calendar, here, report).found();
}

} // namespace importing
