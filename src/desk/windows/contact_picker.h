#pragma once

#include "desk/model/directory.h"

#include <QDialog>

#include <memory>
#include <string>
#include <vector>

namespace Ui {
class ContactPicker;
}

namespace windows {

// Lets the user choose one or more of all contacts.
class ContactPicker : public QDialog {
    Q_OBJECT

public:
    // The directory isn't changed while the dialog is open, or the dialog keeps showing what it was.
    ContactPicker(const model::Directory& directory, QWidget* parent);
    ~ContactPicker() override;

    std::vector<std::string> picked() const; // in the order of the table

private:
    void show_found();
    void show_button();

    const model::Directory directory_;
    std::unique_ptr<Ui::ContactPicker> ui_;
};

} // namespace windows
