#include "ui/main_window/grid_hands.h"

#include "ui/dialogs/frm_activity_change.h"

#include <QCursor>

#include <utility>

namespace ui {

using interaction::PopupMenu;

GridHands::GridHands(QMainWindow& window, GridWidget& msgSched, calendar::Calendar& calendar, host::Window& face,
                     const calendar::Platform& platform)
    : window_(window), calendar_(calendar), msgSched_(msgSched), application_(platform.application),
      hands_({.session = calendar.session,
              .users = calendar.users,
              .grid = calendar.grid,
              .engine = calendar.engine,
              .settings = calendar.ini,
              .user_store = calendar.user_store,
              .locale = platform.locale,
              .clock = platform.clock,
              .box = platform.box,
              .window = face,
              .shell = platform.shell,
              .application = platform.application,
              .presenter = *this,
              .guarded = calendar.guarded()}),
      mnuPopup_(&window) {
    mnuPopup_.setObjectName("mnuPopup");
    fill_menu();
    connect_grid();
}

void GridHands::connect_grid() {
    QObject::connect(&msgSched_, &GridWidget::mouse_pressed, &window_,
                     [this](int button, int shift, int x, int y) {
                         menu_place_ = QCursor::pos();
                         hands_.mouse.msgSched_MouseDown(button, shift, x, y);
                     });
    QObject::connect(&msgSched_, &GridWidget::menu_requested, &window_, [this](int x, int y) {
        const table::GridModel& model = msgSched_.model();
        menu_place_ = msgSched_.viewport()->mapToGlobal(msgSched_.cell_rect(model.Row(), model.Col()).center());
        hands_.mouse.msgSched_MouseDown(2, 0, x, y);
    });
    QObject::connect(&msgSched_, &GridWidget::double_clicked, &window_,
                     [this] { hands_.commands.msgSched_DblClick(); });
    QObject::connect(&msgSched_, &GridWidget::cursor_moved, &window_, [this] { hands_.mouse.cursor_moved(); });
    QObject::connect(&msgSched_, &GridWidget::drag_moved, &window_,
                     [this](int x, int y) { hands_.drag_drop.msgSched_DragOver(x, y); });
    QObject::connect(&msgSched_, &GridWidget::dropped, &window_,
                     [this](int x, int y) { hands_.drag_drop.msgSched_DragDrop(x, y); });
}

void GridHands::fill_menu() {
    interaction::ActivityCommands& commands = hands_.commands;
    QMenu* mnupopSchedule = mnuPopup_.addMenu("Schedule");
    mnupopSchedule->setObjectName("mnupopSchedule");
    lines_.push_back({mnupopSchedule->menuAction(), &PopupMenu::mnupopSchedule});
    add_entry(*mnupopSchedule, "mnupopCall", "Call", [&] { commands.mnupopCall_Click(); });
    add_entry(*mnupopSchedule, "mnupopMeeting", "Meeting", [&] { commands.mnupopMeeting_Click(); });
    add_entry(*mnupopSchedule, "mnupopTodo", "To-do", [&] { commands.mnupopTodo_Click(); });
    add_entry(
        mnuPopup_, "mnupopReschedule", "Reschedule Activity...", [&] { commands.mnupopReschedule_Click(); },
        &PopupMenu::mnupopReschedule);
    add_entry(
        mnuPopup_, "mnupopDetails", "View/Edit Activity Details...", [&] { commands.mnupopDetails_Click(); },
        &PopupMenu::mnupopDetails);
    add_entry(
        mnuPopup_, "mnupopSend", "Send Activity...", [&] { commands.mnupopSend_Click(); }, &PopupMenu::mnupopSend);
    add_separator("mnuSep1", &PopupMenu::mnuSep1);
    add_entry(
        mnuPopup_, "mnupopClear", "Clear Activity...", [&] { commands.mnupopClear_Click(); },
        &PopupMenu::mnupopClear);
    add_entry(
        mnuPopup_, "mnuPopRecurring", "Edit Recurring Settings...", [&] { commands.mnuPopRecurring_Click(); },
        &PopupMenu::mnuPopRecurring);
    add_separator("mnuSep2", &PopupMenu::mnuSep2);
    add_entry(
        mnuPopup_, "mnupopGoto", "Create Lookup (This cell)", [this] { hands_.lookups.mnupopGoto_Click(); },
        &PopupMenu::mnupopGoto);
    add_entry(
        mnuPopup_, "mnupopLookup", "Create Lookup", [this] { hands_.lookups.mnupopLookup_Click(); },
        &PopupMenu::mnupopLookup);
    mnupopLookup_ = lines_.back().action;
    add_separator("mnuSep4", &PopupMenu::mnuSep4);
    add_entry(
        mnuPopup_, "mnuResetRowHeight", "Reset Row Height", [this] { calendar_.menu.mnuResetRowHeight_Click(); },
        &PopupMenu::mnuResetRowHeight);
    add_entry(
        mnuPopup_, "mnuResetColumnWidth", "Reset Column Width",
        [this] { calendar_.menu.mnuResetColumnWidth_Click(); }, &PopupMenu::mnuResetColumnWidth);
}

void GridHands::add_entry(QMenu& menu, const char* name, const char* caption, const std::function<void()>& command,
                          PopupMenu::Entry PopupMenu::*entry) {
    QAction* action = menu.addAction(caption);
    action->setObjectName(name);
    // Carried out once the menu has gone, since commands wait for the user's dialogs.
    QObject::connect(action, &QAction::triggered, &window_, [this, command] { chosen_ = command; });
    if (entry)
        lines_.push_back({action, entry});
}

void GridHands::add_separator(const char* name, PopupMenu::Entry PopupMenu::*entry) {
    QAction* action = mnuPopup_.addSeparator();
    action->setObjectName(name);
    lines_.push_back({action, entry});
}

void GridHands::show_mnuPopup(const PopupMenu& menu) {
    for (const Line& line : lines_) {
        line.action->setVisible((menu.*line.entry).visible);
        line.action->setEnabled((menu.*line.entry).enabled);
    }
    mnupopLookup_->setText(QString::fromStdString(menu.lookup_caption));
    chosen_ = nullptr;
    mnuPopup_.exec(menu_place_);
    if (const auto command = std::exchange(chosen_, nullptr))
        command();
}

void GridHands::show_drag_icon(interaction::DragIcon icon) {
    msgSched_.show_drop_permitted(icon == interaction::DragIcon::permitted);
}

int GridHands::ask_activity_change() {
    return frmActivityChange(QString::fromStdString(application_.title), &window_).ask();
}

} // namespace ui
