#include "desk/windows/contact_list.h"

#include "desk/windows/boxes.h"
#include "desk/windows/record_table.h"
#include "desk/windows/rows.h"

#include <QVBoxLayout>

namespace windows {

ContactList::ContactList(OpenDatabase& database, Lookup& lookup, QWidget* parent)
    : QWidget(parent), database_(database), lookup_(lookup), table_(new RecordTable(this)) {
    table_->setObjectName("contact_table");
    table_->setAccessibleName(tr("Contacts"));
    table_->set_columns(contact_columns(), 0);
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(table_);
    connect(&lookup, &Lookup::changed, this, &ContactList::reload);
    connect(&lookup, &Lookup::current_changed, this, [this] { table_->select(lookup_.current()); });
    connect(table_, &RecordTable::chosen, this, &ContactList::follow);
    connect(table_, &RecordTable::opened, this, &ContactList::opened);
    reload();
}

void ContactList::reload() {
    table_->show_rows(contact_rows(lookup_.contacts(), database_.directory()));
    table_->select(lookup_.current());
}

// When the page can't leave its contact, the table goes back to it.
void ContactList::follow(const std::string& contact) {
    if (contact.empty() || contact == lookup_.current() || attempt(window(), [&] { lookup_.go_to(contact); }))
        return;
    table_->select(lookup_.current());
}

} // namespace windows
