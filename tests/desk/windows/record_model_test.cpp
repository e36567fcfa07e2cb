#include "desk/windows/record_model.h"

#include <QFont>
#include <gtest/gtest.h>

using namespace windows;

namespace {

RecordModel two_records() { return RecordModel({{"Name"}, {"Size", Qt::AlignRight}}); }

} // namespace

TEST(RecordModel, ShowsACellForEachColumnOfARow) {
    auto model = two_records();
    model.show_rows({{"A1", {{"Ash"}, {"10", 10}}}, {"B2", {{"Beech"}, {"9", 9}}}});
    EXPECT_EQ(model.rowCount(), 2);
    EXPECT_EQ(model.columnCount(), 2);
    EXPECT_EQ(model.index(1, 0).data(), "Beech");
    EXPECT_EQ(model.index(0, 1).data(RecordModel::id_role), "A1");
    EXPECT_EQ(model.headerData(1, Qt::Horizontal, Qt::DisplayRole), "Size");
}

TEST(RecordModel, SortsByTheOrderOfACellOrElseByItsText) {
    auto model = two_records();
    model.show_rows({{"A1", {{"Ash"}, {"10", 10}}}});
    EXPECT_EQ(model.index(0, 0).data(RecordModel::order_role), "Ash");
    EXPECT_EQ(model.index(0, 1).data(RecordModel::order_role), 10);
}

TEST(RecordModel, StrikesOutTheRowsThatSaySo) {
    auto model = two_records();
    model.show_rows({{"A1", {{"Ash"}, {"10"}}, true}, {"B2", {{"Beech"}, {"9"}}}});
    EXPECT_TRUE(model.index(0, 0).data(Qt::FontRole).value<QFont>().strikeOut());
    EXPECT_FALSE(model.index(1, 0).data(Qt::FontRole).isValid());
}

TEST(RecordModel, AlignsACellAsItsColumn) {
    auto model = two_records();
    model.show_rows({{"A1", {{"Ash"}, {"10"}}}});
    EXPECT_EQ(model.index(0, 1).data(Qt::TextAlignmentRole).value<Qt::Alignment>(),
              Qt::AlignRight | Qt::AlignVCenter);
}
