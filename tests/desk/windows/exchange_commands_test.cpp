#include "desk/windows/exchange_commands.h"

#include "core/values/failure.h"
#include "desk_fixture.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include <fstream>

using namespace windows;

namespace {

class ExchangeCommandsTest : public DeskTest {
protected:
    ExchangeCommandsTest() {
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        window.show();
        database.open(path);
        for (const char* name : {"plan.ics", "people.vcf"})
            std::ofstream(in_folder(name)) << "x";
    }

    std::string take(store::Store& store, const std::string& file, const std::string& user) {
        taken.push_back(file + " for " + user);
        if (file.ends_with(".bad"))
            throw values::Failure(values::FailureNumber::automation, "That file can't be read.");
        contact(store, "Elm House", "Vera Upton");
        return "One contact was taken.";
    }

    std::function<void(QWidget&)> choose(const std::string& name) {
        return [this, name](QWidget& dialog) {
            auto* line = dialog.findChild<QLineEdit*>("fileNameEdit");
            ASSERT_NE(line, nullptr);
            line->setText(QString::fromStdString(in_folder(name)));
            QTest::keyClick(line, Qt::Key_Return);
        };
    }
    std::function<void(QWidget&)> choose_user(const char* user) {
        return [this, user](QWidget& dialog) {
            auto* box = dialog.findChild<QComboBox*>();
            ASSERT_NE(box, nullptr);
            for (int i = 0; i < box->count(); ++i)
                offered << box->itemText(i);
            offered_first = box->currentText();
            box->setCurrentText(user);
            QTest::keyClick(box, Qt::Key_Return);
        };
    }
    static void cancel(QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }
    std::function<void(QWidget&)> confirm() {
        return [this](QWidget& box) {
            told = box.findChild<QLabel*>("qt_msgbox_label")->text();
            QTest::keyClick(&box, Qt::Key_Return);
        };
    }

    QWidget window;
    ExchangeCommands commands{
        database, window, {.take = [this](store::Store& store, const std::string& file, const std::string& user) {
            return take(store, file, user);
        }}};
    std::vector<std::string> taken;
    QStringList offered;
    QString offered_first;
    QString told;
};

} // namespace

TEST_F(ExchangeCommandsTest, AnImportAsksForWhomAndTellsWhatItTook) {
    with_dialogs({choose("plan.ics"), choose_user("Bert Cole"), confirm()}, [&] { commands.import_file(); });
    EXPECT_EQ(offered, (QStringList{"Anna Berg", "Bert Cole"}));
    EXPECT_EQ(taken, std::vector<std::string>{in_folder("plan.ics") + " for Bert Cole"});
    EXPECT_EQ(told, "One contact was taken.");
    EXPECT_EQ(database.directory().contacts().size(), 5u);
}

TEST_F(ExchangeCommandsTest, TheUserChosenLastIsOfferedFirst) {
    with_dialogs({choose("plan.ics"), choose_user("Bert Cole"), confirm()}, [&] { commands.import_file(); });
    EXPECT_EQ(offered_first, "Anna Berg");
    with_dialogs({choose("plan.ics"), choose_user("Bert Cole"), confirm()}, [&] { commands.import_file(); });
    EXPECT_EQ(offered_first, "Bert Cole");
}

TEST_F(ExchangeCommandsTest, WhoeverSitsHereIsOfferedFirstByTheirLoginName) {
    const QByteArray before = qgetenv("USER");
    qputenv("USER", "bert cole");
    with_dialogs({choose("plan.ics"), choose_user("Anna Berg"), confirm()}, [&] { commands.import_file(); });
    qputenv("USER", before);
    EXPECT_EQ(offered_first, "Bert Cole");
}

TEST_F(ExchangeCommandsTest, AnImportThatIsCancelledAtTheUserTakesNothing) {
    with_dialogs({choose("plan.ics"), cancel}, [&] { commands.import_file(); });
    EXPECT_TRUE(taken.empty());
}

TEST_F(ExchangeCommandsTest, ASingleUserIsntAskedFor) {
    database.create(in_folder("small.desk"));
    database.store().add(store::User{.name = "Carla Dunn", .security = "Administrator", .access = "Enabled"});
    database.refresh();
    with_dialogs({choose("plan.ics"), confirm()}, [&] { commands.import_file(); });
    EXPECT_EQ(taken, std::vector<std::string>{in_folder("plan.ics") + " for Carla Dunn"});
}

TEST_F(ExchangeCommandsTest, ForAddressCardsNoUserIsAskedFor) {
    with_dialogs({choose("people.vcf"), confirm()}, [&] { commands.import_file(); });
    EXPECT_EQ(taken, std::vector<std::string>{in_folder("people.vcf") + " for "});
}

TEST_F(ExchangeCommandsTest, AnImportThatFailsTellsWhy) {
    std::ofstream(in_folder("people.bad")) << "x";
    with_dialogs({choose("people.bad"), choose_user("Anna Berg"), confirm()}, [&] { commands.import_file(); });
    EXPECT_EQ(told, "That file can't be read.");
    EXPECT_EQ(database.directory().contacts().size(), 4u);
}

TEST_F(ExchangeCommandsTest, ThereIsNoImportWithoutOne) {
    EXPECT_TRUE(commands.can_import());
    EXPECT_FALSE(ExchangeCommands(database, window, {}).can_import());
}
