#include "desk/windows/lookup_dialog.h"

#include "desk/store/contact_fields.h"
#include "desk/windows/boxes.h"
#include "desk/windows/conversions.h"
#include "ui_lookup_dialog.h"

#include <QPushButton>

namespace windows {

LookupDialog::LookupDialog(Lookup& lookup, QWidget* parent)
    : QDialog(parent), lookup_(lookup), ui_(std::make_unique<Ui::LookupDialog>()) {
    ui_->setupUi(this);
    auto* ok_button = ui_->buttons->button(QDialogButtonBox::Ok);
    ok_button->setEnabled(false);
    connect(ui_->text_edit, &QLineEdit::textChanged, this,
            [ok_button](const QString& text) { ok_button->setEnabled(!text.trimmed().isEmpty()); });
    ui_->text_edit->setFocus();
}

LookupDialog::~LookupDialog() = default;

void LookupDialog::accept() {
    const QString text = ui_->text_edit->text().trimmed();
    const auto found = lookup_.matching(stored(text), fields());
    if (found.empty()) {
        tell(this, windowTitle(), tr("No contact has \"%1\" in its name.").arg(text));
        return;
    }
    if (attempt(this, [&] { lookup_.show(found); }))
        QDialog::accept();
}

std::vector<int> LookupDialog::fields() const {
    const std::vector<int> choices[] = {{store::contact_field::name, store::contact_field::company},
                                        {store::contact_field::name},
                                        {store::contact_field::company}};
    return choices[ui_->where_box->currentIndex()];
}

} // namespace windows
