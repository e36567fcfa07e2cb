#include "core/values/locale.h"

#include "support/locales.h"

#include <gtest/gtest.h>

using namespace values;
using support::english_gb;
using support::french;
using support::german;

TEST(Locale, ShowsTimesFrom0To23WhereThePatternHasACapitalH) {
    EXPECT_FALSE(english_us().is_24_hour());
    EXPECT_TRUE(english_gb().is_24_hour());
    EXPECT_TRUE(german().is_24_hour());
    EXPECT_TRUE(french().is_24_hour());
}

TEST(Locale, NamesEveryDayAndMonth) {
    for (const Locale* locale : {&english_us(), &english_gb(), &german(), &french()}) {
        for (const auto& weekday : locale->weekdays)
            EXPECT_FALSE(weekday.empty()) << locale->name;
        for (const auto& month : locale->months)
            EXPECT_FALSE(month.empty()) << locale->name;
    }
    EXPECT_EQ(german().weekdays[0], "Sonntag");
    EXPECT_EQ(french().months[11], "décembre");
}
