#include "desk/windows/desk_window.h"

#include "core/values/failure.h"
#include "desk/windows/activity_dialog.h"
#include "desk/windows/activity_list.h"
#include "desk/windows/record_table.h"
#include "desk_fixture.h"
#include "support/unprivileged.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QStackedWidget>
#include <QThread>

#include <filesystem>
#include <fstream>

using namespace windows;

namespace {

class DeskWindowTest : public DeskTest {
protected:
    DeskWindowTest() : window(std::make_unique<DeskWindow>(database, Exchange())) {
        window->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
        window->desk().on_database_closed = [this] { events.push_back("closed"); };
        window->desk().on_user_wants_to_close = [this] { events.push_back("wants to close"); };
    }

    QAction* action(const char* name) {
        auto* found = window->findChild<QAction*>(name);
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    // Opens the menu by its key, then gives the command its own.
    void command(Qt::Key menu, const char* name) {
        QTest::keyClick(window.get(), menu, Qt::AltModifier);
        auto* open = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(open, nullptr);
        const QRect entry = open->actionGeometry(action(name));
        QTest::mouseClick(open, Qt::LeftButton, {}, entry.center());
    }
    QString view() { return child<QStackedWidget>(*window, "views")->currentWidget()->objectName(); }
    QString count() { return child<QLabel>(*window, "record_count")->text(); }
    ActivityDialog* dialog() { return window->findChild<ActivityDialog*>(); }

    using Events = std::vector<std::string>;
    Events events;
    std::unique_ptr<DeskWindow> window;
};

} // namespace

TEST_F(DeskWindowTest, StartsWithoutADatabase) {
    EXPECT_EQ(window->windowTitle(), "Contact Desk");
    EXPECT_EQ(view(), "start_page");
    EXPECT_EQ(count(), "");
    EXPECT_FALSE(action("file_close")->isEnabled());
    EXPECT_FALSE(action("schedule_call")->isEnabled());
    EXPECT_TRUE(action("file_open")->isEnabled());
    EXPECT_EQ(window->desk().database_path(), "");
}

TEST_F(DeskWindowTest, OpensADatabaseAndShowsItsContacts) {
    window->open(path);
    EXPECT_EQ(window->windowTitle(), "team.desk - Contact Desk");
    EXPECT_EQ(view(), "contact_list_view");
    EXPECT_EQ(count(), "4 of 4 contacts");
    EXPECT_EQ(window->desk().database_path(), path);
    EXPECT_TRUE(action("schedule_call")->isEnabled());
}

TEST_F(DeskWindowTest, AFileThatIsNoDatabaseIsToldAndTheWindowStaysUsable) {
    std::ofstream(in_folder("letter.txt")) << "Dear Sir or Madam, this is no database at all.";
    for (const char* name : {"letter.txt", "missing.desk"})
        with_dialogs({[](QWidget& box) { QTest::keyClick(&box, Qt::Key_Return); }},
                     [&] { window->open(in_folder(name)); });
    EXPECT_EQ(view(), "start_page");
    window->open(path);
    EXPECT_EQ(count(), "4 of 4 contacts");
}

TEST_F(DeskWindowTest, ADamagedDatabaseIsToldAndTheOpenOneStays) {
    window->open(path);
    const auto broken = in_folder("broken.desk");
    std::filesystem::copy_file(path, broken);
    std::fstream file(broken, std::ios::in | std::ios::out | std::ios::binary);
    for (int page = 1; page < 40; ++page) {
        file.seekp(page * 4096);
        file << std::string(64, '#');
    }
    file.close();
    with_dialogs({[](QWidget& box) { QTest::keyClick(&box, Qt::Key_Return); }}, [&] { window->open(broken); });
    EXPECT_EQ(window->windowTitle(), "team.desk - Contact Desk");
    EXPECT_EQ(count(), "4 of 4 contacts");
}

TEST_F(DeskWindowTest, ADatabaseThatCantBeWrittenCanBeReadAndSaysSo) {
    using std::filesystem::perms;
    std::filesystem::permissions(folder.path(), perms::all);
    for (const auto& entry : std::filesystem::directory_iterator(folder.path()))
        std::filesystem::permissions(entry, perms::all); // the log beside it, which may be open
    std::filesystem::permissions(path, perms::owner_read | perms::group_read | perms::others_read);
    const support::Unprivileged reader;
    window->open(path);
    EXPECT_EQ(window->windowTitle(), "team.desk (read-only) - Contact Desk");
    EXPECT_EQ(count(), "4 of 4 contacts");
    EXPECT_FALSE(action("schedule_call")->isEnabled());
    EXPECT_FALSE(action("contact_new")->isEnabled());
    EXPECT_FALSE(child<QLineEdit>(*window, "field_26")->isEnabled());
    EXPECT_THROW(window->desk().run_command(act::CommandNumber::schedule_activity, [] {}), values::Failure);
}

TEST_F(DeskWindowTest, ALookupOfAnotherProgramIsShownInFrontWhateverViewThereWas) {
    window->open(path);
    for (const char* other : {"view_task_list", "view_groups", "view_contact", "view_contact_list"}) {
        action(other)->trigger();
        window->showMinimized();
        window->desk().contact_view().create_lookup({cedar, birch});
        EXPECT_EQ(view(), "contact_list_view") << other;
        EXPECT_TRUE(action("view_contact_list")->isChecked()) << other;
        EXPECT_EQ(count(), "2 of 4 contacts");
        EXPECT_FALSE(window->isMinimized()) << other;
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get())) << other;
    }
}

TEST_F(DeskWindowTest, TheMenusSwitchTheViews) {
    window->open(path);
    command(Qt::Key_V, "view_contact");
    EXPECT_EQ(view(), "contact_view");
    command(Qt::Key_V, "view_task_list");
    EXPECT_EQ(view(), "task_list_view");
    command(Qt::Key_V, "view_groups");
    EXPECT_EQ(view(), "groups_view");
    EXPECT_TRUE(action("view_groups")->isChecked());
    command(Qt::Key_V, "view_contact_list");
    EXPECT_EQ(view(), "contact_list_view");
    EXPECT_FALSE(action("view_groups")->isChecked());
}

TEST_F(DeskWindowTest, ADoubleClickInTheContactListShowsTheContact) {
    window->open(path);
    auto* table = child<RecordTable>(*window->findChild<QWidget*>("contact_list_view"), "contact_table");
    const QPoint spot = table->visualRect(table->model()->index(2, 0)).center();
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, spot);
    QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, spot);
    EXPECT_EQ(view(), "contact_view");
    EXPECT_EQ(child<QLineEdit>(*window, "field_26")->text(), "Xenia Stone");
}

TEST_F(DeskWindowTest, ASmallerLookupShowsInTheCount) {
    window->open(path);
    window->desk().contact_view().create_lookup({birch, cedar});
    EXPECT_EQ(count(), "2 of 4 contacts");
    command(Qt::Key_L, "lookup_all");
    EXPECT_EQ(count(), "4 of 4 contacts");
}

TEST_F(DeskWindowTest, SchedulesByTheMenu) {
    window->open(path);
    command(Qt::Key_S, "schedule_to_do");
    ASSERT_NE(dialog(), nullptr);
    type(child<QLineEdit>(*dialog(), "regarding_edit"), "Water the plants");
    QTest::keyClick(dialog(), Qt::Key_Return);
    store::ActivityQuery query;
    query.contact = amber;
    const auto found = elsewhere()->activities(query);
    ASSERT_EQ(found.size(), 4u);
    EXPECT_EQ(found[2].regarding, "Water the plants");
    EXPECT_EQ(found[2].type, store::ActivityType::to_do);
}

TEST_F(DeskWindowTest, TheTaskListShowsEverybodysOpenActivitiesFromTodayOn) {
    window->open(path);
    command(Qt::Key_V, "view_task_list");
    auto* list = dynamic_cast<ActivityList*>(window->findChild<QWidget*>("task_list_view"));
    ASSERT_EQ(list->row_count(), 3);
    EXPECT_EQ(list->activity(0).id, series);
    EXPECT_EQ(list->activity(2).id, meeting);
}

TEST_F(DeskWindowTest, EnterOnAnActivityEditsIt) {
    window->open(path);
    command(Qt::Key_V, "view_task_list");
    auto* list = window->findChild<QWidget*>("task_list_view");
    auto* table = child<RecordTable>(*list, "activity_table");
    EXPECT_FALSE(action("edit_activity")->isEnabled());
    table->select(call);
    EXPECT_TRUE(action("edit_activity")->isEnabled());
    QTest::keyClick(table, Qt::Key_Return);
    ASSERT_NE(dialog(), nullptr);
    retype(child<QLineEdit>(*dialog(), "regarding_edit"), "Ask again");
    QTest::keyClick(dialog(), Qt::Key_Return);
    EXPECT_EQ(elsewhere()->activity(call)->regarding, "Ask again");
}

TEST_F(DeskWindowTest, ClosingTheDatabaseIsAnEventOnce) {
    window->open(path);
    command(Qt::Key_F, "file_close");
    EXPECT_EQ(events, Events{"closed"});
    EXPECT_EQ(view(), "start_page");
    EXPECT_EQ(window->windowTitle(), "Contact Desk");
    EXPECT_FALSE(action("file_close")->isEnabled());
}

TEST_F(DeskWindowTest, ExitTellsThatTheUserWantsToCloseAndThenThatTheDatabaseHasClosed) {
    window->open(path);
    command(Qt::Key_F, "file_exit");
    EXPECT_EQ(events, (Events{"wants to close", "closed"}));
    EXPECT_FALSE(window->isVisible());
}

TEST_F(DeskWindowTest, TheCloseCommandAnswersFirstAndThenEnds) {
    window->open(path);
    window->desk().run_command(act::CommandNumber::close_application, [this] { events.push_back("answered"); });
    EXPECT_EQ(events, Events{"answered"});
    QCoreApplication::processEvents();
    EXPECT_EQ(events, (Events{"answered", "wants to close", "closed"}));
    EXPECT_FALSE(window->isVisible());
}

TEST_F(DeskWindowTest, DoesntCloseOverAnOpenDialog) {
    window->open(path);
    command(Qt::Key_S, "schedule_call");
    window->close();
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(events, Events{});
}

TEST_F(DeskWindowTest, ClosingStoresWhatIsBeingTyped) {
    window->open(path);
    command(Qt::Key_C, "contact_edit");
    retype(child<QLineEdit>(*window, "field_25"), "Amber Works Ltd");
    window->close();
    EXPECT_EQ(elsewhere()->contact(amber)->fields[25], "Amber Works Ltd");
}

TEST_F(DeskWindowTest, CommandsFromOutsideOpenTheDialogsAndFinishWithThem) {
    window->open(path);
    auto& desk = window->desk();
    const auto finish = [this] { events.push_back("finished"); };
    desk.run_command(act::CommandNumber::schedule_activity, finish);
    ASSERT_NE(dialog(), nullptr);
    EXPECT_EQ(events, Events{});
    QTest::keyClick(dialog(), Qt::Key_Escape);
    EXPECT_EQ(events, Events{"finished"});
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    auto& view = desk.contact_view();
    view.go_to(amber);
    view.select_activity(1, true);
    desk.run_command(act::CommandNumber::edit_activity, finish);
    ASSERT_NE(dialog(), nullptr);
    EXPECT_EQ(child<QLineEdit>(*dialog(), "regarding_edit")->text(), "Show the plan");
    QTest::keyClick(dialog(), Qt::Key_Escape);
    EXPECT_EQ(events, (Events{"finished", "finished"}));
}

TEST_F(DeskWindowTest, TheEditCommandFailsWhereNothingIsSelected) {
    window->open(path);
    EXPECT_THROW(window->desk().run_command(act::CommandNumber::edit_activity, [] {}), values::Failure);
    EXPECT_EQ(dialog(), nullptr);
}

TEST_F(DeskWindowTest, TheContactViewIsBroughtUpByItsCommand) {
    window->open(path);
    window->desk().run_command(act::CommandNumber::show_contact_view, [this] { events.push_back("finished"); });
    EXPECT_EQ(view(), "contact_view");
    EXPECT_EQ(events, Events{"finished"});
}

TEST_F(DeskWindowTest, SeesWhatAnotherProcessWroteWithinASecondOrTwo) {
    window->open(path);
    contact(*elsewhere(), "Elm House", "Vera Upton");
    EXPECT_TRUE(QTest::qWaitFor([this] { return count() == "5 of 5 contacts"; }, 10000));
}

TEST_F(DeskWindowTest, ImportsAndExportsOnlyWhereThatCanBeDone) {
    window->open(path);
    EXPECT_FALSE(action("file_import")->isEnabled());
    EXPECT_FALSE(action("file_export")->isEnabled());
    std::string written;
    DeskWindow other(database, {.take = [](store::Store&, const Taking&, const Progress&) { return Taken(); },
                                .write =
                                    [&](store::Store&, const std::string& file, const std::string&) {
                                        written = file;
                                        return std::string("Written.");
                                    }});
    EXPECT_TRUE(other.findChild<QAction*>("file_import")->isEnabled());
    auto* exporting = other.findChild<QAction*>("file_export");
    EXPECT_TRUE(exporting->isEnabled());
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const auto name_file = [this](QWidget& dialog) {
        auto* line = dialog.findChild<QLineEdit*>("fileNameEdit");
        line->setText(QString::fromStdString(in_folder("all.vcf")));
        QTest::keyClick(line, Qt::Key_Return);
    };
    const auto confirm = [](QWidget& box) { QTest::keyClick(&box, Qt::Key_Return); };
    with_dialogs({name_file, confirm}, [&] { exporting->trigger(); });
    EXPECT_EQ(written, in_folder("all.vcf"));
    database.close();
    EXPECT_FALSE(exporting->isEnabled());
}

// The desk, asked to end while an activity is edited and something typed for it.
class EndingDesk : public DeskWindowTest {
protected:
    EndingDesk() {
        window->open(path);
        window->desk().contact_view().go_to(amber);
        window->desk().contact_view().select_activity(1, true);
        window->desk().run_command(act::CommandNumber::edit_activity, [this] { events.push_back("finished"); });
        retype(child<QLineEdit>(*dialog(), "regarding_edit"), "Show both plans");
    }
    void end(QMessageBox::StandardButton answer) {
        with_dialogs({[answer](QWidget& box) {
                         EXPECT_TRUE(
                             child<QLabel>(box, "qt_msgbox_label")->text().contains("Store what is typed"));
                         click(dynamic_cast<QMessageBox&>(box).button(answer));
                     }},
                     [&] { window->end([this] { ++stays; }); });
        EXPECT_TRUE(QTest::qWaitFor([this] { return stays > 0 || !window->isVisible(); }, 5000));
    }
    std::string regarding() { return elsewhere()->activity(meeting)->regarding; }

    int stays = 0;
};

TEST_F(EndingDesk, StoresWhatWasTypedWhenTheUserSaysSo) {
    end(QMessageBox::Save);
    EXPECT_EQ(regarding(), "Show both plans");
    EXPECT_EQ(events, (Events{"finished", "wants to close", "closed"}));
    EXPECT_EQ(stays, 0);
}

TEST_F(EndingDesk, ThrowsItAwayWhenTheUserSaysSo) {
    end(QMessageBox::Discard);
    EXPECT_EQ(regarding(), "Show the plan");
    EXPECT_EQ(events, (Events{"finished", "wants to close", "closed"}));
}

TEST_F(EndingDesk, StaysWithTheDialogWhenTheUserSaysSo) {
    end(QMessageBox::Cancel);
    EXPECT_TRUE(window->isVisible());
    ASSERT_NE(dialog(), nullptr);
    EXPECT_EQ(child<QLineEdit>(*dialog(), "regarding_edit")->text(), "Show both plans");
    EXPECT_EQ(events, Events{});
    EXPECT_EQ(stays, 1);
}

TEST_F(DeskWindowTest, AskedToEndCancelsAQuestionThatIsOpenFirst) {
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    window->open(path);
    QTimer::singleShot(100, [this] { window->end([] { FAIL(); }); });
    action("file_open")->trigger(); // returns when its dialog has closed
    EXPECT_TRUE(QTest::qWaitFor([this] { return !window->isVisible(); }, 5000));
    EXPECT_EQ(events, (Events{"wants to close", "closed"}));
}

TEST_F(DeskWindowTest, AskedToEndCancelsAnImportThatIsUnderWayFirst) {
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    database.open(path);
    std::ofstream(in_folder("people.vcf")) << "x";
    const auto take_for_ever = [](store::Store& store, const Taking&, const Progress& progress) -> Taken {
        store.together([&] {
            contact(store, "Elm House", "Vera Upton");
            while (progress(0.5))
                QThread::msleep(1);
            throw values::Failure(values::FailureNumber::automation, "The import was cancelled.");
        });
        return {};
    };
    DeskWindow other(database, {.take = take_for_ever});
    other.show();
    const auto choose = [&](QWidget& dialog) {
        auto* line = child<QLineEdit>(dialog, "fileNameEdit");
        line->setText(QString::fromStdString(in_folder("people.vcf")));
        QTest::keyClick(line, Qt::Key_Return);
    };
    const auto end = [&](QWidget&) { other.end([] { FAIL(); }); };
    with_dialogs({choose, end}, [&] { other.findChild<QAction*>("file_import")->trigger(); });
    EXPECT_TRUE(QTest::qWaitFor([&] { return !other.isVisible(); }, 5000));
    EXPECT_FALSE(database.is_open());
    EXPECT_EQ(elsewhere()->contacts().size(), 4u);
}
