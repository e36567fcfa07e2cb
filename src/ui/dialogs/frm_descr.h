#pragma once

#include "core/host/guard.h"
#include "core/host/shell.h"

#include <QDialog>

#include <memory>
#include <string>

namespace Ui {
class frmDescr;
}

namespace ui {

// Asks for the description of a new holiday. OK takes a text only, and hands it over.
class frmDescr : public QDialog {
public:
    frmDescr(std::string& sDescr, host::Shell& shell, const host::Guard& guarded, QWidget* parent);
    ~frmDescr() override;

private:
    void cmdOK_Click();
    void cmdCancel_Click();

    std::string& sDescr_;
    host::Shell& shell_;
    const host::Guard& guarded_;
    std::unique_ptr<Ui::frmDescr> controls_;
};

} // namespace ui
