// How long a page of the calendar's grid takes to paint, beside a QTableView that shows the same texts and
// colours.
#include "benchmarks/times.h"
#include "ui/grid_widget/grid_widget.h"
#include "ui/picture/style.h"

#include <QAbstractTableModel>
#include <QApplication>
#include <QHeaderView>
#include <QImage>
#include <QTableView>

#include <array>
#include <cstdio>
#include <optional>
#include <vector>

namespace {

constexpr int columns = 9;
constexpr int title_height = 390, row_height = 820, column_width = 2200; // twips
constexpr QSize page(1400, 900);

void fill(table::GridModel& model, int row_count) {
    static const std::array<const char*, 5> texts{
        "Jane Chan\rPhone: (212) 555-2485\rConfirm the meeting", "Ernst Anderson, Lunch",
        "Liz Dempsey, Discuss the annual maintenance contract and its renewal before the end of the quarter",
        "Sean Weathers\rFollow up on the proposal", "( Continued )"};
    static const std::array<table::Colour, 4> colours{0x000000, 0x00008b, 0x8b0000, 0x006400};
    model.Rows(row_count);
    model.Cols(columns);
    model.FixedCols(2);
    model.RowHeight(0, title_height);
    for (int row = 1; row < row_count; ++row)
        model.RowHeight(row, row_height);
    for (int col = 0; col < columns; ++col)
        model.ColWidth(col, column_width);
    for (int row = 0; row < row_count; ++row)
        for (int col = 0; col < columns; ++col) {
            model.Row(row);
            model.Col(col);
            const auto at = static_cast<std::size_t>(row * 5 + col * 3);
            // Every text of its own, as in a calendar.
            model.Text(texts[at % texts.size()] + std::string(" ") + std::to_string(row * columns + col));
            model.CellForeColor(colours[at % colours.size()]);
            model.CellBackColor(row / 4 % 2 == 0 ? 0xffffff : 0xc0e0ff);
        }
    model.Row(1);
    model.Col(2);
}

// The same cells for a QTableView, converted beforehand: its time is that of painting alone.
class TableModel : public QAbstractTableModel {
public:
    explicit TableModel(const table::GridModel& model) : rows_(model.Rows()) {
        for (int row = 0; row < model.Rows(); ++row)
            for (int col = 0; col < model.Cols(); ++col) {
                const table::GridCell& cell = model.cell(row, col);
                QString text = QString::fromStdString(cell.text);
                text.replace('\r', '\n');
                cells_.push_back({text, picture::screen_colour(cell.back_colour, Qt::white),
                                  picture::screen_colour(cell.fore_colour, Qt::black)});
            }
    }
    int rowCount(const QModelIndex& = {}) const override { return rows_; }
    int columnCount(const QModelIndex& = {}) const override { return columns; }
    QVariant data(const QModelIndex& index, int role) const override {
        const Cell& cell = cells_[static_cast<std::size_t>(index.row() * columns + index.column())];
        switch (role) {
        case Qt::DisplayRole:
            return cell.text;
        case Qt::BackgroundRole:
            return QBrush(cell.back);
        case Qt::ForegroundRole:
            return QBrush(cell.fore);
        case Qt::TextAlignmentRole:
            return static_cast<int>(Qt::AlignLeft | Qt::AlignTop);
        default:
            return {};
        }
    }

private:
    struct Cell {
        QString text;
        QColor back, fore;
    };
    int rows_;
    std::vector<Cell> cells_;
};

// One number of rows in both widgets.
struct Pages {
    explicit Pages(int row_count) : rows(row_count) {
        fill(model, row_count);
        grid.emplace(model);
        table_model.emplace(model);
        table.setModel(&*table_model);
        table.verticalHeader()->setDefaultSectionSize(row_height / picture::twips_per_pixel);
        table.horizontalHeader()->setDefaultSectionSize(column_width / picture::twips_per_pixel);
        table.verticalHeader()->hide();
        table.horizontalHeader()->hide();
        for (QWidget* widget : {static_cast<QWidget*>(&*grid), static_cast<QWidget*>(&table)}) {
            widget->resize(page);
            widget->show();
        }
    }

    int rows;
    table::GridModel model;
    std::optional<ui::GridWidget> grid;
    std::optional<TableModel> table_model;
    QTableView table;
};

// What is painted is the viewport: the page without scroll bars and frame.
double paint(const QAbstractScrollArea& area, QImage& image) {
    return bench::measured([&] { area.viewport()->render(&image); });
}

// All cases are measured by turns, so that whatever else the machine does falls on all of them.
void compare(Pages& short_one, Pages& long_one, qreal ratio) {
    QImage image(page * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    std::array<bench::Times, 2> grids, tables;
    for (int run = 0; run <= bench::runs; ++run)
        for (Pages* pages : {&short_one, &long_one}) {
            const std::size_t which = pages == &long_one ? 1 : 0;
            const double grid = paint(*pages->grid, image);
            const double table = paint(pages->table, image);
            if (run == 0)
                continue; // the first one fills the caches
            grids[which].add(grid);
            tables[which].add(table);
        }
    for (const std::size_t which : {0, 1}) {
        const bench::Times& grid = grids[which];
        const bench::Times& table = tables[which];
        std::printf("paint rows=%d cols=%d dpr=%.0f grid_ms=%.3f (%.3f..%.3f) tableview_ms=%.3f (%.3f..%.3f) "
                    "ratio=%.3f\n",
                    which == 0 ? short_one.rows : long_one.rows, columns, ratio, grid.median(), grid.least(),
                    grid.most(), table.median(), table.least(), table.most(), grid.median() / table.median());
    }
    std::printf("paint dpr=%.0f long_over_short=%.3f\n", ratio, grids[1].median() / grids[0].median());
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    Pages short_one(161), long_one(1601);
    QApplication::processEvents();
    for (const qreal ratio : {1.0, 2.0})
        compare(short_one, long_one, ratio);
    return 0;
}
