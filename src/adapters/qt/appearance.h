#pragma once

class QApplication;

namespace qt {

// The light look of the programs' windows, the same on every desktop.
void dress(QApplication& application);

} // namespace qt
