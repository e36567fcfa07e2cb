#include "ui/grid_widget/accessible_grid.h"

#include "core/table/selected_cells.h"
#include "ui/grid_widget/accessible_cell.h"
#include "ui/grid_widget/grid_widget.h"

#include <QAccessibleTableInterface>
#include <QAccessibleWidget>
#include <QHash>
#include <QRegion>

#include <numeric>
#include <utility>

namespace ui {

namespace {

QList<int> lines(const table::LineRange& range) {
    QList<int> all(range.count());
    std::iota(all.begin(), all.end(), range.first);
    return all;
}

// The grid as a table. Its rows and columns are the model's, so those of the titles are the first ones. Cells come
// to be when they are asked for.
class AccessibleGrid : public QAccessibleWidget, public QAccessibleTableInterface {
public:
    explicit AccessibleGrid(GridWidget& widget)
        : QAccessibleWidget(&widget, QAccessible::Table), widget_(widget) {}
    ~AccessibleGrid() override { forget_cells(); }

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface*>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }

    int childCount() const override { return rowCount() * columnCount(); }
    QAccessibleInterface* child(int index) const override {
        return index < 0 || index >= childCount() ? nullptr : cellAt(index / columnCount(), index % columnCount());
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        const auto* cell = dynamic_cast<const AccessibleCell*>(child);
        return cell && cell->isValid() && cell->parent() == this
                   ? cell->rowIndex() * columnCount() + cell->columnIndex()
                   : -1;
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        const QPoint place = widget_.viewport()->mapFromGlobal(QPoint(x, y));
        const auto [row, col] = widget_.cell_at(place);
        return widget_.viewport()->rect().contains(place) ? cellAt(row, col) : nullptr;
    }
    QAccessibleInterface* focusChild() const override {
        return widget_.hasFocus() ? cellAt(model().Row(), model().Col()) : nullptr;
    }

    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    int rowCount() const override { return model().Rows(); }
    int columnCount() const override { return model().Cols(); }

    QAccessibleInterface* cellAt(int row, int col) const override {
        if (!holds(row, col))
            return nullptr;
        const auto known = cells_.constFind({row, col});
        if (known != cells_.constEnd())
            return QAccessible::accessibleInterface(*known);
        auto* made = new AccessibleCell(widget_, row, col);
        cells_.insert({row, col}, QAccessible::registerAccessibleInterface(made));
        return made;
    }

    QString columnDescription(int col) const override {
        return holds(0, col) && model().FixedRows() > 0 ? spoken_text(model(), 0, col) : QString();
    }
    QString rowDescription(int row) const override {
        QStringList titles;
        for (int col = 0; holds(row, col) && row >= model().FixedRows() && col < model().FixedCols(); ++col)
            titles.append(spoken_text(model(), titled_row(model(), row, col), col));
        titles.removeAll(QString());
        return titles.join(QLatin1Char(' '));
    }

    int selectedCellCount() const override { return table::selected_cells(model()).count(); }
    QList<QAccessibleInterface*> selectedCells() const override {
        QList<QAccessibleInterface*> cells;
        const table::CellRange selected = table::selected_cells(model());
        for (const int row : lines(selected.rows))
            for (const int col : lines(selected.cols))
                cells.append(cellAt(row, col));
        return cells;
    }
    // A row or column counts as selected when all of it but its titles is.
    QList<int> selectedRows() const override {
        const auto [rows, cols] = table::selected_cells(model());
        const bool from_end_to_end = cols.first <= model().FixedCols() && cols.last == columnCount() - 1;
        return from_end_to_end ? lines(rows) : QList<int>();
    }
    QList<int> selectedColumns() const override {
        const auto [rows, cols] = table::selected_cells(model());
        const bool from_end_to_end = rows.first <= model().FixedRows() && rows.last == rowCount() - 1;
        return from_end_to_end ? lines(cols) : QList<int>();
    }
    int selectedRowCount() const override { return static_cast<int>(selectedRows().size()); }
    int selectedColumnCount() const override { return static_cast<int>(selectedColumns().size()); }
    bool isRowSelected(int row) const override { return selectedRows().contains(row); }
    bool isColumnSelected(int col) const override { return selectedColumns().contains(col); }

    // What is selected decides what commands work on, so only the user selects, with mouse and keys.
    bool selectRow(int) override { return false; }
    bool selectColumn(int) override { return false; }
    bool unselectRow(int) override { return false; }
    bool unselectColumn(int) override { return false; }

    void modelChange(QAccessibleTableModelChangeEvent* event) override {
        if (event->modelChangeType() == QAccessibleTableModelChangeEvent::ModelReset)
            forget_cells();
    }

private:
    const table::GridModel& model() const { return widget_.model(); }
    bool holds(int row, int col) const { return model().rows().holds(row) && model().columns().holds(col); }
    void forget_cells() {
        for (const QAccessible::Id id : std::as_const(cells_))
            QAccessible::deleteAccessibleInterface(id);
        cells_.clear();
    }

    GridWidget& widget_;
    mutable QHash<std::pair<int, int>, QAccessible::Id> cells_;
};

constexpr int most_cells_told = 20; // one by one; a selection that changes by more is told as a whole

int cell_count(const QRegion& region) {
    return std::accumulate(region.begin(), region.end(), 0,
                           [](int count, const QRect& part) { return count + part.width() * part.height(); });
}

// Columns as x and rows as y, so that ranges can be taken from each other.
QRect area_of(const table::CellRange& cells) {
    return QRect(QPoint(cells.cols.first, cells.rows.first), QPoint(cells.cols.last, cells.rows.last));
}

void tell_selection(QAccessibleInterface& table, const table::CellRange& before, const table::CellRange& now,
                    const std::function<void(QAccessibleEvent*)>& tell) {
    const auto tell_of = [&](QAccessibleInterface* about, QAccessible::Event what) {
        QAccessibleEvent event(about, what);
        tell(&event);
    };
    const auto tell_of_cells = [&](const QRegion& cells, QAccessible::Event what) {
        for (const QRect& part : cells)
            for (int row = part.top(); row <= part.bottom(); ++row)
                for (int col = part.left(); col <= part.right(); ++col)
                    if (QAccessibleInterface* cell = table.tableInterface()->cellAt(row, col))
                        tell_of(cell, what);
    };
    const QRegion added = QRegion(area_of(now)) - area_of(before),
                  removed = QRegion(area_of(before)) - area_of(now);
    if (now.count() == 1) {
        tell_of_cells(area_of(now), QAccessible::Selection);
    } else if (cell_count(added) + cell_count(removed) > most_cells_told) {
        tell_of(&table, QAccessible::SelectionWithin);
    } else {
        tell_of_cells(removed, QAccessible::SelectionRemove);
        tell_of_cells(added, QAccessible::SelectionAdd);
    }
}

QAccessibleInterface* make_accessible(const QString&, QObject* object) {
    auto* widget = qobject_cast<GridWidget*>(object);
    return widget ? new AccessibleGrid(*widget) : nullptr;
}

} // namespace

void install_grid_accessibility() { QAccessible::installFactory(make_accessible); }

void tell_screen_readers(GridWidget& widget, const GridNews& news,
                         const std::function<void(QAccessibleEvent*)>& tell) {
    const table::GridModel& model = widget.model();
    if (news.size || news.cells) {
        QAccessibleTableModelChangeEvent event(&widget, news.size ? QAccessibleTableModelChangeEvent::ModelReset
                                                                  : QAccessibleTableModelChangeEvent::DataChanged);
        event.setFirstRow(0);
        event.setLastRow(model.Rows() - 1);
        event.setFirstColumn(0);
        event.setLastColumn(model.Cols() - 1);
        tell(&event);
    }
    QAccessibleInterface* table = QAccessible::queryAccessibleInterface(&widget);
    if (news.selection_before)
        tell_selection(*table, *news.selection_before, table::selected_cells(model), tell);
    if (news.focus && widget.hasFocus()) {
        QAccessibleEvent focus(table->tableInterface()->cellAt(model.Row(), model.Col()), QAccessible::Focus);
        tell(&focus);
    }
}

} // namespace ui
