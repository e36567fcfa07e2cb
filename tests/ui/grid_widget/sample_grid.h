#pragma once

#include "core/table/grid_model.h"
#include "ui/grid_widget/grid_widget.h"

#include <QImage>
#include <QTest>

#include <memory>
#include <string>

// A model of 40 rows and 8 columns, of which one row and two columns are titles. Columns are 100 pixels wide, rows
// 40 high, the title row 20.
inline table::GridModel sample_model() {
    table::GridModel model;
    model.Rows(40);
    model.Cols(8);
    model.FixedCols(2);
    for (int row = 1; row < model.Rows(); ++row)
        model.RowHeight(row, 600);
    for (int col = 0; col < model.Cols(); ++col)
        model.ColWidth(col, 1500);
    model.Row(1);
    model.Col(2);
    return model;
}

inline void write(table::GridModel& model, int row, int col, const std::string& text) {
    const int row_before = model.Row(), col_before = model.Col();
    model.Row(row);
    model.Col(col);
    model.Text(text);
    model.Row(row_before);
    model.Col(col_before);
}

// The model in a window of 640 by 400 pixels, shown and with the focus.
struct ShownGrid {
    table::GridModel model = sample_model();
    std::unique_ptr<ui::GridWidget> widget = std::make_unique<ui::GridWidget>(model);

    ShownGrid() { show(); }
    void show() const {
        widget->resize(640, 400);
        widget->show();
        widget->activateWindow();
        widget->setFocus();
        settle();
    }
    QWidget* view() const { return widget->viewport(); }
    static void settle() { QCoreApplication::processEvents(); }
    QPoint middle_of(int row, int col) const { return widget->cell_rect(row, col).center(); }
    void press_key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
        QTest::keyClick(widget.get(), key, modifiers);
    }
    // Moves the pointer with the left button down.
    void draw_to(QPoint place) const {
        QMouseEvent move(QEvent::MouseMove, place, view()->mapToGlobal(place), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QCoreApplication::sendEvent(view(), &move);
    }
    QImage picture() const {
        QImage image(view()->size(), QImage::Format_RGB32);
        view()->render(&image);
        return image;
    }
    std::string selection() const {
        return std::to_string(model.Row()) + "," + std::to_string(model.Col()) + " to " +
               std::to_string(model.RowSel()) + "," + std::to_string(model.ColSel());
    }
};
