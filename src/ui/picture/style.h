#pragma once

#include "core/table/grid_model.h"

#include <QColor>

namespace picture {

// Twips in a pixel of a screen of 96 dots to the inch; Qt's scale factor comes on top.
inline constexpr int twips_per_pixel = 15;
constexpr int twips_from_pixels(int pixels) { return pixels * twips_per_pixel; }
// The nearest whole pixel.
constexpr int pixels_from_twips(int twips) { return qRound(static_cast<double>(twips) / twips_per_pixel); }

// How the grid looks. Its colours are its own and don't follow a dark theme, since the colours of the cells are
// chosen by the user for a white ground.
namespace style {
inline constexpr int padding_x = 5; // between a cell's edge and what it shows, in pixels
inline constexpr int padding_y = 4;
inline constexpr int picture_gap = 4; // between a picture and the text
inline constexpr int largest_picture = 32;
inline constexpr int picture_room = 16 + picture_gap; // what a picture as shipped takes
inline constexpr int frame_width = 2;                 // around the current cell

inline constexpr QColor ground{0xff, 0xff, 0xff};
inline constexpr QColor beyond{0xf4, 0xf5, 0xf7}; // after the last row and column
inline constexpr QColor text{0x1a, 0x20, 0x2c};
inline constexpr QColor title{0xe9, 0xed, 0xf2};
inline constexpr QColor line{0x1a, 0x20, 0x2c};
inline constexpr int line_percent = 14;       // of its colour in the ground that it stands on
inline constexpr int title_line_percent = 40; // at the end of the titles
inline constexpr QColor accent{0x1b, 0x66, 0xb8};
inline constexpr QColor frame_without_focus{0x7b, 0x86, 0x94};
inline constexpr QColor selection{0xa9, 0xcd, 0xf3};
inline constexpr int selection_percent = 70; // of its colour in the ground of a selected cell
} // namespace style

// The model's colour on the screen, or what stands for one that is not set.
inline QColor screen_colour(table::Colour colour, const QColor& otherwise) {
    if (colour == table::default_colour)
        return otherwise;
    return QColor(colour & 0xff, (colour >> 8) & 0xff, (colour >> 16) & 0xff);
}

inline QColor mixed(const QColor& ground, const QColor& over, int percent) {
    const auto part = [percent](int a, int b) { return (a * (100 - percent) + b * percent) / 100; };
    return QColor(part(ground.red(), over.red()), part(ground.green(), over.green()),
                  part(ground.blue(), over.blue()));
}

} // namespace picture
