#pragma once

#include "desk/store/contact_fields.h"
#include "desk/store/store.h"

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace test_export {

using values::DateTime;

// Records with whatever a user can make and more.
class RandomTeam {
public:
    explicit RandomTeam(unsigned seed) : random_(seed) {}

    void fill(store::Store& store) {
        for (const char* name : {"Anna; Keller", "Bert \"B\" Cole", "Ümit, Ñandú"})
            users_.push_back(store.add(store::User{.name = name, .security = "Standard", .access = "Disabled"}));
        users_.emplace_back();
        for (int i = 0; i < 60; ++i)
            contacts_.push_back(store.add(contact()));
        contacts_.push_back(store.add(store::Contact{}));
        contacts_.push_back(store.add(store.contact(contacts_.front())->fields.empty()
                                          ? store::Contact{.fields = {{26, "Twin"}}}
                                          : store::Contact{.fields = store.contact(contacts_.front())->fields}));
        for (int i = 0; i < 5; ++i)
            groups_.push_back(
                store.add(store::Group{.name = "Group, " + std::to_string(i), .contacts = some(i * 3)}));
        groups_.emplace_back();
        for (int i = 0; i < 30; ++i)
            store.add(store::Note{.contact = one_of(contacts_), .written = date(), .text = text()});
        for (int i = 0; i < 2000; ++i)
            store.add(activity());
    }

private:
    int pick(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }
    bool in_so_many_of_100(int count) { return pick(100) < count; }
    template <typename T>
    const T& one_of(const std::vector<T>& all) {
        return all[static_cast<std::size_t>(pick(static_cast<int>(all.size())))];
    }
    std::vector<std::string> some(int count) {
        std::vector<std::string> result;
        for (; count > 0; --count)
            if (const std::string& id = one_of(contacts_);
                std::find(result.begin(), result.end(), id) == result.end())
                result.push_back(id);
        return result;
    }
    std::string text() {
        static const std::vector<std::string> pieces = {"call",
                                                        " ",
                                                        ",",
                                                        ";",
                                                        "\\",
                                                        "\\n",
                                                        ":",
                                                        "\"",
                                                        "'",
                                                        "^n",
                                                        "%41",
                                                        "=",
                                                        "ä",
                                                        "€",
                                                        "😀",
                                                        "\n",
                                                        "\t",
                                                        "\r",
                                                        "  ",
                                                        "\x01",
                                                        "\\,",
                                                        "END:VEVENT\n",
                                                        "X-ORVANTA-TYPE:CALL\n",
                                                        "x",
                                                        "The end",
                                                        "\xC3",
                                                        "\xA0\xFF",
                                                        "mailto:",
                                                        "1"};
        std::string result;
        for (int count = pick(12); count > 0; --count)
            result += one_of(pieces);
        if (in_so_many_of_100(3))
            result += std::string(static_cast<std::size_t>(250 + pick(30000)), 'w');
        return result;
    }
    DateTime date() {
        const DateTime day = DateTime::of(2024, 3, 11).plus_days(pick(2000) - 1000);
        return day.plus_minutes(pick(24 * 60));
    }
    store::Contact contact() {
        store::Contact contact;
        for (const store::ContactField& field : store::contact_fields())
            if (in_so_many_of_100(40))
                if (const std::string value = field.number == 53 && pick(2) ? "2001-02-03" : text();
                    !value.empty())
                    contact.fields[field.number] = value;
        return contact;
    }
    store::Activity activity() {
        store::Activity a;
        a.type = static_cast<store::ActivityType>(pick(3));
        a.priority = static_cast<store::Priority>(pick(3));
        a.regarding = text();
        if (!in_so_many_of_100(3))
            a.start = date();
        if (in_so_many_of_100(2))
            a.start = DateTime::of(in_so_many_of_100(50) ? 1650 : 2600, 3, 4, 5, 6, 7);
        a.duration = in_so_many_of_100(5) ? pick(100000) : pick(300);
        a.end = a.start.value_or(DateTime()).plus_minutes(in_so_many_of_100(10) ? pick(500) : a.duration);
        a.is_private = in_so_many_of_100(10);
        a.alarm = in_so_many_of_100(30);
        a.alarm_lead = in_so_many_of_100(40) ? pick(40000) : 0;
        if (in_so_many_of_100(50))
            a.colour = static_cast<std::uint32_t>(in_so_many_of_100(10) ? random_() : random_() % 0x1000000);
        a.user = one_of(users_);
        a.group = one_of(groups_);
        a.contacts = some(pick(4));
        a.cleared = in_so_many_of_100(30);
        a.result = in_so_many_of_100(30) ? text() : "";
        a.details = in_so_many_of_100(50) ? text() : "";
        if (in_so_many_of_100(40))
            make_series(a);
        return a;
    }
    void make_series(store::Activity& a) {
        a.recurrence = {.kind = static_cast<store::RecurrenceKind>(1 + pick(4)),
                        .frequency = 1 + pick(5),
                        .until = {},
                        .days_of_week = pick(128),
                        .weeks_of_month = pick(32),
                        .days_of_month = static_cast<std::uint32_t>(random_() & 0x7FFFFFFF)};
        if (in_so_many_of_100(50))
            a.recurrence.until = date().date();
        for (int count = pick(6); count > 0; --count)
            a.exceptions.push_back(date());
    }

    std::mt19937 random_;
    std::vector<std::string> users_, contacts_, groups_;
};

} // namespace test_export
