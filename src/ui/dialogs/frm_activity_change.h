#pragma once

#include "core/interaction/activity_change.h"

#include <QDialog>

namespace ui {

// Asks whether one occurrence of a series is meant or all of them.
class frmActivityChange : public QDialog {
public:
    frmActivityChange(const QString& title, QWidget* parent);

    using Response = interaction::ActivityChange::Response;
    // Waits for the answer. Closing the dialog counts as cancel.
    Response ask();

private:
    Response iResponse_ = Response::cancel;
};

} // namespace ui
