#include "ui/dialogs/frm_descr.h"

#include "ui_frmDescr.h"

namespace ui {

frmDescr::frmDescr(std::string& sDescr, host::Shell& shell, const host::Guard& guarded, QWidget* parent)
    : QDialog(parent), sDescr_(sDescr), shell_(shell), guarded_(guarded),
      controls_(std::make_unique<Ui::frmDescr>()) {
    controls_->setupUi(this);
    connect(controls_->cmdOK, &QPushButton::clicked, this, [this] { cmdOK_Click(); });
    connect(controls_->cmdCancel, &QPushButton::clicked, this, [this] { cmdCancel_Click(); });
}

frmDescr::~frmDescr() = default;

void frmDescr::cmdOK_Click() {
    guarded_("in frmDescr: Sub cmdOK_Click - Line # ", [&](host::Step& step) {
        step = 10;
        const std::string text = controls_->txtDescr->text().toStdString();
        step = 20;
        if (text.empty()) {
            controls_->txtDescr->setFocus();
            shell_.beep();
            return;
        }
        step = 30;
        sDescr_ = text;
        accept();
    });
}

void frmDescr::cmdCancel_Click() {
    guarded_("in frmDescr: Sub cmdCancel_Click - Line # ", [&](host::Step& step) {
        step = 10;
        reject();
    });
}

} // namespace ui
