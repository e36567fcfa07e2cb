#pragma once

#include "core/table/grid_model.h"
#include "ui/picture/view.h"

#include <QPoint>
#include <Qt>

#include <optional>

namespace ui {

// Rows and columns resized with the mouse, at the borders between their titles.
class LineSizer {
public:
    explicit LineSizer(table::GridModel& model) : model_(model) {}

    // The pointer for a place over the grid, if a press there would begin to resize.
    static std::optional<Qt::CursorShape> cursor_at(QPoint place, const picture::View& view);
    // Begins to resize when a border is there.
    bool begin(QPoint place, const picture::View& view);
    bool is_sizing() const { return line_ >= 0; }
    // Gives the line the size to which the pointer has been drawn. It doesn't get so small that it couldn't be
    // drawn back.
    void move_to(QPoint place);
    void end() { line_ = -1; }
    // Gives the line back the size that it had.
    void abandon();

    static constexpr int reach = 3;       // pixels to either side of a border
    static constexpr int least_size = 12; // pixels

private:
    enum class Kind { row, column };
    struct Border {
        Kind kind;
        int line;
    };
    static std::optional<Border> border_at(QPoint place, const picture::View& view);
    int along_axis(QPoint place) const { return kind_ == Kind::row ? place.y() : place.x(); }
    void set_size(int twips);

    table::GridModel& model_;
    Kind kind_ = Kind::row; // of the line that is sized
    int line_ = -1;
    int pressed_at_ = 0;  // pixels along the axis
    int size_before_ = 0; // twips
};

} // namespace ui
