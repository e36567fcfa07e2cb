#include "core/interaction/places.h"

#include <gtest/gtest.h>

namespace {

// Ten rows of 300 twips and five columns of 960, one of either fixed.
class Places : public testing::Test {
protected:
    Places() {
        msgSched.Rows(10);
        msgSched.Cols(5);
    }
    table::GridModel msgSched;
    interaction::Places places{msgSched};
};

TEST_F(Places, ARowReachesFromItsTopToItsBottomBothIncluded) {
    EXPECT_EQ(places.row_at(0), 0);
    EXPECT_EQ(places.row_at(300), 0);
    EXPECT_EQ(places.row_at(301), 1);
    EXPECT_EQ(places.row_at(600), 1);
    EXPECT_EQ(places.row_at(3000), 9);
}

TEST_F(Places, AColumnReachesFromItsLeftEdgeToItsRightOneBothIncluded) {
    EXPECT_EQ(places.col_at(0), 0);
    EXPECT_EQ(places.col_at(960), 0);
    EXPECT_EQ(places.col_at(961), 1);
    EXPECT_EQ(places.col_at(4800), 4);
}

TEST_F(Places, OutsideThereIsNone) {
    EXPECT_EQ(places.row_at(-1), std::nullopt);
    EXPECT_EQ(places.row_at(3001), std::nullopt);
    EXPECT_EQ(places.col_at(-1), std::nullopt);
    EXPECT_EQ(places.col_at(4801), std::nullopt);
}

TEST_F(Places, AHiddenColumnIsPassedOver) {
    msgSched.ColWidth(2, 0);
    EXPECT_EQ(places.col_at(1921), 3);
}

TEST_F(Places, InAScrolledGridTheRowAndColumnThatAreSeenAreFound) {
    msgSched.TopRow(5);
    msgSched.LeftCol(3);
    EXPECT_EQ(places.row_at(150), 0);
    EXPECT_EQ(places.row_at(301), 5);
    EXPECT_EQ(places.col_at(500), 0);
    EXPECT_EQ(places.col_at(961), 3);
    EXPECT_FALSE(places.is_in_title_row(300));
    EXPECT_TRUE(places.is_in_title_row(299));
    EXPECT_FALSE(places.is_in_title_col(960));
    EXPECT_TRUE(places.is_in_title_col(959));
}

TEST_F(Places, TheColumnsEndAtTheRightEdgeOfTheLastOne) {
    EXPECT_TRUE(places.is_within_columns(4800));
    EXPECT_FALSE(places.is_within_columns(4801));
}

} // namespace
