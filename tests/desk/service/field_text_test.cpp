#include "desk/service/field_text.h"

#include "core/act/activity.h"
#include "support/activity_fields.h"

namespace {

using service::field_text;
using store::DateTime;
namespace number = act::activity_field;

store::Activity sample() {
    store::Activity activity;
    activity.id = "ABCDEFGHIJK ";
    activity.edited = DateTime::of(2024, 1, 4, 17, 30);
    activity.is_private = true;
    activity.type = store::ActivityType::to_do;
    activity.priority = store::Priority::medium;
    activity.regarding = "Überprüfung";
    activity.start = DateTime::of(2024, 1, 5, 9);
    activity.end = DateTime::of(2024, 1, 5, 10, 30);
    activity.duration = 90;
    activity.alarm_lead = 15;
    activity.colour = 255;
    activity.user = "USER00000001";
    activity.group = "GROUP0000001";
    activity.contacts = {"CONTACT00001", "CONTACT00002"};
    activity.details = "Bring the papers";
    return activity;
}

std::string text(int field) { return field_text(sample(), field, values::english_us()); }

TEST(FieldText, GivesEachFieldOfTheTableOfFields) {
    for (const bool is_series : {false, true}) {
        store::Activity full = support::full_activity();
        if (is_series)
            full.recurrence.kind = store::RecurrenceKind::daily;
        for (const auto& field : support::fields_of_full_activity())
            EXPECT_EQ(field_text(full, field.number, values::english_us()), field.text) << field.number;
    }
}

TEST(FieldText, GivesTheDurationAsTheLengthOfAnOccurrenceWithoutAStart) {
    auto activity = sample();
    activity.start.reset();
    EXPECT_EQ(field_text(activity, number::occurrence_length, values::english_us()), "90");
}

TEST(FieldText, GivesTheIdWithItsTrailingBlank) { EXPECT_EQ(text(number::id), "ABCDEFGHIJK "); }

TEST(FieldText, WritesDatesInTheirDefaultForm) {
    EXPECT_EQ(text(number::edited), "1/4/2024 5:30:00 PM");
    EXPECT_EQ(text(number::start), "1/5/2024 9:00:00 AM");
    EXPECT_EQ(text(number::end), "1/5/2024 10:30:00 AM");
    EXPECT_EQ(text(number::date), "1/5/2024");
}

TEST(FieldText, LeavesTheDatesOfAnActivityWithoutAStartEmpty) {
    auto activity = sample();
    activity.start.reset();
    for (const int field : {number::start, number::end, number::date})
        EXPECT_EQ(field_text(activity, field, values::english_us()), "");
}

TEST(FieldText, WritesKindsAndQuantitiesAsNumbers) {
    EXPECT_EQ(text(number::type), "2");
    EXPECT_EQ(text(number::priority), "1");
    EXPECT_EQ(text(number::duration), "90");
    EXPECT_EQ(text(number::occurrence_length), "90");
    EXPECT_EQ(text(number::alarm_lead), "15");
    EXPECT_EQ(text(number::colour), "255");
    EXPECT_EQ(text(number::contact_count), "2");
}

TEST(FieldText, WritesFlagsAsOneAndZero) {
    EXPECT_EQ(text(number::is_private), "1");
    EXPECT_EQ(text(number::alarm), "0");
    EXPECT_EQ(text(number::cleared), "0");
}

TEST(FieldText, GivesTextsAndIdsAsTheyAre) {
    EXPECT_EQ(text(number::regarding), "Überprüfung");
    EXPECT_EQ(text(number::scheduled_for), "USER00000001");
    EXPECT_EQ(text(number::group), "GROUP0000001");
    EXPECT_EQ(text(number::contact), "CONTACT00001");
    EXPECT_EQ(text(number::details), "Bring the papers");
}

TEST(FieldText, IsEmptyForWhatAnActivityDoesNotHave) {
    EXPECT_EQ(text(999), "");
    const store::Activity bare;
    EXPECT_EQ(field_text(bare, number::contact, values::english_us()), "");
    EXPECT_EQ(field_text(bare, number::colour, values::english_us()), "");
}

} // namespace
