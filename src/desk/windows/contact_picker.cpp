#include "desk/windows/contact_picker.h"

#include "desk/store/contact_fields.h"
#include "desk/windows/conversions.h"
#include "desk/windows/rows.h"
#include "ui_contact_picker.h"

#include <QPushButton>

namespace windows {
namespace {

bool is_found(const store::Contact& contact, const QString& text) {
    for (const int field : {store::contact_field::name, store::contact_field::company})
        if (shown(model::field_of(contact, field)).contains(text, Qt::CaseInsensitive))
            return true;
    return false;
}

} // namespace

ContactPicker::ContactPicker(const model::Directory& directory, QWidget* parent)
    : QDialog(parent), directory_(directory), ui_(std::make_unique<Ui::ContactPicker>()) {
    ui_->setupUi(this);
    ui_->contact_table->set_columns(contact_columns(), 0);
    connect(ui_->search_edit, &QLineEdit::textChanged, this, &ContactPicker::show_found);
    connect(ui_->contact_table, &RecordTable::opened, this, &ContactPicker::accept);
    connect(ui_->contact_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &ContactPicker::show_button);
    show_found();
}

ContactPicker::~ContactPicker() = default;

std::vector<std::string> ContactPicker::picked() const { return ui_->contact_table->selected_ids(); }

void ContactPicker::show_found() {
    std::vector<std::string> found;
    for (const store::Contact& contact : directory_.contacts())
        if (is_found(contact, ui_->search_edit->text().trimmed()))
            found.push_back(contact.id);
    ui_->contact_table->show_rows(contact_rows(found, directory_));
    show_button();
}

void ContactPicker::show_button() { ui_->buttons->button(QDialogButtonBox::Ok)->setEnabled(!picked().empty()); }

} // namespace windows
