#include "desk/import/calendar_reader.h"

#include "desk/import/activity_text.h"
#include "desk/import/import_file.h"
#include "desk/import/occurrences.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace importing {
namespace {

using store::DateTime;

// All that the calendar has under one UID.
struct Group {
    const Component* main = nullptr;
    std::map<std::string, const Component*> overrides{}; // by the occurrence that each stands for
};

// Dates of a series on which it doesn't take place.
struct Excluded {
    std::set<DateTime> starts{};
    std::set<DateTime> days{};

    bool has(const icaltimetype& time, DateTime local) const {
        return starts.contains(local) || days.contains(DateTime::of(time.year, time.month, time.day));
    }
};

int sequence_of(const Component& component) {
    const std::string_view text = value_in(component, "SEQUENCE");
    int sequence = 0;
    std::from_chars(text.data(), text.data() + text.size(), sequence);
    return sequence;
}

std::string date_text(DateTime date) {
    const auto two = [](int number) { return (number < 10 ? "0" : "") + std::to_string(number); };
    return std::to_string(date.year()) + "-" + two(date.month()) + "-" + two(date.day());
}

// Names one of several activities of an entry. It stays the same as long as the date does.
std::string name_of_occurrence(DateTime start) { return std::to_string(start.seconds()); }

class Reader {
public:
    Reader(const Component& calendar, const Here& here, Report& report)
        : zones_(calendar), times_(zones_, here.local_time), today_(here.today.date()), report_(report) {
        for (const Component& part : calendar.parts)
            sort_in(part);
        for (const Group& group : groups_)
            read(group);
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

    void take(const FoundActivity& activity) { found_.activities.push_back(activity); }

    void take_at(const FoundActivity& activity, DateTime start) {
        FoundActivity single = activity;
        single.occurrence = name_of_occurrence(start);
        single.activity.start = start;
        single.activity.end = start.plus_minutes(single.activity.duration);
        take(single);
    }

    void tell_changes(Entry& entry) {
        for (const std::string& name : zones_.take_unknown())
            entry.changes.push_back("Its time zone \"" + single_line(name) +
                                    "\" isn't known, so its times were taken as they stand.");
        for (const std::string& change : entry.changes)
            report_.changed.push_back({entry.source, change});
    }

    void exclude(Excluded& excluded, const Entry& entry, icalproperty* property) {
        for (const icaltimetype& time : times_.all(property))
            if (time.is_date || entry.start.is_date)
                excluded.days.insert(DateTime::of(time.year, time.month, time.day));
            else
                excluded.starts.insert(times_.local(time));
    }

    void read(const Group& group) {
        is_cut_ = false;
        Excluded excluded;
        std::optional<Entry> main;
        if (group.main)
            main = read_entry(*group.main, times_);
        for (const auto& [replaced, component] : group.overrides)
            read_override(*component, main, excluded);
        if (!main)
            return;
        if (!main->skipped.empty())
            report_.skipped.push_back({main->source, main->skipped});
        else
            read_main(*main, excluded);
        if (!main->found.uid.empty() && !is_cut_ && (main->skipped.empty() || main->is_cancelled))
            found_.whole_entries.insert(main->found.uid);
    }

    void read_override(const Component& component, const std::optional<Entry>& main, Excluded& excluded) {
        Entry entry = read_entry(component, times_);
        icalproperty* replaced =
            entry.component ? icalcomponent_get_first_property(entry.component.get(), ICAL_RECURRENCEID_PROPERTY)
                            : nullptr;
        if (replaced && main && main->skipped.empty())
            exclude(excluded, *main, replaced);
        if (!entry.skipped.empty()) {
            is_cut_ = is_cut_ || !entry.is_cancelled;
            report_.skipped.push_back({entry.source, entry.skipped});
            return;
        }
        if (replaced && icalproperty_get_first_parameter(replaced, ICAL_RANGE_PARAMETER))
            entry.changes.push_back("It changes all later occurrences too; only this one was changed.");
        tell_changes(entry);
        const auto times = replaced ? times_.all(replaced) : std::vector<icaltimetype>();
        entry.found.occurrence = times.empty() ? std::string(value_in(component, "RECURRENCE-ID"))
                                               : name_of_occurrence(times_.local(times.front()));
        take(entry.found);
    }

    void read_main(Entry& entry, Excluded& excluded) {
        if (entry.is_settled) {
            tell_changes(entry);
            return take(entry.found);
        }
        icalcomponent* component = entry.component.get();
        for (icalproperty* property = icalcomponent_get_first_property(component, ICAL_EXDATE_PROPERTY); property;
             property = icalcomponent_get_next_property(component, ICAL_EXDATE_PROPERTY))
            exclude(excluded, entry, property);
        std::set<DateTime> taken;
        icalproperty* rule = icalcomponent_get_first_property(component, ICAL_RRULE_PROPERTY);
        if (rule && icalcomponent_get_next_property(component, ICAL_RRULE_PROPERTY))
            entry.changes.push_back("It has several rules of recurrence; only the first was taken.");
        icalcomponent_get_first_property(component, ICAL_RRULE_PROPERTY);
        auto followed = rule ? follow(rule, entry.start, times_, today_) : std::nullopt;
        is_cut_ = is_cut_ || (rule && !followed);
        if (rule && !followed)
            entry.changes.push_back("The calendar can't follow its rule of recurrence; only the first was taken.");
        if (followed) {
            take_rule(entry, *followed, excluded);
            taken.insert(followed->dates.starts.begin(), followed->dates.starts.end());
        } else if (!excluded.has(entry.start, *entry.found.activity.start)) {
            take(entry.found);
            taken.insert(*entry.found.activity.start);
        }
        take_further_dates(entry, excluded, taken);
        tell_changes(entry);
    }

    void take_further_dates(Entry& entry, const Excluded& excluded, std::set<DateTime>& taken) {
        icalcomponent* component = entry.component.get();
        for (icalproperty* property = icalcomponent_get_first_property(component, ICAL_RDATE_PROPERTY); property;
             property = icalcomponent_get_next_property(component, ICAL_RDATE_PROPERTY))
            for (const icaltimetype& time : times_.all(property))
                if (const DateTime start = times_.local(time);
                    !excluded.has(time, start) && taken.insert(start).second)
                    take_at(entry.found, start);
    }

    void take_rule(Entry& entry, const FollowedRule& followed, const Excluded& excluded) {
        const RuleDates& dates = followed.dates;
        const bool is_one = dates.ended && dates.starts.size() == 1;
        const auto series = is_one || followed.is_too_long ? std::nullopt : series_on(dates);
        if (!series)
            return take_single(entry, followed, excluded, is_one);
        FoundActivity recurring = entry.found;
        recurring.activity.recurrence = *series;
        std::vector<DateTime>& exceptions = recurring.activity.exceptions;
        for (std::size_t i = 0; i < dates.starts.size(); ++i)
            if (excluded.has(followed.times[i], dates.starts[i]))
                exceptions.push_back(dates.starts[i].date());
        for (const auto& beyond : {excluded.starts, excluded.days})
            for (const DateTime date : beyond)
                if (!dates.ended && date.date() > dates.known_to)
                    exceptions.push_back(date.date());
        take(recurring);
    }

    void take_single(Entry& entry, const FollowedRule& followed, const Excluded& excluded, bool is_one) {
        std::vector<DateTime> starts;
        const bool goes_on = !followed.dates.ended && !followed.is_too_long;
        const DateTime last = today_.plus_months(12 * years_of_a_rule);
        for (std::size_t i = 0; i < followed.times.size(); ++i) {
            const DateTime start = followed.dates.starts[i];
            if (!excluded.has(followed.times[i], start) && (i == 0 || !goes_on || start.date() <= last))
                starts.push_back(start);
        }
        const std::size_t all = starts.size();
        keep_nearest(starts);
        const bool has_more = starts.size() < all || followed.is_too_long;
        is_cut_ = is_cut_ || has_more;
        for (const DateTime start : starts)
            take_at(entry.found, start);
        if (is_one)
            return;
        std::string change = "The calendar shows no series on its dates, so it became single activities (" +
                             std::to_string(starts.size()) + ")";
        if (has_more)
            change += ", no more, of its many dates";
        if (goes_on)
            change += ", up to " + date_text(std::max(last, starts.empty() ? last : starts.back()));
        entry.changes.push_back(change + ".");
    }

    // Of too many dates those from today on, and before them as many as there is room for.
    void keep_nearest(std::vector<DateTime>& starts) const {
        if (starts.size() <= most_of_a_rule)
            return;
        const auto coming = std::lower_bound(starts.begin(), starts.end(), today_.date());
        const std::ptrdiff_t first =
            std::min(coming - starts.begin(), static_cast<std::ptrdiff_t>(starts.size() - most_of_a_rule));
        starts.erase(starts.begin(), starts.begin() + first);
        starts.resize(most_of_a_rule);
    }

    Zones zones_;
    Times times_;
    const DateTime today_;
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
