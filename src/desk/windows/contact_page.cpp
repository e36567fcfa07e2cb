#include "desk/windows/contact_page.h"

#include "desk/model/refusal.h"
#include "desk/store/contact_fields.h"
#include "desk/windows/activity_list.h"
#include "desk/windows/boxes.h"
#include "desk/windows/conversions.h"
#include "desk/windows/groups_tab.h"
#include "desk/windows/notes_tab.h"
#include "ui_contact_page.h"

#include <utility>

namespace windows {
namespace {

QString heading_of(const store::Contact& contact) {
    QStringList parts;
    for (const int number : {store::contact_field::name, store::contact_field::company})
        if (const std::string text = model::field_of(contact, number); !text.empty())
            parts << shown(text);
    return parts.join(QStringLiteral(", "));
}

} // namespace

ContactPage::ContactPage(OpenDatabase& database, Lookup& lookup, QWidget* parent)
    : QWidget(parent), database_(database), lookup_(lookup), ui_(std::make_unique<Ui::ContactPage>()) {
    ui_->setupUi(this);
    ui_->previous_button->setIcon(QIcon(":/desk/previous.svg"));
    ui_->next_button->setIcon(QIcon(":/desk/next.svg"));
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.4);
    large.setBold(true);
    ui_->name_label->setFont(large);
    form_ = new ContactForm(*ui_->fields_grid, this);
    activities_ = new ActivityList(database, ActivityList::Scope::contact);
    notes_ = new NotesTab(database);
    groups_ = new GroupsTab(database);
    ui_->tabs->addTab(activities_, tr("Act&ivities"));
    ui_->tabs->addTab(notes_, tr("N&otes"));
    ui_->tabs->addTab(groups_, tr("&Groups"));
    activities_->setObjectName("Activities");
    notes_->setObjectName("Notes");
    groups_->setObjectName("Groups");
    connect_parts();
    show_current();
}

ContactPage::~ContactPage() = default;

void ContactPage::connect_parts() {
    lookup_.before_leaving = [this] { save(); };
    connect(&lookup_, &Lookup::current_changed, this, [this] { attempt(window(), [this] { show_current(); }); });
    connect(&lookup_, &Lookup::changed, this, &ContactPage::show_heading);
    connect(&database_, &OpenDatabase::changed, this, [this] { attempt(window(), [this] { show_again(); }); });
    connect(form_, &ContactForm::edited, this, &ContactPage::show_heading);
    connect(ui_->save_button, &QPushButton::clicked, this, [this] { attempt(window(), [this] { save(); }); });
    connect(ui_->undo_button, &QPushButton::clicked, this, [this] { attempt(window(), [this] { undo(); }); });
    connect(ui_->previous_button, &QToolButton::clicked, this,
            [this] { attempt(window(), [this] { lookup_.step(-1); }); });
    connect(ui_->next_button, &QToolButton::clicked, this,
            [this] { attempt(window(), [this] { lookup_.step(+1); }); });
}

std::string ContactPage::active_tab() const { return stored(ui_->tabs->currentWidget()->objectName()); }

void ContactPage::set_active_tab(const std::string& name) {
    for (int tab = 0; tab < ui_->tabs->count(); ++tab)
        if (stored(ui_->tabs->widget(tab)->objectName()) == name) {
            ui_->tabs->setCurrentIndex(tab);
            return;
        }
    model::refuse("The contact page has no tab \"" + name + "\".");
}

void ContactPage::begin_new() {
    save();
    is_new_ = true;
    show_contact({});
    form_->focus_first();
}

void ContactPage::focus_first_field() { form_->focus_first(); }

void ContactPage::save() {
    notes_->save_draft();
    if (!form_->is_changed()) {
        if (is_new_)
            undo();
        return;
    }
    store::Contact contact = form_->contact();
    if (is_new_)
        contact.id = database_.store().add(contact);
    else
        database_.store().update(contact);
    const bool was_new = std::exchange(is_new_, false);
    show_contact(*database_.store().contact(contact.id));
    database_.refresh();
    if (was_new)
        lookup_.include(contact.id);
}

void ContactPage::undo() {
    is_new_ = false;
    show_current();
}

void ContactPage::show_current() {
    is_new_ = false;
    const store::Contact* contact = database_.directory().contact(lookup_.current());
    show_contact(contact ? *contact : store::Contact());
}

void ContactPage::show_again() {
    if (is_new_ || form_->is_changed())
        show_heading();
    else
        show_current();
}

void ContactPage::show_contact(const store::Contact& contact) {
    form_->show_contact(contact);
    if (contact.id != activities_->contact())
        activities_->show_contact(contact.id);
    notes_->show_contact(contact.id);
    groups_->show_contact(contact.id);
    show_heading();
}

void ContactPage::show_heading() {
    const store::Contact contact = form_->contact();
    const bool is_somebody = is_new_ || !contact.id.empty();
    const QString name = heading_of(contact);
    ui_->name_label->setText(!is_somebody ? tr("No contact") : name.isEmpty() ? tr("New contact") : name);
    const int count = static_cast<int>(lookup_.contacts().size());
    const int position = lookup_.position();
    ui_->position_label->setText(is_new_ || !is_somebody ? QString()
                                 : position < 0          ? tr("outside the lookup")
                                                         : tr("%1 of %2").arg(position + 1).arg(count));
    ui_->previous_button->setEnabled(position > 0);
    ui_->next_button->setEnabled(count > 0 && position < count - 1);
    const bool is_writable = database_.is_open() && !database_.store().is_read_only();
    form_->set_enabled(is_somebody && is_writable);
    ui_->save_button->setEnabled(form_->is_changed());
    ui_->undo_button->setEnabled(is_new_ || form_->is_changed());
}

} // namespace windows
