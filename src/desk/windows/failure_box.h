#pragma once

#include <QWidget>

#include <functional>

namespace windows {

// Runs what the user asked for. A failure ends in a box with its sentence, and the result is then false.
bool attempt(QWidget* window, const std::function<void()>& work);

} // namespace windows
