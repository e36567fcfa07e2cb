#include "desk/windows/groups_view.h"

#include "desk/windows/boxes.h"
#include "desk/windows/contact_picker.h"
#include "desk/windows/conversions.h"
#include "desk/windows/membership.h"
#include "desk/windows/rows.h"
#include "ui_groups_view.h"

#include <QInputDialog>

namespace windows {

GroupsView::GroupsView(OpenDatabase& database, Lookup& lookup, QWidget* parent)
    : QWidget(parent), database_(database), lookup_(lookup), ui_(std::make_unique<Ui::GroupsView>()) {
    ui_->setupUi(this);
    ui_->group_table->set_columns(group_columns(), 0);
    ui_->member_table->set_columns(contact_columns(), 0);
    ui_->splitter->setStretchFactor(0, 1);
    ui_->splitter->setStretchFactor(1, 3);
    connect(ui_->group_table, &RecordTable::chosen, this, &GroupsView::show_members);
    connect(ui_->member_table, &RecordTable::chosen, this, &GroupsView::show_buttons);
    connect(ui_->member_table, &RecordTable::opened, this, &GroupsView::opened);
    connect(&database, &OpenDatabase::changed, this, &GroupsView::reload);
    connect_buttons();
    reload();
}

GroupsView::~GroupsView() = default;

void GroupsView::connect_buttons() {
    const auto on_click = [this](QPushButton* button, auto&& work) {
        connect(button, &QPushButton::clicked, this, [this, work] { attempt(window(), work); });
    };
    on_click(ui_->new_group_button, [this] { add_group(); });
    on_click(ui_->rename_group_button, [this] { rename_group(); });
    on_click(ui_->add_members_button, [this] { add_contacts(); });
    on_click(ui_->lookup_members_button, [this] { look_up(); });
    on_click(ui_->remove_member_button,
             [this] { remove_member(database_, group(), ui_->member_table->current_id()); });
}

std::string GroupsView::group() const { return ui_->group_table->current_id(); }

void GroupsView::reload() {
    ui_->group_table->show_rows(group_rows(database_.directory().groups()));
    if (group().empty())
        ui_->group_table->select(ui_->group_table->id_at(0));
    show_members();
}

void GroupsView::show_members() {
    const store::Group* chosen = database_.directory().group(group());
    ui_->member_table->show_rows(chosen ? contact_rows(chosen->contacts, database_.directory())
                                        : std::vector<Row>());
    show_buttons();
}

void GroupsView::show_buttons() {
    const bool is_group = !group().empty();
    const bool is_writable = database_.is_open() && !database_.store().is_read_only();
    ui_->new_group_button->setEnabled(is_writable);
    ui_->rename_group_button->setEnabled(is_writable && is_group);
    ui_->add_members_button->setEnabled(is_writable && is_group);
    ui_->lookup_members_button->setEnabled(is_group);
    ui_->remove_member_button->setEnabled(is_writable && !ui_->member_table->current_id().empty());
}

void GroupsView::add_group() {
    const QString name = QInputDialog::getText(this, tr("New Group"), tr("Name of the group:")).trimmed();
    if (name.isEmpty())
        return;
    const std::string id = database_.store().add(store::Group{.name = stored(name)});
    database_.refresh();
    ui_->group_table->select(id);
}

void GroupsView::rename_group() {
    auto record = database_.store().group(group());
    if (!record)
        return database_.refresh();
    const QString name = QInputDialog::getText(this, tr("Rename Group"), tr("Name of the group:"),
                                               QLineEdit::Normal, shown(record->name))
                             .trimmed();
    if (name.isEmpty() || name == shown(record->name).trimmed())
        return;
    record->name = stored(name);
    database_.store().update(*record);
    database_.refresh();
}

void GroupsView::add_contacts() {
    ContactPicker picker(database_.directory(), this);
    if (picker.exec() == QDialog::Accepted)
        add_members(database_, group(), picker.picked());
}

void GroupsView::look_up() {
    if (const store::Group* chosen = database_.directory().group(group())) {
        lookup_.show(chosen->contacts);
        emit looked_up();
    }
}

} // namespace windows
