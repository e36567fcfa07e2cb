#pragma once

#include <QWidget>

#include <functional>

// Message boxes. Their texts are plain: what stands in a file or a record isn't taken for markup.
namespace windows {

// Runs what the user asked for. A failure ends in a box with its sentence, and the result is then false.
bool attempt(QWidget* window, const std::function<void()>& work);

void tell(QWidget* window, const QString& title, const QString& text);

// False also when the box is closed in another way.
bool confirm(QWidget* window, const QString& title, const QString& question);

} // namespace windows
