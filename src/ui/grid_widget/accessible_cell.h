#pragma once

#include "ui/grid_widget/grid_widget.h"

#include <QAccessible>
#include <QAccessibleTableCellInterface>
#include <QPointer>

namespace ui {

// One cell of the grid as screen readers see it. Its name is its text.
class AccessibleCell : public QAccessibleInterface, public QAccessibleTableCellInterface {
public:
    AccessibleCell(GridWidget& widget, int row, int col) : widget_(&widget), row_(row), col_(col) {}

    bool isValid() const override;
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    bool isSelected() const override;
    QList<QAccessibleInterface*> columnHeaderCells() const override;
    QList<QAccessibleInterface*> rowHeaderCells() const override;
    int columnIndex() const override { return col_; }
    int rowIndex() const override { return row_; }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface* table() const override { return parent(); }

private:
    const table::GridModel& model() const { return widget_->model(); }
    QAccessibleInterface* cell_at(int row, int col) const;

    QPointer<GridWidget> widget_;
    int row_, col_;
};

// What a cell's text says: without the blanks that make room for its picture.
QString spoken_text(const table::GridModel& model, int row, int col);
// The row whose title stands for the row: the nearest one at or above it with a text in that column.
int titled_row(const table::GridModel& model, int row, int col);

} // namespace ui
