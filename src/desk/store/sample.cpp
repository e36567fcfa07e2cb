#include "desk/store/sample.h"

#include "core/values/text.h"
#include "desk/store/contact_fields.h"
#include "desk/store/sample_texts.h"

#include <cctype>
#include <iterator>
#include <random>

namespace store {

namespace {

using namespace sample;
namespace field = contact_field;

constexpr int minutes_of_day_start = 8 * 60;
constexpr int minutes_of_day_end = 17 * 60;

// The first name's letter and the last name, of which letters that a mail address can't have fall out.
std::string mailbox(const Name& name) {
    std::string result(name.first.substr(0, 1));
    for (const char c : name.last)
        if (std::isalpha(static_cast<unsigned char>(c)))
            result += c;
    return values::lower(result);
}

class SampleMaker {
public:
    SampleMaker(Store& store, DateTime day)
        : store_(store), today_(day.date()), monday_(today_.plus_days(2 - today_.weekday())) {}

    void fill() {
        for (const Person& person : colleagues)
            users_.push_back(store_.add(User{.name = std::string(person.name),
                                             .security = users_.empty()       ? "Administrator"
                                                         : users_.size() == 5 ? "Browse"
                                                                              : "Standard",
                                             .access = "Enabled"}));
        add_contacts();
        add_groups();
        add_notes();
        for (int week = -5; week <= 5; ++week)
            add_week(week);
        add_series();
    }

private:
    std::size_t pick_from(const std::vector<std::string>& ids) {
        return static_cast<std::size_t>(pick(static_cast<int>(ids.size())));
    }
    int pick(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }
    bool in_so_many_of_100(int chance) { return pick(100) < chance; }
    template <typename T, std::size_t size>
    const T& one_of(const T (&all)[size]) {
        return all[pick(static_cast<int>(size))];
    }
    std::string text_of(const auto& all) { return std::string(one_of(all)); }

    std::string phone(const Company& company) {
        const std::string line = std::to_string(100 + pick(100)); // numbers that belong to nobody
        return std::string(company.area) + " 555-0" + line;
    }

    void add_contacts() {
        for (const Name& name : sample::contacts) {
            const Company& company = companies[contacts_.size() / contacts_of_a_company];
            const std::string first(name.first), last(name.last), domain(company.domain);
            Contact contact;
            contact.fields = {{field::company, std::string(company.name)},
                              {field::name, first + " " + last},
                              {field::address, std::string(company.street)},
                              {field::city, std::string(company.city)},
                              {field::state, std::string(company.state)},
                              {field::postcode, std::string(company.postcode)},
                              {field::country, std::string(company.country)},
                              {field::phone, phone(company)},
                              {field::salutation, first},
                              {field::title, text_of(titles)},
                              {field::e_mail, mailbox(name) + "@" + domain},
                              {field::web_site, "www." + domain},
                              {field::record_creator, std::string(colleagues[0].name)},
                              {field::record_manager, std::string(one_of(colleagues).name)}};
            if (in_so_many_of_100(60))
                contact.fields[field::mobile] = phone(company);
            if (in_so_many_of_100(30))
                contact.fields[field::fax] = phone(company);
            contacts_.push_back(store_.add(contact));
        }
    }

    // Suppliers in one group, customers in the other, and some of both in the third.
    void add_groups() {
        std::vector<Group> all;
        for (const std::string_view name : sample::groups)
            all.push_back({.name = std::string(name)});
        for (std::size_t i = 0; i < contacts_.size(); ++i) {
            all[group_of(i)].contacts.push_back(contacts_[i]);
            if (i % 5 == 0)
                all[2].contacts.push_back(contacts_[i]);
        }
        for (const Group& group : all)
            groups_.push_back(store_.add(group));
    }

    static std::size_t group_of(std::size_t contact) {
        return companies[contact / contacts_of_a_company].is_supplier ? 1 : 0;
    }

    void add_notes() {
        for (int i = 0; i < 45; ++i)
            store_.add(Note{.contact = contacts_[pick_from(contacts_)],
                            .written = today_.plus_days(-1 - pick(90)).plus_minutes(9 * 60 + 5 * pick(90)),
                            .text = text_of(sample::notes)});
    }

    Activity activity(std::size_t user, DateTime day, int minute, int duration) {
        Activity result;
        result.start = day.plus_minutes(minute);
        result.duration = duration;
        result.user = users_[user];
        const int kind = pick(100);
        result.type = kind < 35 ? ActivityType::call : kind < 80 ? ActivityType::meeting : ActivityType::to_do;
        result.regarding = result.type == ActivityType::call      ? text_of(calls)
                           : result.type == ActivityType::meeting ? text_of(meetings)
                                                                  : text_of(to_dos);
        const int priority = pick(100);
        result.priority = priority < 15 ? Priority::high : priority < 40 ? Priority::medium : Priority::low;
        const std::size_t contact = pick_from(contacts_);
        result.contacts.push_back(contacts_[contact]);
        if (in_so_many_of_100(12))
            for (int more = 1 + pick(3); more > 0; --more)
                result.contacts.push_back(
                    contacts_[(contact + static_cast<std::size_t>(15 * more)) % contacts_.size()]);
        if (in_so_many_of_100(40))
            result.group = groups_[group_of(contact)];
        if (in_so_many_of_100(45))
            result.colour = one_of(colours);
        if (in_so_many_of_100(25))
            result.details = text_of(sample::details);
        result.alarm = in_so_many_of_100(15);
        result.alarm_lead = result.alarm ? 5 * (1 + pick(3)) : 0;
        result.is_private = in_so_many_of_100(5);
        return result;
    }

    void add(Activity activity) {
        // Most of what lies weeks back has been cleared; of the present week, which is looked at first, little.
        const bool is_past = *activity.start < today_;
        const int cleared_of_100 = *activity.start < monday_ ? 80 : 15;
        if (activity.recurrence.kind == RecurrenceKind::none && is_past && in_so_many_of_100(cleared_of_100)) {
            activity.cleared = true;
            activity.result = text_of(results);
        }
        store_.add(activity);
    }

    int duration() {
        static constexpr int lengths[] = {15, 30, 30, 30, 45, 60, 60, 60, 90, 120, 180, 240};
        return one_of(lengths);
    }

    // The present week, which begins on a Sunday, is dense, the others less so. Now and then two of a user's
    // activities overlap.
    void add_week(int week) {
        const bool is_present = week == 0;
        for (int weekday = 0; weekday < 5; ++weekday) {
            const DateTime day = monday_.plus_days(7 * week + weekday);
            for (std::size_t user = 0; user < users_.size(); ++user) {
                if (!is_present && !in_so_many_of_100(45))
                    continue;
                int minute = minutes_of_day_start + 15 * pick(is_present ? 9 : 24);
                for (int left = is_present ? 2 + pick(2) : 1 + pick(2); left > 0; --left) {
                    const int length = duration();
                    if (minute + length > minutes_of_day_end)
                        break;
                    add(activity(user, day, minute, length));
                    minute += in_so_many_of_100(12) ? 15 : length + 15 * pick(9);
                }
            }
        }
        // Outside the usual hours and days, where the calendar has to leave them out or show them on their own.
        if (week % 2 == 0) {
            const std::size_t user = pick_from(users_);
            add(activity(user, monday_.plus_days(7 * week + 5), 10 * 60, 60));
            add(activity(user, monday_.plus_days(7 * week + 3), 19 * 60, 120));
        }
    }

    void add_series(const std::string& regarding, std::size_t user, DateTime start, int duration,
                    const Recurrence& recurrence, const std::vector<DateTime>& exceptions = {}) {
        Activity series;
        series.regarding = regarding;
        series.user = users_[user];
        series.start = start;
        series.duration = duration;
        series.recurrence = recurrence;
        series.exceptions = exceptions;
        series.colour = one_of(colours);
        series.contacts.push_back(contacts_[pick_from(contacts_)]);
        add(series);
    }

    void add_series() {
        using Kind = RecurrenceKind;
        const auto at = [this](int day, int hour, int minute = 0) {
            return monday_.plus_days(day).plus_minutes(hour * 60 + minute);
        };
        // Bit 0 is Sunday.
        constexpr int monday = 2, tuesday = 4, wednesday = 8, thursday = 16, friday = 32;
        const auto week_of_month = [](DateTime day) { return 1 << ((day.day() - 1) / 7); };
        const auto day_of_month = [](DateTime day) { return 1u << (day.day() - 1); };

        add_series("Stocktaking, daily count", 5, at(0, 8), 45,
                   {.kind = Kind::daily, .frequency = 1, .until = at(4, 0)});
        add_series("Back up the order system", 0, at(-28, 16, 30), 15,
                   {.kind = Kind::daily, .frequency = 2, .until = {}}, {at(2, 0), at(8, 0)});
        add_series("Weekly team meeting", 0, at(-21, 9), 60,
                   {.kind = Kind::weekly, .frequency = 1, .until = {}, .days_of_week = monday}, {at(7, 0)});
        add_series("Delivery planning", 5, at(-14, 15), 30,
                   {.kind = Kind::weekly,
                    .frequency = 1,
                    .until = at(60, 0),
                    .days_of_week = monday | wednesday | friday},
                   {at(4, 0), at(11, 0)});
        add_series("Sales call with the agents", 1, at(-13, 11), 60,
                   {.kind = Kind::weekly, .frequency = 2, .until = {}, .days_of_week = tuesday | thursday});
        add_series("Purchasing review", 4, at(-25, 14), 90,
                   {.kind = Kind::weekly, .frequency = 1, .until = at(30, 0), .days_of_week = thursday},
                   {at(10, 0)});
        add_series("Pay the suppliers", 4, at(-40, 10), 60,
                   {.kind = Kind::days_of_month,
                    .frequency = 1,
                    .until = {},
                    .days_of_month = day_of_month(at(2, 0)) | day_of_month(at(-8, 0))},
                   {at(-8, 0)});
        add_series(
            "Report to the bank", 0, at(-33, 13), 30,
            {.kind = Kind::days_of_month, .frequency = 1, .until = {}, .days_of_month = day_of_month(at(4, 0))});
        const DateTime first_of_month = today_.plus_days(1 - today_.day());
        const DateTime first_tuesday = first_of_month.plus_days((10 - first_of_month.weekday()) % 7);
        add_series("Management review", 0, first_of_month.plus_minutes(14 * 60), 120,
                   {.kind = Kind::weekdays_of_month,
                    .frequency = 1,
                    .until = {},
                    .days_of_week = 1 << (today_.weekday() - 1),
                    .weeks_of_month = week_of_month(today_)});
        add_series("Visit to the main customer", 2, first_of_month.plus_minutes(10 * 60), 180,
                   {.kind = Kind::weekdays_of_month,
                    .frequency = 1,
                    .until = {},
                    .days_of_week = tuesday | thursday,
                    .weeks_of_month = 0b01010},
                   {first_tuesday.plus_days(21)});
    }

    Store& store_;
    const DateTime today_, monday_;
    std::mt19937 random_{20240311};
    std::vector<std::string> users_, contacts_, groups_;
};

} // namespace

void fill_sample(Store& store, DateTime day) {
    store.together([&] { SampleMaker(store, day).fill(); });
}

} // namespace store
