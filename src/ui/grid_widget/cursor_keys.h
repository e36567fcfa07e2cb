#pragma once

#include "core/table/grid_model.h"

#include <Qt>

namespace ui {

// Moves the current cell, or with Shift the far end of the selection, as a key says: arrows, Home, End, Page Up
// and Down, Ctrl with Home and End. It stays among the cells that are neither titles nor hidden. False for any
// other key.
bool move_cursor(table::GridModel& model, int key, Qt::KeyboardModifiers modifiers, int rows_in_page);

} // namespace ui
