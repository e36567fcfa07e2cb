#include "desk/windows/contact_chooser.h"

#include "desk/windows/contact_picker.h"
#include "desk/windows/conversions.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <algorithm>

namespace windows {

ContactChooser::ContactChooser(QWidget* parent)
    : QWidget(parent), list_(new QListWidget(this)), remove_button_(new QPushButton(tr("Re&move"), this)) {
    auto* add_button = new QPushButton(tr("Add &Contacts..."), this);
    list_->setObjectName("contacts_list");
    list_->setAccessibleName(tr("Contacts of the activity"));
    list_->setMinimumHeight(list_->fontMetrics().height() * 4);
    list_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    add_button->setObjectName("add_contacts_button");
    add_button->setAccessibleName(tr("Add contacts"));
    remove_button_->setObjectName("remove_contact_button");
    remove_button_->setAccessibleName(tr("Remove the contact"));
    auto* columns = new QHBoxLayout(this);
    auto* buttons = new QVBoxLayout;
    columns->setContentsMargins(0, 0, 0, 0);
    columns->addWidget(list_, 1);
    columns->addLayout(buttons);
    buttons->addWidget(add_button);
    buttons->addWidget(remove_button_);
    buttons->addStretch();
    setFocusProxy(list_);
    setTabOrder(list_, add_button);
    setTabOrder(add_button, remove_button_);
    connect(add_button, &QPushButton::clicked, this, &ContactChooser::pick);
    connect(remove_button_, &QPushButton::clicked, this, [this] { delete list_->currentItem(); });
    connect(list_, &QListWidget::currentRowChanged, this,
            [this](int row) { remove_button_->setEnabled(row >= 0); });
    remove_button_->setEnabled(false);
}

void ContactChooser::show_contacts(const std::vector<std::string>& contacts, const model::Directory& directory) {
    directory_ = directory;
    list_->clear();
    for (const std::string& contact : contacts)
        add(contact);
}

std::vector<std::string> ContactChooser::contacts() const {
    std::vector<std::string> ids;
    ids.reserve(static_cast<std::size_t>(list_->count()));
    for (int row = 0; row < list_->count(); ++row)
        ids.push_back(stored(list_->item(row)->data(Qt::UserRole).toString()));
    return ids;
}

void ContactChooser::add(const std::string& contact) {
    const auto present = contacts();
    if (std::find(present.begin(), present.end(), contact) != present.end())
        return;
    auto* item = new QListWidgetItem(shown(directory_.contact_name(contact)), list_);
    item->setData(Qt::UserRole, shown(contact));
}

void ContactChooser::pick() {
    ContactPicker picker(directory_, this);
    if (picker.exec() == QDialog::Accepted)
        for (const std::string& contact : picker.picked())
            add(contact);
}

} // namespace windows
