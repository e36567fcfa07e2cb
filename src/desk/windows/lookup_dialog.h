#pragma once

#include "desk/windows/lookup.h"

#include <QDialog>

#include <memory>

namespace Ui {
class LookupDialog;
}

namespace windows {

// Asks for a part of a name and makes the contacts that have it the lookup. Where nobody has it, it says so and
// stays open.
class LookupDialog : public QDialog {
    Q_OBJECT

public:
    LookupDialog(Lookup& lookup, QWidget* parent);
    ~LookupDialog() override;

    void accept() override;

private:
    std::vector<int> fields() const;

    Lookup& lookup_;
    std::unique_ptr<Ui::LookupDialog> ui_;
};

} // namespace windows
