#include "ui/dialogs/frm_descr.h"

#include "ui_frmDescr.h"

namespace ui {

frmDescr::frmDescr(const host::Platform& here, std::string& sDescr, QWidget* parent)
    : QDialog(parent), here_(here), sDescr_(sDescr), controls_(std::make_unique<Ui::frmDescr>()) {
    controls_->setupUi(this);
    connect(controls_->cmdOK, &QPushButton::clicked, this, [this] { cmdOK_Click(); });
    connect(controls_->cmdCancel, &QPushButton::clicked, this, [this] { cmdCancel_Click(); });
}

frmDescr::~frmDescr() = default;

void frmDescr::cmdOK_Click() {
    here_.guarded("in frmDescr: Sub cmdOK_Click - Line # ", [&](host::Step& step) {
        step = 10;
        const std::string text = controls_->txtDescr->text().toStdString();
        step = 20;
        if (text.empty()) {
            controls_->txtDescr->setFocus();
            here_.shell.beep();
            return;
        }
        step = 30;
        sDescr_ = text;
        accept();
    });
}

void frmDescr::cmdCancel_Click() {
    here_.guarded("in frmDescr: Sub cmdCancel_Click - Line # ", [&](host::Step& step) {
        step = 10;
        reject();
    });
}

} // namespace ui
