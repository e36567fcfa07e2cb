#include "desk/windows/notes_tab.h"

#include "desk/windows/record_table.h"
#include "desk_fixture.h"

#include <QPlainTextEdit>
#include <QPushButton>

using windows::NotesTab;
using windows::RecordTable;

namespace {

class NotesTabTest : public DeskTest {
protected:
    NotesTabTest() {
        database.open(path);
        database.store().add(store::Note{{}, amber, at(3, 4, 9, 0), "First line\nSecond line"});
        database.store().add(store::Note{{}, amber, at(3, 5, 9, 0), "Later"});
        tab = std::make_unique<NotesTab>(database);
        tab->resize(700, 300);
        tab->show();
        tab->show_contact(amber);
    }
    RecordTable* table() { return child<RecordTable>(*tab, "note_table"); }
    QPlainTextEdit* draft() { return child<QPlainTextEdit>(*tab, "draft_edit"); }
    QString text() { return child<QPlainTextEdit>(*tab, "note_view")->toPlainText(); }

    std::unique_ptr<NotesTab> tab;
};

} // namespace

TEST_F(NotesTabTest, ShowsTheNotesNewestFirstAndTheWholeTextOfTheOneThatIsChosen) {
    ASSERT_EQ(table()->row_count(), 2);
    EXPECT_EQ(table()->model()->index(0, 2).data(), "Later");
    QTest::mouseClick(table()->viewport(), Qt::LeftButton, {},
                      table()->visualRect(table()->model()->index(1, 0)).center());
    EXPECT_EQ(text(), "First line\nSecond line");
}

TEST_F(NotesTabTest, AddsANoteWithThePresentMoment) {
    auto* button = child<QPushButton>(*tab, "add_note_button");
    EXPECT_FALSE(button->isEnabled());
    type(draft(), "She will pay");
    click(button);
    const auto notes = elsewhere()->notes(amber);
    ASSERT_EQ(notes.size(), 3u);
    EXPECT_EQ(notes[0].text, "She will pay");
    EXPECT_EQ(notes[0].written, at(3, 6, 10, 10));
    EXPECT_EQ(table()->row_count(), 3);
    EXPECT_EQ(draft()->toPlainText(), "");
}

TEST_F(NotesTabTest, BlanksAloneAreNoNote) {
    type(draft(), "   ");
    EXPECT_FALSE(tab->has_draft());
    tab->save_draft();
    EXPECT_EQ(elsewhere()->notes(amber).size(), 2u);
}

TEST_F(NotesTabTest, WithoutAContactNothingCanBeWritten) {
    tab->show_contact({});
    EXPECT_EQ(table()->row_count(), 0);
    EXPECT_FALSE(draft()->isEnabled());
}

TEST_F(NotesTabTest, AContactThatIsShownAgainKeepsTheDraft) {
    type(draft(), "Half a");
    tab->show_contact(amber);
    EXPECT_EQ(draft()->toPlainText(), "Half a");
}
