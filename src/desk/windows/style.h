#pragma once

#include <QApplication>

namespace windows {

// The light look of the desk, the same on every desktop.
void dress(QApplication& application);

} // namespace windows
