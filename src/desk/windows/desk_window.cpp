#include "desk/windows/desk_window.h"

#include "desk/windows/activity_list.h"
#include "desk/windows/boxes.h"
#include "desk/windows/contact_list.h"
#include "desk/windows/contact_page.h"
#include "desk/windows/conversions.h"
#include "desk/windows/copy_command.h"
#include "desk/windows/groups_view.h"
#include "desk/windows/lookup_dialog.h"
#include "desk/windows/rows.h"
#include "ui_desk_window.h"

#include <QCloseEvent>
#include <QFileInfo>
#include <QMessageBox>
#include <QPointer>

#include <algorithm>
#include <utility>

namespace windows {
namespace {

constexpr int poll_milliseconds = 1000;
constexpr int put_back_milliseconds = 1000;

QIcon picture(const char* name) { return QIcon(QStringLiteral(":/desk/%1.svg").arg(QLatin1String(name))); }

model::ActivityFilter today_and_later() {
    model::ActivityFilter filter;
    filter.period = model::Period::future;
    return filter;
}

} // namespace

DeskWindow::DeskWindow(OpenDatabase& database, Exchange exchange)
    : database_(database), ui_(std::make_unique<Ui::DeskWindow>()), lookup_(database),
      activity_commands_(database, lookup_, *this), database_commands_(database, lookup_, *this),
      exchange_commands_(database, *this, std::move(exchange)), view_actions_(this),
      count_label_(new QLabel(this)) {
    ui_->setupUi(this);
    setWindowIcon(picture("contact_desk"));
    resize(size().boundedTo(screen()->availableSize()));
    build_views();
    connect_file_menu();
    connect_contact_menu();
    connect_schedule_menu();
    connect_view_menu();
    desk_ = std::make_unique<RunningDesk>(
        database_,
        RunningDesk::Shown{.lookup = lookup_,
                           .page = *contact_page_,
                           .come_to_contacts =
                               [this] {
                                   show_view(contact_list_);
                                   come_forward();
                               }},
        RunningDesk::Commands{.by_number = commands_, .on_activities = activity_commands_});
    fill_commands();
    connect(&database_, &OpenDatabase::opened, this, [this] { show_view(contact_list_); });
    connect(&database_, &OpenDatabase::closed, this, [this] { show_view(ui_->start_page); });
    connect(&database_, &OpenDatabase::changed, this, &DeskWindow::show_state);
    connect(&lookup_, &Lookup::changed, this, &DeskWindow::show_state);
    connect(&lookup_, &Lookup::current_changed, this, &DeskWindow::show_state);
    connect(&poll_, &QTimer::timeout, this, &DeskWindow::look_for_changes);
    poll_.start(poll_milliseconds);
    show_view(database_.is_open() ? contact_list_ : ui_->start_page);
    show_state();
}

// The views go first: they use members of the window to their end.
DeskWindow::~DeskWindow() {
    poll_.stop();
    activity_commands_.close_dialog();
    delete takeCentralWidget();
}

void DeskWindow::build_views() {
    auto* contact_list = new ContactList(database_, lookup_);
    auto* groups = new GroupsView(database_, lookup_);
    contact_page_ = new ContactPage(database_, lookup_);
    task_list_ = new ActivityList(database_, ActivityList::Scope::everybody);
    task_list_->set_filter(today_and_later());
    task_list_->layout()->setContentsMargins(contact_list->layout()->contentsMargins());
    contact_list_ = contact_list;
    groups_ = groups;
    contact_list_->setObjectName("contact_list_view");
    contact_page_->setObjectName("contact_view");
    task_list_->setObjectName("task_list_view");
    groups_->setObjectName("groups_view");
    for (QWidget* view :
         {contact_list_, static_cast<QWidget*>(contact_page_), static_cast<QWidget*>(task_list_), groups_})
        ui_->views->addWidget(view);
    connect(contact_list, &ContactList::opened, this, &DeskWindow::show_contact);
    connect(groups, &GroupsView::opened, this, &DeskWindow::show_contact);
    connect(groups, &GroupsView::looked_up, this, [this] { show_view(contact_list_); });
    for (ActivityList* list : {&contact_page_->activities(), task_list_}) {
        connect(list, &ActivityList::opened, this, [this](const std::string& activity) {
            attempt(this, [&] { activity_commands_.edit(activity, ActivityDialog::Tab::general, {}); });
        });
        connect(list, &ActivityList::chosen, this, &DeskWindow::show_state);
    }
    count_label_->setObjectName("record_count");
    count_label_->setAccessibleDescription(tr("Contacts in the lookup"));
    count_label_->setContentsMargins(6, 0, 6, 0);
    ui_->status_bar->addWidget(count_label_);
}

void DeskWindow::on(QAction* action, std::function<void()> work) {
    connect(action, &QAction::triggered, this, [this, work = std::move(work)] { attempt(this, work); });
}

void DeskWindow::connect_file_menu() {
    const auto asking = [this](QAction* action, void (DatabaseCommands::*command)()) {
        connect(action, &QAction::triggered, this, [this, command] { (database_commands_.*command)(); });
    };
    asking(ui_->file_new, &DatabaseCommands::create);
    asking(ui_->file_open, &DatabaseCommands::open_another);
    asking(ui_->file_close, &DatabaseCommands::close);
    connect(ui_->file_save_copy, &QAction::triggered, this, [this] { save_copy(database_, *this); });
    asking(ui_->file_new_sample, &DatabaseCommands::create_sample);
    asking(ui_->file_add_user, &DatabaseCommands::add_user);
    connect(ui_->file_import, &QAction::triggered, this, [this] { exchange_commands_.import_file(); });
    connect(ui_->file_export, &QAction::triggered, this, [this] { exchange_commands_.export_file(); });
    connect(ui_->file_exit, &QAction::triggered, this, &QWidget::close);
    connect(ui_->open_button, &QPushButton::clicked, ui_->file_open, &QAction::trigger);
    connect(ui_->new_button, &QPushButton::clicked, ui_->file_new, &QAction::trigger);
    connect(ui_->sample_button, &QPushButton::clicked, ui_->file_new_sample, &QAction::trigger);
}

void DeskWindow::connect_contact_menu() {
    ui_->contact_new->setIcon(picture("new_contact"));
    ui_->contact_new->setIconText(tr("New contact"));
    ui_->contact_previous->setIcon(picture("previous"));
    ui_->contact_next->setIcon(picture("next"));
    on(ui_->contact_new, [this] {
        contact_page_->begin_new();
        show_view(contact_page_);
        contact_page_->focus_first_field();
    });
    on(ui_->contact_edit, [this] {
        show_view(contact_page_);
        contact_page_->focus_first_field();
    });
    on(ui_->contact_save, [this] { contact_page_->save(); });
    on(ui_->contact_previous, [this] { lookup_.step(-1); });
    on(ui_->contact_next, [this] { lookup_.step(+1); });
    ui_->lookup_all->setIcon(picture("everybody"));
    ui_->lookup_by_name->setIcon(picture("search"));
    ui_->lookup_by_name->setIconText(tr("Look up"));
    on(ui_->lookup_all, [this] { lookup_.show_all(); });
    on(ui_->lookup_by_name, [this] { LookupDialog(lookup_, this).exec(); });
}

void DeskWindow::connect_schedule_menu() {
    using store::ActivityType;
    const auto scheduling = [this](QAction* action, ActivityType type) {
        action->setIcon(type_icon(type));
        action->setIconText(type_name(type));
        on(action, [this, type] { activity_commands_.schedule(type, {}); });
    };
    scheduling(ui_->schedule_call, ActivityType::call);
    scheduling(ui_->schedule_meeting, ActivityType::meeting);
    scheduling(ui_->schedule_to_do, ActivityType::to_do);
    const auto editing = [this](QAction* action, ActivityDialog::Tab tab) {
        on(action, [this, tab] { activity_commands_.edit(shown_activities().current_id(), tab, {}); });
    };
    editing(ui_->edit_activity, ActivityDialog::Tab::general);
    editing(ui_->activity_details, ActivityDialog::Tab::details);
    on(ui_->clear_activity, [this] { activity_commands_.clear(shown_activities().current_id(), {}); });
    on(ui_->send_activity, [this] { activity_commands_.send(shown_activities().current_id(), {}); });
    on(ui_->delete_activity, [this] { activity_commands_.remove(shown_activities().current_id()); });
}

void DeskWindow::connect_view_menu() {
    const auto viewing = [this](QAction* action, QWidget* view, const char* icon) {
        action->setIcon(picture(icon));
        action->setData(QVariant::fromValue(view));
        view_actions_.addAction(action);
        connect(action, &QAction::triggered, this, [this, view] { show_view(view); });
    };
    viewing(ui_->view_contact_list, contact_list_, "contact_list");
    viewing(ui_->view_contact, contact_page_, "contact");
    viewing(ui_->view_task_list, task_list_, "task_list");
    viewing(ui_->view_groups, groups_, "groups");
    int widest = 0;
    for (QAction* action : view_actions_.actions())
        widest = std::max(widest, ui_->view_bar->widgetForAction(action)->sizeHint().width());
    for (QAction* action : view_actions_.actions())
        ui_->view_bar->widgetForAction(action)->setMinimumWidth(widest);
    connect(ui_->help_about, &QAction::triggered, this, &DeskWindow::about);
}

void DeskWindow::fill_commands() {
    using act::CommandNumber;
    using Finished = CommandTable::Finished;
    commands_.add(CommandNumber::schedule_activity, [this](Finished finished) {
        activity_commands_.schedule(store::ActivityType::meeting, std::move(finished));
    });
    const auto selected = [this] { return contact_page_->activities().current_id(); };
    const auto editing = [=, this](CommandNumber number, ActivityDialog::Tab tab) {
        commands_.add(number, [=, this](Finished finished) {
            activity_commands_.edit(selected(), tab, std::move(finished));
        });
    };
    editing(CommandNumber::edit_activity, ActivityDialog::Tab::general);
    editing(CommandNumber::activity_details, ActivityDialog::Tab::details);
    commands_.add(CommandNumber::clear_activity,
                  [=, this](Finished finished) { activity_commands_.clear(selected(), std::move(finished)); });
    commands_.add(CommandNumber::send_activity,
                  [=, this](Finished finished) { activity_commands_.send(selected(), std::move(finished)); });
    commands_.add(CommandNumber::show_contact_view, [this](const Finished& finished) {
        show_view(contact_page_);
        come_forward();
        finished();
    });
    // The window goes from a later event, when the caller has its answer.
    commands_.add(CommandNumber::close_application, [this](const Finished& finished) {
        contact_page_->save();
        finished();
        QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
    });
}

void DeskWindow::show_view(QWidget* view) {
    ui_->views->setCurrentWidget(view);
    for (QAction* action : view_actions_.actions())
        action->setChecked(action->data().value<QWidget*>() == view);
    show_state();
}

void DeskWindow::come_forward() {
    if (isMinimized())
        showNormal();
    raise();
    activateWindow();
}

void DeskWindow::show_contact(const std::string& contact) {
    attempt(this, [&] {
        lookup_.go_to(contact);
        show_view(contact_page_);
    });
}

ActivityList& DeskWindow::shown_activities() {
    return ui_->views->currentWidget() == task_list_ ? *task_list_ : contact_page_->activities();
}

void DeskWindow::show_state() {
    const bool is_open = database_.is_open();
    const bool is_writable = is_open && !database_.store().is_read_only();
    const QString file = QFileInfo(shown(database_.path())).fileName();
    const QString mark = is_open && !is_writable ? tr(" (read-only)") : QString();
    setWindowTitle(is_open ? tr("%1%2 - Contact Desk").arg(file, mark) : tr("Contact Desk"));
    count_label_->setText(
        is_open
            ? tr("%1 of %2 contacts").arg(lookup_.contacts().size()).arg(database_.directory().contacts().size())
            : QString());
    for (QAction* action : {ui_->file_close, ui_->file_save_copy, ui_->contact_edit, ui_->contact_save,
                            ui_->contact_previous, ui_->contact_next, ui_->lookup_all, ui_->lookup_by_name})
        action->setEnabled(is_open);
    for (QAction* action :
         {ui_->file_add_user, ui_->contact_new, ui_->schedule_call, ui_->schedule_meeting, ui_->schedule_to_do})
        action->setEnabled(is_writable);
    ui_->file_import->setEnabled(is_writable && exchange_commands_.can_import());
    ui_->file_export->setEnabled(is_open && exchange_commands_.can_export());
    view_actions_.setEnabled(is_open);
    const QWidget* view = ui_->views->currentWidget();
    const bool is_list_shown = view == task_list_ || view == contact_page_;
    const bool is_activity = is_open && is_list_shown && !shown_activities().current_id().empty();
    for (QAction* action : {ui_->edit_activity, ui_->activity_details, ui_->clear_activity, ui_->delete_activity})
        action->setEnabled(is_activity && is_writable);
    ui_->send_activity->setEnabled(is_activity);
}

// A database that can't be read is told once, not every second.
void DeskWindow::look_for_changes() {
    try {
        database_.refresh();
        is_poll_failing_ = false;
    } catch (const std::exception&) {
        if (!std::exchange(is_poll_failing_, true))
            attempt(this, [] { throw; });
    }
}

void DeskWindow::about() {
    QMessageBox::about(this, tr("About Contact Desk"),
                       tr("<b>Contact Desk %1</b><p>Contacts, groups and their activities, beside the Orvanta "
                          "calendar.</p>")
                           .arg(QApplication::applicationVersion()));
}

void DeskWindow::end(const std::function<void()>& stays) {
    QDialog* const typed_in = activity_commands_.open_dialog();
    QWidget* const modal = QApplication::activeModalWidget();
    if (modal && modal != typed_in) {
        // Whoever opened it goes on when it has closed, and is through by the next turn.
        modal->close();
        QMetaObject::invokeMethod(
            this, [this, stays] { end(stays); }, Qt::QueuedConnection);
        return;
    }
    const bool is_awaited = activity_commands_.awaited_dialog() != nullptr;
    if (typed_in && !settle(*typed_in)) {
        stays();
        return;
    }
    // Who waited for the dialog puts the views back as they were.
    QTimer::singleShot(is_awaited ? put_back_milliseconds : 0, this, [this, stays] {
        if (!close())
            stays();
    });
}

bool DeskWindow::settle(QDialog& dialog) {
    come_forward();
    dialog.raise(); // what is asked about is in sight
    const QPointer<QDialog> open = &dialog;
    const auto answer = QMessageBox::question(
        &dialog, tr("Contact Desk"), tr("The contact desk was asked to end. Store what is typed in this dialog?"),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
    if (open && answer == QMessageBox::Save)
        open->accept();
    else if (open && answer == QMessageBox::Discard)
        open->reject();
    return !activity_commands_.is_under_way();
}

void DeskWindow::closeEvent(QCloseEvent* event) {
    if (activity_commands_.is_under_way() || !database_commands_.leave()) {
        event->ignore();
        return;
    }
    if (desk_->on_user_wants_to_close)
        desk_->on_user_wants_to_close();
    database_.close();
    event->accept();
}

} // namespace windows
