#include "desk/windows/groups_tab.h"

#include "desk/windows/boxes.h"
#include "desk/windows/conversions.h"
#include "desk/windows/membership.h"

#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

namespace windows {

GroupsTab::GroupsTab(OpenDatabase& database, QWidget* parent)
    : QWidget(parent), database_(database), list_(new QListWidget(this)) {
    list_->setObjectName("group_ticks");
    list_->setAccessibleName(tr("Groups of the contact"));
    list_->setAlternatingRowColors(true);
    list_->setSpacing(2);
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(list_);
    connect(list_, &QListWidget::itemChanged, this, [this](QListWidgetItem* item) {
        attempt(window(), [&] { take_tick(*item); });
        // The list says what is stored, after a failure too.
        QMetaObject::invokeMethod(this, &GroupsTab::reload, Qt::QueuedConnection);
    });
}

void GroupsTab::show_contact(const std::string& contact) {
    contact_ = contact;
    reload();
}

void GroupsTab::reload() {
    const QSignalBlocker no_ticks(list_);
    const int row = list_->currentRow();
    list_->clear();
    for (const store::Group& group : database_.directory().groups()) {
        auto* item = new QListWidgetItem(shown(group.name), list_);
        const bool is_member =
            std::find(group.contacts.begin(), group.contacts.end(), contact_) != group.contacts.end();
        item->setData(Qt::UserRole, shown(group.id));
        item->setCheckState(is_member ? Qt::Checked : Qt::Unchecked);
        item->setFlags(contact_.empty() || database_.store().is_read_only()
                           ? Qt::ItemIsSelectable
                           : Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    }
    list_->setCurrentRow(row);
}

void GroupsTab::take_tick(const QListWidgetItem& item) {
    const std::string group = stored(item.data(Qt::UserRole).toString());
    if (item.checkState() == Qt::Checked)
        add_members(database_, group, {contact_});
    else
        remove_member(database_, group, contact_);
}

} // namespace windows
