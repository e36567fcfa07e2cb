#pragma once

#include <QDialog>

namespace ui {

// Asks whether one occurrence of a series is meant or all of them.
class frmActivityChange : public QDialog {
public:
    frmActivityChange(const QString& title, QWidget* parent);

    // Waits for the answer: 0 this instance, 1 all instances, 2 cancel, as which closing the dialog counts too.
    int ask();

private:
    int iResponse_ = 2;
};

} // namespace ui
