#pragma once

#include <QWidget>

#include <functional>

namespace windows {

// Told by a task how far it has come, from 0 to 1. False asks the task to end.
using Progress = std::function<bool(double part)>;

// Runs a task on a thread of its own and comes back when it has ended; what it throws is thrown here. Meanwhile
// the windows are painted and other programs answered. When it takes longer, a box over the window shows how far
// it is and can cancel it; no other window takes input then. False when the task ended by a failure after it was
// cancelled, or after the program was told to end.
bool run_long_task(QWidget* window, const QString& title, const std::function<void(const Progress&)>& task);

} // namespace windows
