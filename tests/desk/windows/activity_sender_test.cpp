#include "desk/windows/activity_sender.h"

#include "core/values/failure.h"
#include "desk_fixture.h"
#include "support/fake_mail_program.h"
#include "support/full_disk.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

using namespace windows;

namespace {

class ActivitySenderTest : public DeskTest {
protected:
    ActivitySenderTest() : sender(database, window) {
        database.open(path);
        window.show();
    }

    void send(const std::string& id) {
        sender.send(*database.store().activity(id), [this] { ++finished; });
    }
    template <typename Dialog>
    Dialog* dialog() {
        EXPECT_TRUE(QTest::qWaitFor([this] { return open<Dialog>() != nullptr; }, 10000));
        return open<Dialog>();
    }
    bool has_finished() {
        return QTest::qWaitFor([this] { return finished > 0; }, 10000);
    }
    // Without the suggestions that open below a name as it is typed.
    static void give_name(QFileDialog& files, const std::string& file) {
        child<QLineEdit>(files, "fileNameEdit")->setText(QString::fromStdString(file));
    }
    static void save(QFileDialog& files) {
        click(child<QDialogButtonBox>(files, "buttonBox")->button(QDialogButtonBox::Save));
    }
    static QByteArray content(const QString& file) {
        QFile opened(file);
        EXPECT_TRUE(opened.open(QIODevice::ReadOnly));
        return opened.readAll();
    }

    support::FakeMailProgram program;
    QWidget window;
    ActivitySender sender;
    int finished = 0;

private:
    template <typename Dialog>
    Dialog* open() {
        for (auto* found : window.findChildren<Dialog*>())
            if (found->isVisible())
                return found;
        return nullptr;
    }
};

} // namespace

TEST_F(ActivitySenderTest, HandsTheActivityToTheMailProgram) {
    program.install(0);
    auto zoe = *database.store().contact(amber);
    zoe.fields[58] = "zoe@amber.example";
    database.store().update(zoe);
    database.refresh();
    send(meeting);
    EXPECT_EQ(finished, 0);
    EXPECT_TRUE(has_finished());
    const auto given = program.given();
    EXPECT_EQ(given.value(2), "Meeting: Show the plan");
    EXPECT_EQ(given.mid(5), QStringList{"zoe@amber.example"});
    const auto text = content(given.value(4));
    EXPECT_TRUE(text.contains("\r\nSUMMARY:Show the plan\r\n"));
    EXPECT_TRUE(text.contains("\r\nDTSTART:20240308T140000\r\n"));
    EXPECT_TRUE(text.contains("\r\nCONTACT:Zoe Quinn <zoe@amber.example>\r\nCONTACT:Yann Reed\r\n"));
}

TEST_F(ActivitySenderTest, WithoutAMailProgramItOffersAFile) {
    send(call);
    auto* box = dialog<QMessageBox>();
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->text(), "No mail program took the activity.");
    click(box->button(QMessageBox::Save));
    auto* files = dialog<QFileDialog>();
    ASSERT_NE(files, nullptr);
    EXPECT_EQ(finished, 0);
    const auto file = QString::fromStdString(in_folder("mine.ics"));
    give_name(*files, file.toStdString());
    save(*files);
    EXPECT_TRUE(has_finished());
    EXPECT_TRUE(content(file).contains("\r\nSUMMARY:Ask for prices\r\n"));
}

TEST_F(ActivitySenderTest, CancelSavesNothingAndFinishes) {
    program.install(4);
    send(call);
    auto* box = dialog<QMessageBox>();
    ASSERT_NE(box, nullptr);
    QTest::keyClick(box, Qt::Key_Escape);
    EXPECT_EQ(finished, 1);
}

TEST_F(ActivitySenderTest, AFullDiskIsToldAndLeavesTheOldFile) {
    send(call);
    click(dialog<QMessageBox>()->button(QMessageBox::Save));
    auto* files = dialog<QFileDialog>();
    const auto file = QString::fromStdString(in_folder("mine.ics"));
    QFile old(file);
    ASSERT_TRUE(old.open(QIODevice::WriteOnly) && old.write("old") == 3 && old.flush());
    give_name(*files, file.toStdString());
    int told = 0;
    const auto tell = [&](QWidget& box) {
        told += child<QLabel>(box, "qt_msgbox_label")->text().contains("mine.ics\" can't be written: ") ? 1 : 0;
        QTest::keyClick(&box, Qt::Key_Return);
    };
    const auto replace = [](QWidget& box) { click(dynamic_cast<QMessageBox&>(box).button(QMessageBox::Yes)); };
    const support::FullDisk disk;
    with_dialogs({replace, tell}, [&] { save(*files); });
    EXPECT_EQ(told, 1);
    EXPECT_EQ(content(file), "old");
}

TEST_F(ActivitySenderTest, AFileThatCantBeWrittenIsTold) {
    send(call);
    click(dialog<QMessageBox>()->button(QMessageBox::Save));
    auto* files = dialog<QFileDialog>();
    QDir(QString::fromStdString(folder.path())).mkdir("away");
    give_name(*files, in_folder("away/mine.ics"));
    QDir(QString::fromStdString(folder.path())).rmdir("away");
    with_dialogs({[](QWidget& box) {
                     EXPECT_TRUE(child<QLabel>(box, "qt_msgbox_label")->text().contains("away/mine.ics"));
                     QTest::keyClick(&box, Qt::Key_Return);
                 }},
                 [&] { save(*files); });
    EXPECT_EQ(finished, 1);
}

TEST_F(ActivitySenderTest, ADialogThatIsClosedFromOutsideFinishes) {
    send(call);
    ASSERT_NE(dialog<QMessageBox>(), nullptr);
    sender.close_dialog();
    EXPECT_EQ(finished, 1);
}

TEST_F(ActivitySenderTest, AnActivityWithoutADateCantBeSent) {
    auto record = *database.store().activity(call);
    record.start.reset();
    EXPECT_THROW(sender.send(record, [this] { ++finished; }), values::Failure);
    QTest::qWait(20);
    EXPECT_EQ(finished, 0);
}
