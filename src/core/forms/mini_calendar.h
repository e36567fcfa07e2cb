#pragma once

#include "core/settings/per_user_store.h"

namespace forms {

// The title strip that the mini calendar draws itself: the top of its client area, with a close box at the right
// end. In pixels.
namespace title_strip {

inline constexpr int height = 8;

struct Rectangle {
    int Left = 0, Top = 0, Right = 0, Bottom = 0; // right and bottom lie outside
    bool contains(int x, int y) const { return x >= Left && x < Right && y >= Top && y < Bottom; }
};
Rectangle close_box(int client_width);

enum class Press { ignored, drags, closes };
Press press(int button, int x, int y, const Rectangle& close_box); // button 1 is the left one

} // namespace title_strip

// Where the mini calendar was left, in twips. Fails with 13 when a stored value is no number.
struct MiniCalendarPlace {
    int top = 0, left = 0;
};
MiniCalendarPlace stored_mini_calendar_place(const settings::PerUserStore& store);
void store_mini_calendar_place(const MiniCalendarPlace& place, settings::PerUserStore& store);

} // namespace forms
