#include "desk/import/digest.h"

#include <gtest/gtest.h>

#include <functional>
#include <set>

namespace {

using importing::digest_of;
using values::DateTime;

TEST(Digest, TellsWhereATextEnds) {
    EXPECT_NE(importing::Digest().add("ab").add("c").text(), importing::Digest().add("a").add("bc").text());
    EXPECT_EQ(importing::Digest().add("a").add(std::int64_t{1}).text(),
              importing::Digest().add("a").add(std::int64_t{1}).text());
}

TEST(Digest, ChangesWithEveryFieldOfAnActivityButItsIdAndItsRevision) {
    using store::Activity;
    const std::function<void(Activity&)> changes[] = {
        [](Activity&) {},
        [](Activity& a) { a.type = store::ActivityType::call; },
        [](Activity& a) { a.priority = store::Priority::high; },
        [](Activity& a) { a.regarding = "x"; },
        [](Activity& a) { a.start = DateTime(); },
        [](Activity& a) { a.end = DateTime::of(2024, 3, 11); },
        [](Activity& a) { a.duration = 1; },
        [](Activity& a) { a.is_private = true; },
        [](Activity& a) { a.alarm = true; },
        [](Activity& a) { a.alarm_lead = 1; },
        [](Activity& a) { a.colour = 0; },
        [](Activity& a) { a.user = "x"; },
        [](Activity& a) { a.group = "x"; },
        [](Activity& a) { a.contacts = {"x"}; },
        [](Activity& a) { a.cleared = true; },
        [](Activity& a) { a.result = "x"; },
        [](Activity& a) { a.details = "x"; },
        [](Activity& a) { a.recurrence.kind = store::RecurrenceKind::daily; },
        [](Activity& a) { a.recurrence.frequency = 2; },
        [](Activity& a) { a.recurrence.until = DateTime(); },
        [](Activity& a) { a.recurrence.days_of_week = 1; },
        [](Activity& a) { a.recurrence.weeks_of_month = 1; },
        [](Activity& a) { a.recurrence.days_of_month = 1; },
        [](Activity& a) { a.exceptions = {DateTime()}; },
    };
    std::set<std::string> digests;
    for (const auto& change : changes) {
        Activity activity;
        change(activity);
        EXPECT_TRUE(digests.insert(digest_of(activity)).second) << digests.size();
        activity.id = "A00000000001";
        activity.revision = 7;
        activity.edited = DateTime::of(2024, 3, 11);
        EXPECT_TRUE(digests.contains(digest_of(activity)));
    }
}

TEST(Digest, ChangesWithEveryFieldOfAContact) {
    EXPECT_NE(digest_of(store::Contact{.fields = {{25, "a"}}}), digest_of(store::Contact{.fields = {{26, "a"}}}));
    EXPECT_NE(digest_of(store::Contact{.fields = {{25, "a"}}}), digest_of(store::Contact{.fields = {{25, "b"}}}));
    EXPECT_EQ(digest_of(store::Contact{.fields = {{25, ""}}}), digest_of(store::Contact{}));
}

} // namespace
