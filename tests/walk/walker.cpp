#include "walk/walker.h"

#include "core/host/deployment.h"

#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QScrollBar>

#include <cstdio>
#include <cstdlib>

namespace walk {

namespace {

constexpr int tick_milliseconds = 1;
constexpr int longest_wait = 120'000; // milliseconds for one dialog of the desk
constexpr unsigned knocking_seed = 7;

std::function<void(const std::string&)> teller(const RandomHand& hand) {
    const char* log = std::getenv("ORVANTA_WALK_LOG");
    if (!log)
        return [](const std::string&) {};
    return [file = std::fopen(log, "w"), &hand](const std::string& act) {
        std::fprintf(file, "%ld %s\n", hand.events(), act.c_str());
        std::fflush(file);
    };
}

} // namespace

OpenCalendar::OpenCalendar(const QDBusConnection& bus, const std::string& folder)
    : link_(bus::make_link(bus)), user_store_(*files_, folder + "/user-store.ini"), shell_(bus, user_values_),
      folders_(qt::make_folders(folder, folder)), server_(link_, locale_),
      ActEvent1_(bus::make_event_control(link_)),
      window_(calendar::Outside{.machine = {.application = host::application_info(),
                                            .locale = locale_,
                                            .clock = *clock_,
                                            .box = *box_,
                                            .shell = shell_,
                                            .files = *files_,
                                            .folders = *folders_,
                                            .user_store = user_store_},
                                .program = process_,
                                .server = server_,
                                .ActEvent1 = *ActEvent1_,
                                .tmrRefresh = *tmrRefresh_,
                                .tmr2 = *tmr2_}) {}

Walker::Walker(const QDBusConnection& bus, DeskProcess& desk, const std::string& database,
               const std::string& folder, unsigned seed, long events)
    : bus_(bus), desk_(desk), folder_(folder), last_event_(events), hand_(seed), knocking_hand_(knocking_seed),
      rules_(database) {
    hand_.tell = teller(hand_);
}

void Walker::run() {
    const Ticking ticking(tick_milliseconds, [this] { step(); });
    QApplication::exec();
    calendar_.reset();
    for (const std::string& rule : rules_.broken_at_end())
        faults.push_back(rule);
}

// Settings that change what the mouse can do.
void Walker::choose_settings() {
    QFile file(QString::fromStdString(folder_) + "/Orvanta.ini");
    if (!file.open(QIODevice::Append))
        return;
    file.write(QString("[Settings]\r\nOneRowPerUser=%1\r\nCellsPerSlot=%2\r\nActyType=%3\r\nStdRowHeight=%4\r\n")
                   .arg(hand_.pick(2))
                   .arg(2 + hand_.pick(4))
                   .arg("CMT"[hand_.pick(3)])
                   .arg(250 + hand_.pick(800))
                   .toUtf8());
}

void Walker::start_calendar() {
    calendar_.reset();
    if (starts++ > 0) {
        QFile::remove(QString::fromStdString(folder_) + "/Orvanta.ini");
        choose_settings();
    }
    hand_.tell("start");
    calendar_.emplace(bus_, folder_);
    calendar_->window().load();
}

void Walker::step() {
    watchdog_.beat();
    if (!desk_.runs()) {
        faults.emplace_back("The desk has died.");
        QCoreApplication::exit();
        return;
    }
    const bool is_outside = Ticking::loops() == 1; // of everything that a procedure waits for
    if (is_outside && (!faults.empty() || (hand_.events() >= last_event_ && !open_dialog()))) {
        QCoreApplication::exit();
        return;
    }
    if (!calendar_ || calendar_->has_ended()) {
        if (is_outside)
            start_calendar();
        return;
    }
    if (calendar_->waits_for_desk()) {
        watch_wait();
        return;
    }
    is_waiting_ = false;
    if (faults.empty())
        faults = rules_.broken();
    if (QWidget* dialog = open_dialog()) {
        note_dialog(*dialog);
        hand_.act_in_dialog(*dialog);
    } else {
        act_in_window();
    }
}

// A user who doesn't see why the calendar waits. What this hand does isn't to be felt, and isn't counted.
void Walker::watch_wait() {
    if (!std::exchange(is_waiting_, true))
        wait_.start();
    else if (wait_.elapsed() > longest_wait && faults.empty())
        faults.emplace_back("The desk's command doesn't end.");
    if (knocking_hand_.in_so_many_of_100(5))
        knocking_hand_.act_in(calendar_->window());
}

void Walker::note_dialog(QWidget& dialog) {
    if (noted_dialog_ == &dialog)
        return;
    noted_dialog_ = &dialog;
    hand_.tell("  " + dialog.windowTitle().toStdString() + " opens");
    ++dialogs[dialog.metaObject()->className() + (" " + dialog.windowTitle().toStdString())];
    const auto* box = qobject_cast<QMessageBox*>(&dialog);
    if (box)
        hand_.tell("  " + box->text().toStdString());
    if (box && box->windowTitle().endsWith(" error"))
        ++failure_boxes[box->text().section('\n', 0, 1).toStdString()];
}

void Walker::act_in_window() {
    ui::frmMain& window = calendar_->window();
    if (window.isMinimized()) {
        window.showNormal();
        return;
    }
    const auto* grid = window.findChild<ui::GridWidget*>("msgSched");
    QWidget& view = *grid->viewport();
    const int act = hand_.pick(100);
    if (act < 18) {
        select_in_grid();
    } else if (act < 42) {
        drag_in_grid();
    } else if (act < 54) {
        hand_.double_click(view, place_in_grid());
    } else if (act < 70) {
        hand_.press(view, place_in_grid(), Qt::RightButton);
    } else if (act < 74) {
        hand_.wheel(view, place_in_grid());
    } else if (act < 86) {
        hand_.some_key();
    } else if (act < 94) {
        hand_.click_some_part(*window.findChild<QWidget*>("picBar"));
    } else if (act < 97) {
        hand_.click_some_part(*window.findChild<QWidget*>("mnuMain"));
    } else if (act < 99) {
        hand_.act_in(window);
    } else {
        window.resize(300 + hand_.pick(1100), 200 + hand_.pick(700));
    }
}

QPoint Walker::place_in_grid() {
    const auto* grid = calendar_->window().findChild<ui::GridWidget*>("msgSched");
    const QPoint place =
        hand_.in_so_many_of_100(50) ? place_of_activity() : hand_.place_in(grid->viewport()->rect());
    if (const auto [row, col] = grid->cell_at(place); row >= 0 && col >= 0) {
        const grid::clsMsgSchedCell& cell = calendar_->window().calendar().grid.layout.Cells(row, col);
        hand_.tell("  cell " + std::to_string(row) + "," + std::to_string(col) + " activity '" +
                   cell.ActivityID() + "' continues '" + cell.DependsOnActivity() + "' text '" +
                   std::string(cell.Text()) + "'");
    }
    return place;
}

// In one of the cells in sight that show something, if there is one.
QPoint Walker::place_of_activity() {
    const auto* grid = calendar_->window().findChild<ui::GridWidget*>("msgSched");
    const table::GridModel& model = grid->model();
    const QRect seen = grid->viewport()->rect();
    QList<QRect> filled;
    for (int row = model.FixedRows(); row < model.Rows(); ++row)
        for (int col = model.FixedCols(); col < model.Cols(); ++col)
            if (!model.TextMatrix(row, col).empty())
                if (const QRect cell = grid->cell_rect(row, col) & seen; !cell.isEmpty())
                    filled << cell;
    return hand_.place_in(filled.isEmpty() ? seen : filled[hand_.pick(static_cast<int>(filled.size()))]);
}

void Walker::select_in_grid() {
    QPointer<QWidget> view = calendar_->window().findChild<ui::GridWidget*>("msgSched")->viewport();
    const Qt::KeyboardModifiers held = hand_.some_modifiers();
    hand_.press(*view, place_in_grid(), Qt::LeftButton, held);
    for (int moves = hand_.pick(3); moves > 0 && view; --moves)
        hand_.move(*view, place_in_grid());
    if (view)
        hand_.release(*view, place_in_grid(), Qt::LeftButton, held);
}

void Walker::drag_in_grid() {
    QPointer<QWidget> view = calendar_->window().findChild<ui::GridWidget*>("msgSched")->viewport();
    hand_.press(*view, place_of_activity(), Qt::LeftButton, Qt::ControlModifier);
    for (int moves = hand_.pick(3); moves > 0 && view; --moves)
        hand_.move(*view, place_in_grid());
    if (hand_.in_so_many_of_100(8))
        hand_.some_key();
    if (hand_.in_so_many_of_100(4))
        return; // the button stays down
    if (view)
        hand_.release(*view, place_in_grid(), Qt::LeftButton, Qt::ControlModifier);
}

} // namespace walk
