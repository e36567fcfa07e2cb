#include "desk/windows/database_commands.h"

#include "core/values/failure.h"
#include "desk_fixture.h"

#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

#include <fstream>

using namespace windows;

namespace {

class DatabaseCommandsTest : public DeskTest {
protected:
    DatabaseCommandsTest() : lookup(database), commands(database, lookup, window) {
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        window.show();
    }

    std::function<void(QWidget&)> choose(const std::string& name) {
        return [this, name](QWidget& dialog) {
            auto* line = dialog.findChild<QLineEdit*>("fileNameEdit");
            ASSERT_NE(line, nullptr);
            line->setText(QString::fromStdString(in_folder(name)));
            QTest::keyClick(line, Qt::Key_Return);
        };
    }
    static std::function<void(QWidget&)> type_name(const char* name) {
        return [name](QWidget& dialog) {
            auto* line = dialog.findChild<QLineEdit*>();
            line->selectAll();
            QTest::keyClicks(line, name);
            QTest::keyClick(line, Qt::Key_Return);
        };
    }
    static std::function<void(QWidget&)> press(QMessageBox::StandardButton button) {
        return [button](QWidget& box) { click(dynamic_cast<QMessageBox&>(box).button(button)); };
    }
    static std::function<void(QWidget&)> confirm(QString& text) {
        return [&text](QWidget& box) {
            text = box.findChild<QLabel*>("qt_msgbox_label")->text();
            QTest::keyClick(&box, Qt::Key_Return);
        };
    }

    Lookup lookup;
    QWidget window;
    DatabaseCommands commands;
    QString told;
};

} // namespace

TEST_F(DatabaseCommandsTest, OpensTheFileThatIsChosen) {
    with_dialogs({choose("team.desk")}, [&] { commands.open_another(); });
    EXPECT_EQ(database.path(), path);
}

TEST_F(DatabaseCommandsTest, WhatCantBeOpenedIsToldAndTheOpenDatabaseStays) {
    database.open(path);
    std::ofstream(in_folder("letter.desk")) << "Dear Sir or Madam, this is no database at all.";
    with_dialogs({choose("letter.desk"), confirm(told)}, [&] { commands.open_another(); });
    EXPECT_TRUE(told.contains("letter.desk")) << told.toStdString();
    EXPECT_EQ(database.path(), path);
}

TEST_F(DatabaseCommandsTest, ANewDatabaseBeginsWithItsFirstUser) {
    with_dialogs({choose("new"), type_name("Carla Dunn")}, [&] { commands.create(); });
    EXPECT_EQ(database.path(), in_folder("new.desk"));
    ASSERT_EQ(database.directory().users().size(), 1u);
    EXPECT_EQ(database.directory().users()[0].name, "Carla Dunn");
}

TEST_F(DatabaseCommandsTest, ANewDatabaseDoesntOverwriteAFile) {
    with_dialogs({choose("team.desk"), type_name("Carla Dunn"), confirm(told)}, [&] { commands.create(); });
    EXPECT_FALSE(database.is_open());
    EXPECT_EQ(elsewhere()->contacts().size(), 4u);
}

TEST_F(DatabaseCommandsTest, MakesAndOpensASample) {
    with_dialogs({choose("sample.desk")}, [&] { commands.create_sample(); });
    EXPECT_EQ(database.path(), in_folder("sample.desk"));
    EXPECT_FALSE(database.directory().contacts().empty());
}

TEST_F(DatabaseCommandsTest, AddsAUser) {
    database.open(path);
    with_dialogs({type_name("Carla Dunn")}, [&] { commands.add_user(); });
    EXPECT_EQ(elsewhere()->users().size(), 3u);
}

TEST_F(DatabaseCommandsTest, WhatCantBeStoredHoldsUpTheClosingUnlessTheUserGivesItUp) {
    database.open(path);
    lookup.before_leaving = [] { throw values::Failure(values::FailureNumber::automation, "Disk full."); };
    with_dialogs({confirm(told), press(QMessageBox::Cancel)}, [&] { commands.close(); });
    EXPECT_EQ(told, "Disk full.");
    EXPECT_TRUE(database.is_open());
    with_dialogs({confirm(told), press(QMessageBox::Discard)}, [&] { commands.close(); });
    EXPECT_FALSE(database.is_open());
}
