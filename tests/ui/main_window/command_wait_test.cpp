#include "adapters/bus/application_link.h"
#include "adapters/qt/qt_message_box.h"
#include "apps/orvanta/desk_server.h"
#include "support/desk_on_bus.h"
#include "support/platform_world.h"
#include "support/temporary_database.h"
#include "ui/main_window/frm_main.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QWindow>

#include <functional>
#include <optional>

namespace {

using act::CommandNumber;
using values::DateTime;

class PaintCounter : public QObject {
public:
    bool eventFilter(QObject*, QEvent* event) override {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    int count = 0;
};

// The calendar's window over a real database, and a desk on a real bus whose dialog the test closes. On Wednesday,
// 10 January 2024, Ann has a meeting of an hour at 9:00, and a daily one at 11:00 that began on the Monday.
class CommandWait : public ::testing::Test, protected support::PlatformWorld {
protected:
    CommandWait() {
        ann = database.store().add(store::User{.name = "Ann"});
        chris = database.store().add(store::Contact{.fields = {{26, "Chris Smith"}}});
        meeting = add(10, 9, store::RecurrenceKind::none);
        series = add(8, 11, store::RecurrenceKind::daily);
        desk->run([this] {
            desk->desk.known_contacts = {chris};
            desk->desk.activities = database.store().activities({});
            desk->desk.activities.push_back({.id = next_id});
        });
        window.load();
        window.resize(1250, 800);
        QTest::qWait(20);
        EXPECT_TRUE(box.shown.empty());
    }
    std::string add(int day, int hour, store::RecurrenceKind kind) {
        store::Activity activity{.start = DateTime::of(2024, 1, day, hour),
                                 .end = DateTime::of(2024, 1, day, hour + 1),
                                 .duration = 60,
                                 .user = ann,
                                 .contacts = {chris}};
        activity.recurrence.kind = kind;
        return database.store().add(activity);
    }

    // Double clicks the Wednesday's cell of that hour and does something while the desk's dialog is open; returns
    // when the double click has been dealt with.
    void double_click_and(int hour, std::function<void()> meanwhile) {
        QEventLoop outer; // as the program's own
        QTimer poll;
        QObject::connect(&poll, &QTimer::timeout, [&] {
            if (link->waits() && meanwhile && !commands().empty())
                std::exchange(meanwhile, nullptr)();
        });
        QTimer::singleShot(0, &window, [&] {
            poll.start(5);
            QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, middle(hour, wednesday));
            QTest::mouseDClick(grid->viewport(), Qt::LeftButton, {}, middle(hour, wednesday));
            outer.quit();
        });
        outer.exec();
        EXPECT_EQ(meanwhile, nullptr) << "no command was waited for";
    }
    void finish() {
        desk->run([this] { desk->desk.finish_command(); });
    }
    std::vector<CommandNumber> commands() {
        std::vector<CommandNumber> seen;
        desk->run([&] { seen = desk->desk.commands; });
        return seen;
    }
    // Waits for the end that a program's own event loop would come to.
    void wait_for_end() {
        EXPECT_TRUE(QTest::qWaitFor([this] { return program.ends > 0; }));
        EXPECT_EQ(program.ends, 1);
    }
    QPoint middle(int hour, int col) const { return grid->cell_rect(hour - 8 + 1, col).center(); }
    QString at(int hour) {
        return QString::fromStdString(window.calendar().grid.msgSched.TextMatrix(hour - 8 + 1, wednesday))
            .trimmed();
    }
    static constexpr int wednesday = 5;
    const std::string next_id = "A00000000003"; // of the next activity to be stored
    support::TemporaryDatabase database;
    std::string ann, chris, meeting, series;
    support::PrivateBus bus;
    std::unique_ptr<support::DeskOnBus> desk = std::make_unique<support::DeskOnBus>(bus, database.path());
    std::shared_ptr<bus::Link> link = bus::make_link(bus.connection());
    apps::DeskServer server{link, values::english_us()};
    std::unique_ptr<act::EventControl> real_events = bus::make_event_control(link);
    std::unique_ptr<host::MessageBox> real_box = qt::make_message_box();
    ui::frmMain window{outside(server, *real_box, *real_events)};
    ui::GridWidget* grid = window.findChild<ui::GridWidget*>("msgSched");
};

TEST_F(CommandWait, LetsTheCalendarRepaint) {
    PaintCounter paints;
    grid->viewport()->installEventFilter(&paints);
    double_click_and(9, [&] {
        paints.count = 0;
        grid->viewport()->update();
        QTest::qWait(100);
        EXPECT_GT(paints.count, 0);
        finish();
    });
    EXPECT_EQ(commands(), std::vector{CommandNumber::edit_activity});
}

TEST_F(CommandWait, ShowsWhatWasTypedInTheDialogOnceItHasClosed) {
    double_click_and(9, [&] {
        store::Activity changed = database.store().activity(meeting).value();
        changed.start = DateTime::of(2024, 1, 10, 14);
        changed.end = DateTime::of(2024, 1, 10, 15);
        database.store().update(changed);
        EXPECT_TRUE(at(9).startsWith("Chris Smith")) << "the calendar's procedure is still in the command";
        finish();
    });
    EXPECT_EQ(at(9), "");
    EXPECT_TRUE(at(14).startsWith("Chris Smith"));
}

TEST_F(CommandWait, TakesNoInputAndDoesNotCarryItOutAfterwards) {
    auto* cmdNext = window.findChild<QToolButton*>("cmdNext");
    table::GridModel& msgSched = window.calendar().grid.msgSched;
    const DateTime week = window.calendar().grid.layout.StartDate();
    double_click_and(9, [&] {
        const int row = msgSched.Row(), col = msgSched.Col();
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, middle(13, 3));
        QTest::mouseDClick(grid->viewport(), Qt::LeftButton, {}, middle(13, 3));
        QTest::mouseClick(grid->viewport(), Qt::RightButton, {}, middle(9, wednesday));
        QTest::keyClick(grid, Qt::Key_Down);
        QTest::keyClick(grid, Qt::Key_Return);
        QTest::keyClick(grid, Qt::Key_Menu);
        QTest::keyClick(&window, Qt::Key_D, Qt::AltModifier);
        QTest::mouseClick(cmdNext, Qt::LeftButton);
        QCloseEvent close;
        QSpontaneKeyEvent::setSpontaneous(&close); // as the window system's own
        QApplication::instance()->notify(window.windowHandle(), &close);
        QTest::qWait(50);
        EXPECT_EQ(msgSched.Row(), row);
        EXPECT_EQ(msgSched.Col(), col);
        finish();
    });
    QTest::qWait(50);
    EXPECT_EQ(commands(), std::vector{CommandNumber::edit_activity});
    EXPECT_EQ(window.calendar().grid.layout.StartDate(), week);
    EXPECT_EQ(window.calendar().grid.layout.NumDays(), 7);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(program.ends, 0);
    EXPECT_TRUE(window.isVisible());
    QTest::mouseClick(cmdNext, Qt::LeftButton);
    EXPECT_EQ(window.calendar().grid.layout.StartDate(), week.plus_days(7)) << "and takes it again";
}

TEST_F(CommandWait, HearsTheDesksEventAndFollowsItOnceTheProcedureIsOver) {
    double_click_and(9, [&] {
        desk->run([this] { desk->desk.on_database_closed(); });
        QTest::qWait(100);
        EXPECT_EQ(program.ends, 0) << "the procedure has the database yet";
        finish();
    });
    wait_for_end();
    EXPECT_EQ(stored("WeeklyView"), "1");
}

TEST_F(CommandWait, ThatTheDeskDoesNotOutliveIsToldByABoxThatStaysUntilItIsReadBeforeTheEnd) {
    QString told;
    QTimer reader;
    int looks = 0;
    QObject::connect(&reader, &QTimer::timeout, [&] {
        auto* shown = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!shown || ++looks < 20)
            return;
        told = shown->text();
        EXPECT_EQ(program.ends, 0);
        QTest::mouseClick(shown->buttons().first(), Qt::LeftButton);
    });
    reader.start(20);
    double_click_and(9, [&] { desk.reset(); });
    EXPECT_TRUE(told.startsWith("Error 440: 'The contact desk ended before its dialog was closed.'\n"
                                "in frmMain: Sub Select_and_Launch_Command - Line # "))
        << told.toStdString();
    EXPECT_EQ(looks, 20) << "one box";
    wait_for_end();
    EXPECT_EQ(stored("WeeklyView"), "1");
    EXPECT_EQ(database.store().activities({}).size(), 2U);
}

TEST_F(CommandWait, ThatTheDeskDoesNotOutliveLeavesNoTraceOfATemporaryInstance) {
    QTimer reader;
    QObject::connect(&reader, &QTimer::timeout, [] {
        if (auto* shown = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
            QTest::mouseClick(shown->buttons().first(), Qt::LeftButton);
    });
    reader.start(20);
    double_click_and(11, [&] {
        EXPECT_EQ(database.store().activities({}).size(), 3U);
        desk.reset();
    });
    wait_for_end();
    EXPECT_EQ(database.store().activities({}).size(), 2U);
    EXPECT_TRUE(database.store().activity(series)->exceptions.empty());
}

TEST_F(CommandWait, ThatWasFollowedByAQuestionLosesNothingWhenTheDeskGoesBeforeTheAnswer) {
    QTimer user;
    int looks = 0;
    QObject::connect(&user, &QTimer::timeout, [&] {
        QWidget* question = QApplication::activeModalWidget();
        if (!question)
            return;
        if (++looks == 1)
            desk.reset();
        if (looks == 20)
            QTest::mouseClick(question->findChild<QPushButton*>("cmdResponse_0"), Qt::LeftButton);
    });
    user.start(20);
    double_click_and(11, [&] {
        store::Activity changed = database.store().activity(next_id).value();
        changed.regarding = "Typed and confirmed";
        database.store().update(changed);
        finish();
    });
    wait_for_end();
    EXPECT_EQ(looks, 20);
    EXPECT_EQ(database.store().activity(next_id)->regarding, "Typed and confirmed");
    EXPECT_EQ(database.store().activity(series)->exceptions.size(), 1U);
}

TEST_F(CommandWait, IsAbandonedByARequestToEndAndTheCalendarEndsWithItsStateSaved) {
    double_click_and(9, [&] {
        window.unload_at_once();
        EXPECT_EQ(program.ends, 0);
        bus::abandon_command(*link);
    });
    wait_for_end();
    EXPECT_EQ(stored("WeeklyView"), "1");
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    desk->run([this] {
        EXPECT_EQ(desk->desk.tab, "Notes");
        EXPECT_EQ(desk->desk.filter.mask, 252);
    });
}

TEST_F(CommandWait, ThatIsAbandonedLeavesNoTraceOfATemporaryInstance) {
    double_click_and(11, [&] {
        EXPECT_EQ(database.store().activities({}).size(), 3U);
        window.unload_at_once();
        bus::abandon_command(*link);
    });
    wait_for_end();
    EXPECT_EQ(database.store().activities({}).size(), 2U);
    EXPECT_TRUE(database.store().activity(series)->exceptions.empty());
}

} // namespace
