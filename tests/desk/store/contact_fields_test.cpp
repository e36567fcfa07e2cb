#include "desk/store/contact_fields.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

using store::contact_fields;
using store::ContactField;

TEST(ContactFields, StandByRisingNumberWithGapsBetweenThem) {
    const auto& fields = contact_fields();
    const auto rising = [](const ContactField& left, const ContactField& right) {
        return left.number < right.number;
    };
    EXPECT_TRUE(std::is_sorted(fields.begin(), fields.end(), rising));
    EXPECT_GT(fields.back().number - fields.front().number + 1, static_cast<int>(fields.size()));
}

TEST(ContactFields, AreAllLabelledDifferently) {
    std::set<std::string_view> labels;
    for (const ContactField& field : contact_fields()) {
        EXPECT_FALSE(field.label.empty()) << field.number;
        EXPECT_TRUE(labels.insert(field.label).second) << field.label;
    }
}

TEST(ContactFields, TellTheCompanyApartFromThePhone) {
    const auto type_of = [](int number) {
        const auto& fields = contact_fields();
        const auto has_number = [number](const ContactField& field) { return field.number == number; };
        return std::find_if(fields.begin(), fields.end(), has_number)->type;
    };
    EXPECT_EQ(type_of(store::contact_field::company), "1");
    EXPECT_EQ(type_of(store::contact_field::phone), "4");
    EXPECT_EQ(type_of(store::contact_field::birthday), "3");
}
