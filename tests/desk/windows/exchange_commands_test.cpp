#include "desk/windows/exchange_commands.h"

#include "core/values/failure.h"
#include "desk_fixture.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

#include <filesystem>
#include <fstream>

using namespace windows;

namespace {

class ExchangeCommandsTest : public DeskTest {
protected:
    ExchangeCommandsTest() {
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        window.show();
        database.open(path);
        for (const char* name : {"plan.ics", "team.ics", "people.vcf"})
            std::ofstream(in_folder(name)) << "x";
    }

    // A long file is taken until it is cancelled.
    Taken take(store::Store& store, const Taking& taking, const Progress& progress) {
        taken.push_back(taking);
        if (taking.file.ends_with(".bad"))
            throw values::Failure(values::FailureNumber::automation, "That file can't be read.");
        store.together([&] {
            contact(store, "Elm House", "Vera Upton");
            while (taking.file.ends_with(".long"))
                if (!progress(0.5))
                    throw values::Failure(values::FailureNumber::automation, "The import was cancelled.");
        });
        return {.report = "One contact was taken.", .left_deleted = taking.with_deleted ? 0 : left_deleted};
    }
    std::string write(const std::string& file, const std::string& user) {
        written.push_back(file + " of " + user);
        if (disk_is_full)
            throw values::Failure(values::FailureNumber::automation, "The disk is full.");
        return "Written.";
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
    static void cancel_under_way(QWidget& box) {
        click(box.findChild<QPushButton*>());
        EXPECT_TRUE(QTest::qWaitFor([&] { return !box.isVisible(); }));
    }
    std::function<void(QWidget&)> confirm() {
        return [this](QWidget& box) {
            told = box.findChild<QLabel*>("qt_msgbox_label")->text();
            QTest::keyClick(&box, Qt::Key_Return);
        };
    }

    QWidget window;
    ExchangeCommands commands{database,
                              window,
                              {.take = [this](store::Store& store, const Taking& taking,
                                              const Progress& progress) { return take(store, taking, progress); },
                               .names_users = [](const std::string& file) { return file.ends_with("team.ics"); },
                               .write = [this](store::Store&, const std::string& file,
                                               const std::string& user) { return write(file, user); }}};
    std::vector<Taking> taken;
    std::vector<std::string> written;
    std::size_t left_deleted = 0;
    bool disk_is_full = false;
    QStringList offered;
    QString offered_first;
    QString told;
};

} // namespace

TEST_F(ExchangeCommandsTest, AnImportAsksForWhomAndTellsWhatItTook) {
    with_dialogs({choose("plan.ics"), choose_user("Bert Cole"), confirm()}, [&] { commands.import_file(); });
    EXPECT_EQ(offered, (QStringList{"Anna Berg", "Bert Cole"}));
    EXPECT_EQ(taken, (std::vector<Taking>{{.file = in_folder("plan.ics"), .user = "Bert Cole"}}));
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
    EXPECT_EQ(taken, (std::vector<Taking>{{.file = in_folder("plan.ics"), .user = "Carla Dunn"}}));
}

TEST_F(ExchangeCommandsTest, ForAddressCardsNoUserIsAskedFor) {
    with_dialogs({choose("people.vcf"), confirm()}, [&] { commands.import_file(); });
    EXPECT_EQ(taken, (std::vector<Taking>{{.file = in_folder("people.vcf")}}));
}

TEST_F(ExchangeCommandsTest, AnImportThatFailsTellsWhy) {
    std::ofstream(in_folder("people.bad")) << "x";
    with_dialogs({choose("people.bad"), choose_user("Anna Berg"), confirm()}, [&] { commands.import_file(); });
    EXPECT_EQ(told, "That file can't be read.");
    EXPECT_EQ(database.directory().contacts().size(), 4u);
}

TEST_F(ExchangeCommandsTest, AnImportThatIsCancelledUnderWayTakesNothing) {
    std::ofstream(in_folder("plan.long")) << "x";
    with_dialogs({choose("plan.long"), choose_user("Anna Berg"), cancel_under_way},
                 [&] { commands.import_file(); });
    EXPECT_EQ(taken.size(), 1u);
    EXPECT_EQ(elsewhere()->contacts().size(), 4u);
    EXPECT_TRUE(database.is_open());
}

TEST_F(ExchangeCommandsTest, TheDatabaseCanBeClosedWhileAnImportIsUnderWay) {
    std::ofstream(in_folder("plan.long")) << "x";
    const auto close = [this](QWidget& box) {
        database.close();
        cancel_under_way(box);
    };
    with_dialogs({choose("plan.long"), choose_user("Anna Berg"), close}, [&] { commands.import_file(); });
    EXPECT_FALSE(database.is_open());
    EXPECT_EQ(elsewhere()->contacts().size(), 4u);
}

TEST_F(ExchangeCommandsTest, NothingIsTakenIntoAnotherDatabaseThatStandsInThePlaceOfTheOpenOne) {
    std::filesystem::rename(path, in_folder("moved.desk"));
    store::Store::create(path);
    with_dialogs({choose("people.vcf"), confirm()}, [&] { commands.import_file(); });
    EXPECT_TRUE(told.contains("was moved, deleted or replaced")) << told.toStdString();
    EXPECT_TRUE(taken.empty());
    EXPECT_TRUE(elsewhere()->contacts().empty());
}

TEST_F(ExchangeCommandsTest, AFileThatNamesItsUsersGoesToThemUnlessAnotherIsChosen) {
    const char* named = "(everybody whom the file names)";
    with_dialogs({choose("team.ics"), choose_user(named), confirm()}, [&] { commands.import_file(); });
    EXPECT_EQ(offered, (QStringList{"Anna Berg", "Bert Cole", named}));
    EXPECT_EQ(offered_first, named);
    with_dialogs({choose("team.ics"), choose_user("Anna Berg"), confirm()}, [&] { commands.import_file(); });
    EXPECT_EQ(taken, (std::vector<Taking>{{.file = in_folder("team.ics")},
                                          {.file = in_folder("team.ics"), .user = "Anna Berg"}}));
}

TEST_F(ExchangeCommandsTest, WhatWasDeletedComesBackAfterAQuestionAlone) {
    left_deleted = 2;
    const auto answer = [this](QMessageBox::StandardButton button) {
        return [this, button](QWidget& box) {
            told = box.findChild<QLabel*>("qt_msgbox_label")->text();
            click(dynamic_cast<QMessageBox&>(box).button(button));
        };
    };
    with_dialogs({choose("plan.ics"), choose_user("Anna Berg"), answer(QMessageBox::No)},
                 [&] { commands.import_file(); });
    EXPECT_EQ(told, "One contact was taken.\nTake in again what was deleted here (2)?");
    ASSERT_EQ(taken.size(), 1u);
    with_dialogs({choose("plan.ics"), choose_user("Anna Berg"), answer(QMessageBox::Yes), confirm()},
                 [&] { commands.import_file(); });
    ASSERT_EQ(taken.size(), 3u);
    EXPECT_EQ(taken.back(), (Taking{.file = in_folder("plan.ics"), .user = "Anna Berg", .with_deleted = true}));
}

TEST_F(ExchangeCommandsTest, AnExportAsksForWhomAndTellsWhatItWrote) {
    with_dialogs({choose("out.ics"), choose_user("Bert Cole"), confirm()}, [&] { commands.export_file(); });
    EXPECT_EQ(offered, (QStringList{"Anna Berg", "Bert Cole", "(everybody)"}));
    EXPECT_EQ(offered_first, "(everybody)");
    EXPECT_EQ(told, "Written.");
    with_dialogs({choose("out"), choose_user("(everybody)"), confirm()}, [&] { commands.export_file(); });
    with_dialogs({choose("out.vcf"), confirm()}, [&] { commands.export_file(); });
    EXPECT_EQ(written, (std::vector<std::string>{in_folder("out.ics") + " of Bert Cole",
                                                 in_folder("out.ics") + " of ", in_folder("out.vcf") + " of "}));
}

TEST_F(ExchangeCommandsTest, AnExportThatFailsTellsWhyAndOneThatIsCancelledWritesNothing) {
    disk_is_full = true;
    with_dialogs({choose("out.vcf"), confirm()}, [&] { commands.export_file(); });
    EXPECT_EQ(told, "The disk is full.");
    written.clear();
    with_dialogs({choose("out.ics"), cancel}, [&] { commands.export_file(); });
    with_dialogs({cancel}, [&] { commands.export_file(); });
    EXPECT_TRUE(written.empty());
}

TEST_F(ExchangeCommandsTest, ThereIsNoImportAndNoExportWithoutOne) {
    EXPECT_TRUE(commands.can_import());
    EXPECT_TRUE(commands.can_export());
    EXPECT_FALSE(ExchangeCommands(database, window, {}).can_import());
    EXPECT_FALSE(ExchangeCommands(database, window, {}).can_export());
}
