#include "benchmarks/bulk_database.h"

#include "desk/store/contact_fields.h"

#include <algorithm>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace bench {

using store::Activity;
using store::DateTime;
using store::RecurrenceKind;

namespace {

constexpr int user_count = 20;
constexpr int activities_for_a_contact = 20;
constexpr int days_before = 10 * 365, days_after = 365;
constexpr int longest_lead_in_days = 30;
constexpr int records_at_once = 20000;

class BulkMaker {
public:
    BulkMaker(store::Store& store, DateTime day, int activities)
        : store_(store), first_day_(day.date().plus_days(-days_before)), activities_(activities) {}

    void fill() {
        store_.together([this] {
            for (int i = 0; i < user_count; ++i)
                users_.push_back(store_.add(store::User{
                    .name = "User " + std::to_string(i + 1), .security = "Standard", .access = "Enabled"}));
        });
        in_portions(std::max(activities_ / activities_for_a_contact, 1), [this](int i) { add_contact(i); });
        // Made some days before they start.
        std::vector<std::pair<int, int>> made_and_start;
        for (int i = 0; i < activities_; ++i) {
            const int start = pick(days_before + days_after);
            made_and_start.emplace_back(start - pick(longest_lead_in_days), start);
        }
        std::sort(made_and_start.begin(), made_and_start.end());
        in_portions(activities_, [&](int i) { add_activity(made_and_start[static_cast<std::size_t>(i)].second); });
    }

private:
    int pick(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }
    const std::string& one_of(const std::vector<std::string>& ids) {
        return ids[static_cast<std::size_t>(pick(static_cast<int>(ids.size())))];
    }

    template <typename Add>
    void in_portions(int count, Add&& add) {
        for (int from = 0; from < count; from += records_at_once)
            store_.together([&] {
                for (int i = from; i < std::min(from + records_at_once, count); ++i)
                    add(i);
            });
    }

    void add_contact(int number) {
        namespace field = store::contact_field;
        const std::string text = std::to_string(number + 1);
        store::Contact contact;
        contact.fields = {{field::company, "Company " + std::to_string(number / 3 + 1)},
                          {field::name, "Contact " + text},
                          {field::phone, "+1 (212) 555-0" + std::to_string(100 + pick(100))},
                          {field::city, "City " + std::to_string(pick(200))},
                          {field::e_mail, "contact" + text + "@company.example"}};
        contacts_.push_back(store_.add(contact));
    }

    void add_activity(int start_day) {
        Activity activity;
        activity.type = static_cast<store::ActivityType>(pick(3));
        activity.priority = static_cast<store::Priority>(pick(3));
        activity.regarding = "Regarding matter " + std::to_string(pick(5000));
        activity.start = first_day_.plus_days(start_day).plus_minutes(8 * 60 + 15 * pick(34));
        activity.duration = 15 * (1 + pick(8));
        activity.user = one_of(users_);
        activity.contacts.push_back(one_of(contacts_));
        if (pick(20) == 0)
            activity.contacts.push_back(one_of(contacts_));
        if (pick(4) == 0)
            activity.colour = static_cast<std::uint32_t>(pick(0x800000));
        if (pick(10) == 0)
            activity.details = std::string(static_cast<std::size_t>(20 + pick(200)), 'd');
        activity.cleared = start_day < days_before && pick(10) < 7;
        if (pick(10) == 0)
            make_series(activity);
        store_.add(activity);
    }

    void make_series(Activity& activity) {
        const DateTime start = activity.start->date();
        activity.cleared = false;
        store::Recurrence& rule = activity.recurrence;
        rule.kind = static_cast<RecurrenceKind>(1 + pick(4));
        rule.frequency = 1 + pick(2);
        if (pick(10) > 0)
            rule.until = start.plus_days(30 + pick(700));
        switch (rule.kind) {
        case RecurrenceKind::weekly:
            for (int days = 1 + pick(3); days > 0; --days)
                rule.days_of_week |= 1 << (1 + pick(5));
            break;
        case RecurrenceKind::days_of_month:
            rule.days_of_month = 1u << pick(31);
            break;
        case RecurrenceKind::weekdays_of_month:
            rule.days_of_week = 1 << (1 + pick(5));
            rule.weeks_of_month = 1 << pick(5);
            break;
        default:
            break;
        }
        if (pick(20) == 0)
            for (int exceptions = 1 + pick(4); exceptions > 0; --exceptions)
                activity.exceptions.push_back(start.plus_days(1 + pick(300)));
    }

    store::Store& store_;
    const DateTime first_day_;
    const int activities_;
    std::mt19937 random_{1};
    std::vector<std::string> users_, contacts_;
};

} // namespace

void fill_bulk(store::Store& store, DateTime day, int activities) { BulkMaker(store, day, activities).fill(); }

} // namespace bench
