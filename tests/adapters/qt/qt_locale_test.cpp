#include "adapters/qt/qt_locale.h"

#include "core/values/text_forms.h"

#include <QLocale>
#include <gtest/gtest.h>

namespace {

values::Locale of(const char* name) { return qt::locale_from(QLocale(QString::fromLatin1(name))); }

TEST(LocaleFrom, WritesDatesAsThePlaceDoesWithFourDigitsToTheYear) {
    EXPECT_EQ(of("en_US").short_date, "M/d/yyyy");
    EXPECT_EQ(of("en_GB").short_date, "dd/MM/yyyy");
    EXPECT_EQ(of("de_DE").short_date, "dd.MM.yyyy");
    EXPECT_EQ(of("fr_FR").short_date, "dd/MM/yyyy");
}

TEST(LocaleFrom, WritesTimesWithoutTheirZone) {
    EXPECT_EQ(of("en_US").long_time, "h:mm:ss tt");
    EXPECT_EQ(of("de_DE").long_time, "HH:mm:ss");
    EXPECT_FALSE(of("en_US").is_24_hour());
    EXPECT_TRUE(of("de_DE").is_24_hour());
}

TEST(LocaleFrom, WritesTimesThatHaveWordsInThemWithColons) {
    EXPECT_EQ(of("fr_CA").long_time, "HH:mm:ss"); // "14 h 05 min 07 s"
}

TEST(LocaleFrom, NamesTheDaysFromSundayAndTheMonthsFromJanuary) {
    const values::Locale german = of("de_DE");
    EXPECT_EQ(german.weekdays[0], "Sonntag");
    EXPECT_EQ(german.weekdays[3], "Mittwoch");
    EXPECT_EQ(german.months[0], "Januar");
    EXPECT_EQ(german.months[2], "März");
    EXPECT_EQ(german.decimal_point, ',');
    EXPECT_EQ(german.name, "de_DE");
}

TEST(LocaleFrom, TakesTheEnglishOfTheUnitedStatesForAMachineWithoutALocale) {
    const values::Locale plain = qt::locale_from(QLocale::c());
    EXPECT_EQ(plain.short_date, values::english_us().short_date);
    EXPECT_EQ(plain.long_time, values::english_us().long_time);
    EXPECT_EQ(plain.weekdays[0], "Sunday");
}

// Whatever the place: what its forms write, its forms read.
TEST(LocaleFrom, GivesFormsThatReadBackWhatTheyWrite) {
    const values::DateTime time = values::DateTime::of(2024, 11, 5, 14, 7, 9);
    for (const QLocale& place :
         QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::LatinScript, QLocale::AnyTerritory)) {
        const values::Locale locale = qt::locale_from(place);
        if (place.zeroDigit() != "0")
            continue;
        const auto read = values::parse_date(values::default_text(time, locale), locale);
        EXPECT_TRUE(read == time) << locale.name << " writes " << values::default_text(time, locale);
    }
}

} // namespace
