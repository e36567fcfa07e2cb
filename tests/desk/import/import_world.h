#pragma once

#include "core/values/failure.h"
#include "core/values/text.h"
#include "desk/import/import_file.h"
#include "desk/store/contact_fields.h"
#include "support/temporary_database.h"
#include "support/temporary_folder.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <sstream>
#include <string>
#include <vector>

// A database with a user and two contacts, into which files are imported on a Monday in Berlin.
namespace test_import {

// Berlin by the European rule, computed here so that the machine's own zone doesn't matter.
inline values::DateTime berlin(std::int64_t seconds) {
    using values::DateTime;
    const DateTime utc = DateTime::from_seconds(DateTime::of(1970, 1, 1).seconds() + seconds);
    const auto change = [&](int month) {
        const DateTime last = DateTime::of(utc.year(), month, 31, 1);
        return last.plus_days(1 - last.weekday());
    };
    return utc.plus_minutes(utc >= change(3) && utc < change(10) ? 120 : 60);
}

inline std::string data_folder() { return TEST_DATA "/import/"; }

inline std::vector<std::string> data_files() {
    std::vector<std::string> names;
    for (const auto& file : std::filesystem::directory_iterator(data_folder()))
        if (file.path().extension() == ".ics" || file.path().extension() == ".vcf")
            names.push_back(file.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

class ImportWorld {
public:
    ImportWorld() {
        store().add(store::User{{}, "Anna Keller", "Administrator", "Enabled"});
        store().add(store::User{{}, "Tom Whitfield", "Standard", "Enabled"});
        store().add(store::Contact{.fields = {{store::contact_field::name, "Known Mail"},
                                              {store::contact_field::e_mail, "known@example.org"}}});
        store().add(store::Contact{.fields = {{store::contact_field::name, "Nora Name"}}});
    }

    store::Store& store() { return database_.store(); }
    importing::Options options() const {
        return {.user = "",
                .now = values::DateTime::of(2024, 3, 11, 9),
                .local_time = berlin,
                .other_zone_names = [](const std::string& name) {
                    return name == "Tokyo Standard Time" ? "Asia/Tokyo" : "";
                }};
    }
    importing::Report take(const std::string& bytes) {
        return importing::import_bytes(store(), bytes, "file", options());
    }

    // The report, or why there is none, and then all that the database holds and didn't hold before.
    std::string taken(const std::string& name) {
        std::string text;
        try {
            text = importing::import_file(store(), data_folder() + name, options()).text();
        } catch (const values::Failure& failure) {
            text = "Failed: " + failure.description() + "\n";
        }
        return text + records();
    }

    std::string records() {
        std::ostringstream out;
        std::map<std::string, std::string> names;
        for (const store::Contact& contact : store().contacts()) {
            names[contact.id] = contact.fields.at(contact.fields.contains(26) ? 26 : 25);
            if (names[contact.id] == "Known Mail" || names[contact.id] == "Nora Name")
                continue;
            out << "contact";
            for (const auto& [number, text] : contact.fields)
                out << " | " << number << " " << text;
            out << "\n";
            for (const store::Note& note : store().notes(contact.id))
                out << "  note " << shown(note.text) << "\n";
        }
        for (const store::Activity& activity : store().activities({}))
            write(out, activity, names);
        return out.str();
    }

private:
    static std::string shown(const std::string& text) { return values::replaced(text, "\n", " / "); }
    static std::string two(int number) { return (number < 10 ? "0" : "") + std::to_string(number); }
    static std::string date(values::DateTime value) {
        return std::to_string(value.year()) + "-" + two(value.month()) + "-" + two(value.day());
    }

    static void write(std::ostream& out, const store::Activity& activity,
                      std::map<std::string, std::string>& names) {
        static const char* const types[] = {"call", "meeting", "to-do"};
        static const char* const priorities[] = {"high", "medium", "low"};
        out << types[static_cast<int>(activity.type)] << " | " << date(*activity.start) << " "
            << two(activity.start->hour()) << ":" << two(activity.start->minute()) << " | " << activity.duration
            << " min | " << priorities[static_cast<int>(activity.priority)] << " | " << activity.regarding;
        if (activity.end != activity.start->plus_minutes(activity.duration))
            out << " | ends elsewhere";
        if (!activity.details.empty())
            out << " | details " << shown(activity.details);
        if (activity.is_private)
            out << " | private";
        if (activity.cleared)
            out << " | cleared";
        if (activity.alarm)
            out << " | alarm " << activity.alarm_lead;
        if (activity.colour)
            out << " | colour " << std::hex << *activity.colour << std::dec;
        for (const std::string& contact : activity.contacts)
            out << " | with " << names[contact];
        out << "\n";
        write(out, activity.recurrence, activity.exceptions);
    }

    static void write(std::ostream& out, const store::Recurrence& series,
                      const std::vector<values::DateTime>& exceptions) {
        static const char* const kinds[] = {"", "daily", "weekly", "days of month", "weekdays of month"};
        if (series.kind == store::RecurrenceKind::none)
            return;
        out << "  " << kinds[static_cast<int>(series.kind)] << " | every " << series.frequency;
        if (series.until)
            out << " | until " << date(*series.until);
        if (series.days_of_week != 0)
            out << " | weekdays " << series.days_of_week;
        if (series.weeks_of_month != 0)
            out << " | weeks " << series.weeks_of_month;
        for (int day = 0; day < 31; ++day)
            if (series.days_of_month >> day & 1)
                out << " | day " << day + 1;
        for (const values::DateTime exception : exceptions)
            out << " | except " << date(exception);
        out << "\n";
    }

    support::TemporaryDatabase database_;
};

} // namespace test_import
