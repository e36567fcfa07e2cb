#include "ui/dialogs/frm_activity_change.h"

#include "ui_frmActivityChange.h"

#include <array>

namespace ui {

frmActivityChange::frmActivityChange(const QString& title, QWidget* parent) : QDialog(parent) {
    Ui::frmActivityChange controls;
    controls.setupUi(this);
    setWindowTitle(title);
    const std::array cmdResponse{controls.cmdResponse_0, controls.cmdResponse_1, controls.cmdResponse_2};
    for (int index = 0; index < static_cast<int>(cmdResponse.size()); ++index)
        connect(cmdResponse[static_cast<std::size_t>(index)], &QPushButton::clicked, this, [this, index] {
            iResponse_ = index;
            accept();
        });
}

int frmActivityChange::ask() {
    exec();
    return iResponse_;
}

} // namespace ui
