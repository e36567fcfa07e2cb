#pragma once

#include "core/settings/per_user_store.h"
#include "core/shell/main_window.h"

namespace shell {

// Gives the window the place that is stored, and the size unless it is too small to be one. Without stored values
// the window stands in the middle of the screen, half as wide and high. Fails with 13 when a value is no number.
void restore_geometry(MainWindow& window, const settings::PerUserStore& store);

// Stores the window's state, place and size.
void store_geometry(const MainWindow& window, settings::PerUserStore& store);

} // namespace shell
