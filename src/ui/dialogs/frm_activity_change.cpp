#include "ui/dialogs/frm_activity_change.h"

#include "ui_frmActivityChange.h"

#include <utility>

namespace ui {

frmActivityChange::frmActivityChange(const QString& title, QWidget* parent) : QDialog(parent) {
    Ui::frmActivityChange controls;
    controls.setupUi(this);
    setWindowTitle(title);
    for (const auto& [cmdResponse, response] : {std::pair{controls.cmdResponse_0, Response::this_instance},
                                                std::pair{controls.cmdResponse_1, Response::all_instances},
                                                std::pair{controls.cmdResponse_2, Response::cancel}})
        connect(cmdResponse, &QPushButton::clicked, this, [this, response = response] {
            iResponse_ = response;
            accept();
        });
}

frmActivityChange::Response frmActivityChange::ask() {
    exec();
    return iResponse_;
}

} // namespace ui
