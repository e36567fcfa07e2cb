#pragma once

#include "core/host/platform.h"

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
    frmDescr(const host::Platform& here, std::string& sDescr, QWidget* parent);
    ~frmDescr() override;

private:
    void cmdOK_Click();
    void cmdCancel_Click();

    const host::Platform& here_;
    std::string& sDescr_;
    std::unique_ptr<Ui::frmDescr> controls_;
};

} // namespace ui
