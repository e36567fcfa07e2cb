#include "desk/windows/activity_dialog.h"
#include "desk/windows/clear_dialog.h"
#include "desk/windows/desk_window.h"
#include "desk_fixture.h"

#include <QAbstractButton>
#include <QAction>
#include <QKeySequence>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>
#include <QToolButton>

using namespace windows;

namespace {

// The captions in sight of which a letter, pressed with Alt, does something.
QStringList captions(const QWidget& window) {
    QStringList texts;
    for (const QLabel* label : window.findChildren<QLabel*>())
        if (label->isVisible() && label->buddy())
            texts << label->text();
    for (const QAbstractButton* button : window.findChildren<QAbstractButton*>())
        if (button->isVisible())
            texts << button->text();
    for (const QTabBar* bar : window.findChildren<QTabBar*>())
        for (int tab = 0; bar->isVisible() && tab < bar->count(); ++tab)
            texts << bar->tabText(tab);
    for (const QMenuBar* bar : window.findChildren<QMenuBar*>())
        for (const QAction* action : bar->actions())
            texts << action->text();
    return texts;
}

void expect_each_letter_once(const QStringList& captions) {
    std::map<QString, QString> seen;
    for (const QString& caption : captions) {
        const QString letter = QKeySequence::mnemonic(caption).toString();
        if (letter.isEmpty())
            continue;
        const auto [other, is_new] = seen.emplace(letter, caption);
        EXPECT_TRUE(is_new) << letter.toStdString() << ": " << other->second.toStdString() << ", "
                            << caption.toStdString();
    }
    EXPECT_FALSE(seen.empty());
}

class Mnemonics : public DeskTest {
protected:
    Mnemonics() { database.open(path); }
};

} // namespace

TEST_F(Mnemonics, AreDifferentOnEachTabOfAnActivity) {
    ActivityDialog dialog(database, *database.store().activity(series), nullptr);
    dialog.show();
    for (const auto tab :
         {ActivityDialog::Tab::general, ActivityDialog::Tab::details, ActivityDialog::Tab::recurring}) {
        dialog.show_tab(tab);
        expect_each_letter_once(captions(dialog));
    }
}

TEST_F(Mnemonics, AreDifferentInTheDialogThatClears) {
    ClearDialog dialog(database, *database.store().activity(series), nullptr);
    dialog.show();
    expect_each_letter_once(captions(dialog));
}

TEST_F(Mnemonics, AreDifferentInEachViewAndMenuOfTheWindow) {
    DeskWindow window(database, {});
    window.show();
    for (const char* view : {"view_contact_list", "view_contact", "view_task_list", "view_groups"}) {
        child<QAction>(window, view)->trigger();
        for (auto* bar : window.findChildren<QTabBar*>())
            for (int tab = 0; bar->isVisible() && tab < bar->count(); ++tab) {
                bar->setCurrentIndex(tab);
                expect_each_letter_once(captions(window));
            }
        expect_each_letter_once(captions(window));
    }
    for (const QAction* title : window.findChild<QMenuBar*>()->actions()) {
        QStringList entries;
        for (const QAction* entry : title->menu()->actions())
            entries << entry->text();
        expect_each_letter_once(entries);
    }
    database.close();
    expect_each_letter_once(captions(window));
}
