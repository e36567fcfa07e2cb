// How long the user waits for a drop: from letting the mouse button go to the painted grid, with the activity
// stored so that a crash of the machine doesn't undo it. Beside it a full refresh, painted, and one durable write
// to a bare SQLite file in the same folder, of the same run. Each time is the median of eleven, with the least and
// the most.
//
// The drop is real mouse events on the real window over a database in a file; the desk beside it is none. An
// activity of the week is carried from day to day.

#include "benchmarks/bulk_database.h"
#include "benchmarks/times.h"
#include "support/half_real_server.h"
#include "support/platform_world.h"
#include "support/temporary_folder.h"
#include "ui/main_window/frm_main.h"

#include <QApplication>
#include <QMouseEvent>

#include <sqlite3.h>

#include <cstdio>
#include <cstdlib>
#include <stdexcept>

namespace {

const values::DateTime day = values::DateTime::of(2024, 5, 15);
constexpr int usual_size = 10'000;
constexpr double goal = 1.5; // of a refresh and a write
constexpr QSize window_size(1250, 800);

[[noreturn]] void give_up(const char* why) {
    std::fprintf(stderr, "%s; its time means nothing.\n", why);
    std::exit(1);
}

// A file with one row that is written durably, as the store writes: the least that any change costs on this disk.
class BareWrite {
public:
    explicit BareWrite(const std::string& file) {
        sqlite3_open(file.c_str(), &database_);
        run("PRAGMA journal_mode = WAL; PRAGMA synchronous = FULL; CREATE TABLE one (value INTEGER);"
            "INSERT INTO one VALUES (0)");
    }
    ~BareWrite() { sqlite3_close(database_); }
    void write() { run("BEGIN IMMEDIATE; UPDATE one SET value = value + 1; COMMIT"); }

private:
    void run(const char* sql) {
        if (sqlite3_exec(database_, sql, nullptr, nullptr, nullptr) != SQLITE_OK)
            throw std::runtime_error(sqlite3_errmsg(database_));
    }

    sqlite3* database_ = nullptr;
};

struct Cell {
    int row = 0, col = 0;
};

// The calendar's window over a database file, and what the user does in it.
class Desktop : private support::PlatformWorld {
public:
    explicit Desktop(const std::string& database) : server_(database), store_(store::Store::open(database)) {
        clock.time = day;
        window_.load();
        window_.resize(window_size);
        turn();
        grid_ = window_.findChild<ui::GridWidget*>("msgSched");
        find_activity();
    }

    // The work, and then the whole view painted by the event loop.
    template <typename Work>
    double until_painted(Work&& work) {
        turn();
        PaintWatch watch(*grid_->viewport());
        return bench::measured([&] {
            work();
            grid_->viewport()->update();
            while (!watch.painted)
                turn();
        });
    }

    void refresh() { window_.calendar().menu.mnuFullRefresh_Click(); }

    // From the cell where the activity stands to the same row of the next day but the last.
    double drop() {
        const Cell from = activity_cell();
        const grid::Layout& layout = window_.calendar().grid.layout;
        const int col = from.col + 1 < layout.FixedCols() + layout.NumDays() ? from.col + 1 : layout.FixedCols();
        const QPoint source = middle(from), target = middle({from.row, col});
        send(QEvent::MouseButtonPress, source, Qt::LeftButton, Qt::LeftButton);
        send(QEvent::MouseMove, target, Qt::NoButton, Qt::LeftButton);
        if (!grid_->is_dragging())
            give_up("The drag didn't begin");
        const auto before = store_->activity(id_)->start;
        const double time =
            until_painted([&] { send(QEvent::MouseButtonRelease, target, Qt::LeftButton, Qt::NoButton); });
        if (store_->activity(id_)->start == before || activity_cell().col != col || !box.shown.empty())
            give_up("The drop didn't move the activity");
        return time;
    }

private:
    struct PaintWatch : QObject {
        explicit PaintWatch(QObject& view) { view.installEventFilter(this); }
        bool eventFilter(QObject* view, QEvent* event) override {
            if (event->type() != QEvent::Paint)
                return false;
            view->removeEventFilter(this);
            view->event(event);
            painted = true;
            return true;
        }
        bool painted = false;
    };

    static void turn() {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
    void send(QEvent::Type type, QPoint place, Qt::MouseButton button, Qt::MouseButtons held) {
        QMouseEvent event(type, place, grid_->viewport()->mapToGlobal(place), button, held, Qt::ControlModifier);
        QCoreApplication::sendEvent(grid_->viewport(), &event);
    }
    QPoint middle(Cell cell) {
        grid_->make_visible(cell.row, cell.col);
        const QRect seen = grid_->cell_rect(cell.row, cell.col) & grid_->viewport()->rect();
        if (seen.isEmpty())
            give_up("A cell isn't in sight");
        return seen.center();
    }

    // The first plain activity in a row that is free on the other days.
    void find_activity() {
        const grid::Layout& layout = window_.calendar().grid.layout;
        for (int row = 1; row < layout.Cells.rows() && id_.empty(); ++row) {
            int occupied = 0;
            const grid::clsMsgSchedCell* found = nullptr;
            for (int col = layout.FixedCols(); col < layout.Cells.cols(); ++col) {
                const grid::clsMsgSchedCell& cell = layout.Cells(row, col);
                if (cell.IsOccupied() || !cell.DependsOnActivity().empty()) {
                    ++occupied;
                    found = &cell;
                }
            }
            if (occupied == 1 && !found->ActivityID().empty() && !found->Recurring() && !found->GoesBeyond())
                id_ = found->ActivityID();
        }
        if (id_.empty())
            give_up("The week holds no activity that can be moved freely");
    }
    Cell activity_cell() const {
        const grid::Layout& layout = window_.calendar().grid.layout;
        for (const grid::clsMsgSchedCell& cell : layout.Cells)
            if (cell.Initialized() && cell.IsOccupied() && cell.ActivityID() == id_)
                return {cell.Row(), cell.Col()};
        give_up("The activity isn't shown");
    }

    support::HalfRealServer server_;
    std::unique_ptr<store::Store> store_;
    mutable ui::frmMain window_{outside(server_)};
    ui::GridWidget* grid_ = nullptr;
    std::string id_;
};

void print(const char* what, const bench::Times& times) {
    std::printf("  %-12s %10.3f ms (%.3f..%.3f)\n", what, times.median(), times.least(), times.most());
}

} // namespace

// bench_drop [ACTIVITIES]
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const int activities = argc > 1 ? std::atoi(argv[1]) : usual_size;
    const support::TemporaryFolder folder;
    const std::string database = folder.file("bulk.desk");
    bench::fill_bulk(*store::Store::create(database), day, activities);

    Desktop desktop(database);
    BareWrite bare(folder.file("bare.db"));
    bench::Times refresh, write, drop;
    for (int run = 0; run <= bench::runs; ++run) {
        const double refreshed = desktop.until_painted([&] { desktop.refresh(); });
        const double written = bench::measured([&] { bare.write(); });
        const double dropped = desktop.drop();
        if (run == 0)
            continue; // it fills the caches
        refresh.add(refreshed);
        write.add(written);
        drop.add(dropped);
    }
    std::printf("%d activities\n", activities);
    print("full refresh", refresh);
    print("bare write", write);
    print("drop", drop);
    const double least = refresh.median() + write.median();
    std::printf("  the drop takes %.3f of a refresh and a write; the goal is at most %.1f\n",
                drop.median() / least, goal);
    return 0;
}
