#include "desk/windows/record_table.h"

#include "desk_fixture.h"

#include <QHeaderView>

using namespace windows;

namespace {

class RecordTableTest : public testing::Test {
protected:
    RecordTableTest() {
        table.set_columns({{"Name"}, {"Size"}}, 0);
        table.resize(400, 300);
        table.show();
        QObject::connect(&table, &RecordTable::chosen, [this](const std::string& id) { chosen.push_back(id); });
        QObject::connect(&table, &RecordTable::opened, [this](const std::string& id) { opened.push_back(id); });
        table.show_rows({row("1", "cherry", 3), row("2", "Apple", 20), row("3", "banana", 100)});
    }

    static Row row(const std::string& id, const char* name, int size) {
        return {id, {{name}, {QString::number(size), size}}};
    }

    std::vector<std::string> ids() const {
        std::vector<std::string> result;
        for (int place = 0; place < table.row_count(); ++place)
            result.push_back(table.id_at(place));
        return result;
    }

    void click_cell(int place, int column) {
        const QPoint spot = table.visualRect(table.model()->index(place, column)).center();
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, spot);
    }

    using Ids = std::vector<std::string>;
    RecordTable table;
    Ids chosen, opened;
};

} // namespace

TEST_F(RecordTableTest, SortsByItsFirstColumnWithoutRegardToCase) { EXPECT_EQ(ids(), (Ids{"2", "3", "1"})); }

TEST_F(RecordTableTest, AClickOnAHeadingSortsByThatColumnAndASecondOneTurnsTheOrder) {
    auto* heading = table.horizontalHeader();
    const QPoint spot(heading->sectionViewportPosition(1) + 10, heading->height() / 2);
    QTest::mouseClick(heading->viewport(), Qt::LeftButton, {}, spot);
    const Ids rising = ids();
    QTest::mouseClick(heading->viewport(), Qt::LeftButton, {}, spot);
    EXPECT_EQ(rising, (Ids{"1", "2", "3"}));
    EXPECT_EQ(ids(), (Ids{"3", "2", "1"}));
}

TEST_F(RecordTableTest, KeepsTheGivenOrderWhenItIsSortedByNoColumn) {
    RecordTable unsorted;
    unsorted.set_columns({{"Name"}, {"Size"}});
    unsorted.show_rows({row("1", "cherry", 3), row("2", "Apple", 20)});
    EXPECT_EQ(unsorted.id_at(0), "1");
    EXPECT_EQ(unsorted.id_at(1), "2");
}

TEST_F(RecordTableTest, AClickChoosesARecordOnce) {
    click_cell(1, 0);
    click_cell(1, 1);
    EXPECT_EQ(chosen, Ids{"3"});
    EXPECT_EQ(table.current_id(), "3");
}

TEST_F(RecordTableTest, StaysOnItsRecordWhenTheRowsAreReplaced) {
    table.select("3");
    chosen.clear();
    table.show_rows({row("0", "aaa", 1), row("3", "banana", 100), row("4", "zzz", 1)});
    EXPECT_EQ(table.current_id(), "3");
    EXPECT_EQ(chosen, Ids{});
}

TEST_F(RecordTableTest, TellsThatItsRecordHasGone) {
    table.select("3");
    chosen.clear();
    table.show_rows({row("1", "cherry", 3)});
    EXPECT_EQ(table.current_id(), "");
    EXPECT_EQ(chosen, Ids{""});
}

TEST_F(RecordTableTest, EnterAndADoubleClickOpenTheRecord) {
    table.select("1");
    QTest::keyClick(&table, Qt::Key_Return);
    const QPoint spot = table.visualRect(table.model()->index(0, 0)).center();
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, spot);
    QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, spot);
    EXPECT_EQ(opened, (Ids{"1", "2"}));
}

TEST_F(RecordTableTest, EnterOpensNothingWhereNothingIsChosen) {
    QTest::keyClick(&table, Qt::Key_Return);
    EXPECT_EQ(opened, Ids{});
}

TEST_F(RecordTableTest, AnUnknownIdIsNotSelected) {
    EXPECT_FALSE(table.select("9"));
    EXPECT_EQ(table.current_id(), "");
    EXPECT_EQ(table.id_at(3), "");
    EXPECT_EQ(table.id_at(-1), "");
}

TEST_F(RecordTableTest, SeveralRecordsAreTakenFromTheTop) {
    table.setSelectionMode(QAbstractItemView::ExtendedSelection);
    click_cell(2, 0);
    QTest::mouseClick(table.viewport(), Qt::LeftButton, Qt::ControlModifier,
                      table.visualRect(table.model()->index(0, 0)).center());
    EXPECT_EQ(table.selected_ids(), (Ids{"2", "1"}));
}

TEST_F(RecordTableTest, ASelectedRowIsPaleSoThatItsIconsShow) {
    click_cell(0, 0);
    const QRect cell = table.visualRect(table.model()->index(0, 1));
    const QColor selected = table.viewport()->grab().toImage().pixelColor(cell.right() - 2, cell.center().y());
    EXPECT_GT(selected.lightness(), 190);
    EXPECT_LT(selected.lightness(), 250);
    EXPECT_EQ(table.palette().color(QPalette::HighlightedText), table.palette().color(QPalette::Text));
}
