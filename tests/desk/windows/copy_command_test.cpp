#include "desk/windows/copy_command.h"

#include "desk_fixture.h"

#include <QLineEdit>
#include <QMessageBox>

#include <filesystem>

using namespace windows;

namespace {

class CopyCommandTest : public DeskTest {
protected:
    CopyCommandTest() {
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        database.open(path);
        window.show();
    }

    std::function<void(QWidget&)> choose(const std::string& name) {
        return [this, name](QWidget& dialog) {
            auto* line = child<QLineEdit>(dialog, "fileNameEdit");
            EXPECT_EQ(line->text(), "Copy of " + QFileInfo(QString::fromStdString(path)).fileName());
            line->setText(QString::fromStdString(in_folder(name)));
            QTest::keyClick(line, Qt::Key_Return);
        };
    }

    QWidget window;
};

} // namespace

TEST_F(CopyCommandTest, WritesAllToTheFileThatIsNamed) {
    with_dialogs({choose("mine.desk")}, [&] { save_copy(database, window); });
    const auto copy = store::Store::open(in_folder("mine.desk"));
    EXPECT_EQ(copy->contacts().size(), database.store().contacts().size());
    EXPECT_EQ(copy->activities({}).size(), database.store().activities({}).size());
}

TEST_F(CopyCommandTest, SavesWhatIsOpenAfterTheFileWasDeleted) {
    std::filesystem::remove(path);
    with_dialogs({choose("mine.desk")}, [&] { save_copy(database, window); });
    EXPECT_EQ(store::Store::open(in_folder("mine.desk"))->contacts().size(), 4U);
}

TEST_F(CopyCommandTest, TellsWhatKeepsItFromBeingWritten) {
    QString told;
    const auto read = [&](QWidget& box) {
        told = child<QLabel>(box, "qt_msgbox_label")->text();
        QTest::keyClick(&box, Qt::Key_Return);
    };
    const auto choose_itself = [this](QWidget& dialog) {
        auto* line = child<QLineEdit>(dialog, "fileNameEdit");
        line->setText(QString::fromStdString(path));
        QTimer::singleShot(0, line,
                           [line] { QTest::keyClick(line, Qt::Key_Return); }); // it asks before it returns
    };
    const auto replace = [](QWidget& box) { click(dynamic_cast<QMessageBox&>(box).button(QMessageBox::Yes)); };
    with_dialogs({choose_itself, replace, read}, [&] { save_copy(database, window); });
    EXPECT_TRUE(told.contains("is the database itself")) << told.toStdString();
    EXPECT_EQ(database.store().contacts().size(), 4U);
}
