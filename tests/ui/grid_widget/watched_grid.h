#pragma once

#include "support/line_at.h"
#include "ui/grid_widget/sample_grid.h"

#include <vector>

struct Press {
    int button, shift, row, col;
    bool operator==(const Press&) const = default;
};

// The grid with a record of what it has told. A press is kept with the cell that its twips fall into.
struct WatchedGrid : ShownGrid {
    std::vector<Press> presses;
    std::vector<QPoint> drops, moves;
    int double_clicks = 0;
    bool drags = false; // begin a drag at a press

    WatchedGrid() {
        QObject::connect(widget.get(), &ui::GridWidget::mouse_pressed,
                         [this](int button, int shift, int x, int y) {
                             presses.push_back({button, shift, support::line_at(model.rows(), y),
                                                support::line_at(model.columns(), x)});
                             if (drags)
                                 widget->begin_drag();
                         });
        QObject::connect(widget.get(), &ui::GridWidget::double_clicked, [this] { ++double_clicks; });
        QObject::connect(widget.get(), &ui::GridWidget::dropped,
                         [this](int x, int y) { drops.emplace_back(x, y); });
        QObject::connect(widget.get(), &ui::GridWidget::drag_moved,
                         [this](int x, int y) { moves.emplace_back(x, y); });
    }
    void click(Qt::MouseButton button, QPoint place, Qt::KeyboardModifiers modifiers = {}) const {
        QTest::mouseClick(view(), button, modifiers, place);
    }
};
