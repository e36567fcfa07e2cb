#include "core/values/failure.h"

#include <gtest/gtest.h>
#include <set>
#include <string>

using values::description_of;
using values::Failure;
using values::FailureNumber;

TEST(Failure, CarriesTheNumberAndThePlatformsDescription) {
    const Failure failure(FailureNumber::type_mismatch);
    EXPECT_EQ(failure.number(), 13);
    EXPECT_EQ(failure.description(), "Type mismatch");
    EXPECT_STREQ(failure.what(), "Type mismatch");
}

TEST(Failure, TakesASentenceOfItsOwn) {
    const Failure failure(FailureNumber::automation, "The database is closed");
    EXPECT_EQ(failure.number(), 440);
    EXPECT_EQ(failure.description(), "The database is closed");
}

TEST(Failure, EachNumberHasADescriptionOfItsOwn) {
    std::set<std::string> descriptions;
    for (const int number : {5, 6, 7, 9, 13, 51, 52, 53, 75, 76, 91, 380, 381, 429, 440})
        EXPECT_TRUE(descriptions.insert(description_of(static_cast<FailureNumber>(number))).second) << number;
    EXPECT_FALSE(descriptions.contains(description_of(static_cast<FailureNumber>(1))));
}

TEST(IgnoringFailure, LetsTheNextStatementRunAfterAFailureAndThroughAnythingElse) {
    bool ran = false;
    values::ignoring_failure([&] {
        ran = true;
        throw Failure(FailureNumber::type_mismatch);
    });
    EXPECT_TRUE(ran);
    EXPECT_THROW(values::ignoring_failure([] { throw std::string("no failure"); }), std::string);
}
