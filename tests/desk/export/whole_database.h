#pragma once

#include "desk/store/store.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace test_export {

using values::DateTime;

// Everything that two databases can have in common, with names in the place of ids.
class Whole {
public:
    explicit Whole(store::Store& store) : store_(store) {
        for (const store::User& user : store.users())
            names_[user.id] = user.name;
        for (const store::Group& group : store.groups())
            names_[group.id] = group.name;
        for (const store::Contact& contact : store.contacts())
            names_[contact.id] = told(contact);
    }

    std::vector<std::string> users() {
        std::vector<std::string> lines;
        for (const store::User& user : store_.users())
            lines.push_back(user.name + "|" + user.security + "|" + user.access);
        return lines;
    }
    std::vector<std::string> contacts() {
        std::vector<std::string> lines;
        for (const store::Contact& contact : store_.contacts()) {
            std::string line = told(contact);
            for (const store::Note& note : store_.notes(contact.id))
                line += "\nnote " + std::to_string(note.written.seconds()) + " " + note.text;
            lines.push_back(line);
        }
        return sorted(lines);
    }
    std::vector<std::string> groups() {
        std::vector<std::string> lines;
        for (const store::Group& group : store_.groups()) {
            std::string line = group.name;
            for (const std::string& contact : group.contacts)
                line += "\n" + names_.at(contact);
            lines.push_back(line);
        }
        return sorted(lines);
    }
    std::vector<std::string> activities() {
        std::vector<std::string> lines;
        for (const store::Activity& activity : store_.activities({}))
            lines.push_back(told(activity));
        return sorted(lines);
    }

private:
    static std::vector<std::string> sorted(std::vector<std::string> lines) {
        std::sort(lines.begin(), lines.end());
        return lines;
    }
    static std::string told(const store::Contact& contact) {
        std::string line = "contact";
        for (const auto& [number, text] : contact.fields)
            line += "|" + std::to_string(number) + " " + text;
        return line;
    }
    static std::string number(const std::optional<DateTime>& date) {
        return date ? std::to_string(date->seconds()) : "none";
    }
    std::string told(const store::Activity& a) {
        std::string line;
        const store::Recurrence& series = a.recurrence;
        for (const std::int64_t value :
             {std::int64_t{static_cast<int>(a.type)}, std::int64_t{static_cast<int>(a.priority)}, a.end.seconds(),
              std::int64_t{a.duration}, std::int64_t{a.is_private}, std::int64_t{a.alarm},
              std::int64_t{a.alarm_lead}, std::int64_t{a.cleared}, std::int64_t{static_cast<int>(series.kind)},
              std::int64_t{series.frequency}, std::int64_t{series.days_of_week},
              std::int64_t{series.weeks_of_month}, std::int64_t{series.days_of_month}})
            line += std::to_string(value) + "|";
        line +=
            number(a.start) + "|" + number(series.until) + "|" + (a.colour ? std::to_string(*a.colour) : "none");
        for (const std::string& text : {a.regarding, a.details, a.result, name(a.user), name(a.group)})
            line += "|" + text;
        for (const std::string& contact : a.contacts)
            line += "\nwith " + names_.at(contact);
        for (const DateTime date : a.exceptions)
            line += "\nnot on " + number(date);
        return line;
    }
    std::string name(const std::string& id) { return id.empty() ? "" : names_.at(id); }

    store::Store& store_;
    std::map<std::string, std::string> names_;
};

inline void expect_same(store::Store& left, store::Store& right) {
    Whole one(left);
    Whole other(right);
    EXPECT_EQ(one.users(), other.users());
    EXPECT_EQ(one.contacts(), other.contacts());
    EXPECT_EQ(one.groups(), other.groups());
    const auto expected = one.activities();
    const auto got = other.activities();
    ASSERT_EQ(expected.size(), got.size());
    for (std::size_t i = 0; i < expected.size(); ++i)
        ASSERT_EQ(expected[i], got[i]);
}

} // namespace test_export
