#include "desk/windows/rows.h"

#include "desk_fixture.h"

using namespace windows;

namespace {

class Rows : public DeskTest {
protected:
    Rows() { database.open(path); }

    std::vector<QString> texts(const Row& row) {
        std::vector<QString> result;
        for (const Cell& cell : row.cells)
            result.push_back(cell.text);
        return result;
    }
    Row row_of(const store::Activity& activity) {
        return activity_rows({activity}, database.directory(), database.locale()).front();
    }
    using Texts = std::vector<QString>;
};

} // namespace

TEST_F(Rows, AnActivityShowsItsFieldsInTheColumns) {
    auto activity = *database.store().activity(meeting);
    activity.group = friends;
    activity.duration = 90;
    activity.priority = store::Priority::high;
    const Row row = row_of(activity);
    EXPECT_EQ(row.id, meeting);
    EXPECT_EQ(texts(row), (Texts{"Meeting", "3/8/2024", "2:00 PM", "1 hour 30 minutes", "High", "Show the plan",
                                 "Zoe Quinn; Yann Reed", "Bert Cole", "Friends"}));
    EXPECT_EQ(row.cells.size(), activity_columns().size());
    EXPECT_FALSE(row.is_struck_out);
}

TEST_F(Rows, AClearedActivityIsStruckOut) {
    EXPECT_TRUE(row_of(*database.store().activity(old_task)).is_struck_out);
}

TEST_F(Rows, ASeriesBearsAMarkBeforeItsDate) {
    EXPECT_FALSE(row_of(*database.store().activity(series)).cells[date_column].icon.isNull());
    EXPECT_TRUE(row_of(*database.store().activity(call)).cells[date_column].icon.isNull());
}

TEST_F(Rows, AnActivityWithoutAStartHasAnEmptyDateThatSortsFirst) {
    auto activity = *database.store().activity(call);
    activity.start.reset();
    const Row row = row_of(activity);
    EXPECT_EQ(row.cells[1].text, "");
    EXPECT_EQ(row.cells[2].text, "");
    EXPECT_LT(row.cells[1].order.toLongLong(),
              row_of(*database.store().activity(call)).cells[1].order.toLongLong());
}

TEST_F(Rows, PrioritiesSortByWeightAndNotByName) {
    auto activity = *database.store().activity(call);
    activity.priority = store::Priority::high;
    const int high = row_of(activity).cells[4].order.toInt();
    activity.priority = store::Priority::low;
    EXPECT_LT(high, row_of(activity).cells[4].order.toInt());
}

TEST_F(Rows, ALineBreakInATextBecomesABlank) {
    auto activity = *database.store().activity(call);
    activity.regarding = "Prices\nand terms";
    EXPECT_EQ(row_of(activity).cells[5].text, "Prices and terms");
}

TEST_F(Rows, UnknownContactsAreLeftOut) {
    const auto rows = contact_rows({"NOBODY000000", birch}, database.directory());
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows[0].cells[0].text, "Birch Ltd");
    EXPECT_EQ(rows[0].cells[1].text, "Yann Reed");
    EXPECT_EQ(rows[0].cells.size(), contact_columns().size());
}

TEST_F(Rows, EveryColumnOfTheContactsHasATitle) {
    for (const Column& column : contact_columns())
        EXPECT_FALSE(column.title.isEmpty());
}

TEST_F(Rows, ANoteShowsWhenItWasWritten) {
    const store::Note note{"NOTE00000001", amber, at(3, 5, 16, 30), "Called.\nNo answer."};
    EXPECT_EQ(texts(note_rows({note}, database.locale()).front()),
              (Texts{"3/5/2024", "4:30 PM", "Called. No answer."}));
}

TEST_F(Rows, AGroupTellsHowManyContactsItHas) {
    const auto rows = group_rows(database.directory().groups());
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(texts(rows[0]), (Texts{"Friends", "2"}));
    EXPECT_EQ(texts(rows[1]), (Texts{"Suppliers", "0"}));
}
