#include "ui/main_window/grid_hands.h"

#include <QCursor>

#include <utility>

namespace ui {

using interaction::PopupMenu;

GridHands::GridHands(QMainWindow& window) : window_(window), mnuPopup_(&window) {
    mnuPopup_.setObjectName("mnuPopup");
}

void GridHands::attach(GridWidget& msgSched, calendar::Calendar& calendar) {
    msgSched_ = &msgSched;
    calendar_ = &calendar;
    fill_menu();
    connect_grid();
}

void GridHands::connect_grid() {
    interaction::Interaction& hands = calendar_->interaction;
    QObject::connect(msgSched_, &GridWidget::mouse_pressed, &window_,
                     [this, &hands](int button, int shift, int x, int y) {
                         menu_place_ = QCursor::pos();
                         hands.mouse.msgSched_MouseDown(button, shift, x, y);
                     });
    QObject::connect(msgSched_, &GridWidget::menu_requested, &window_, [this, &hands](int x, int y) {
        const table::GridModel& model = msgSched_->model();
        menu_place_ = msgSched_->viewport()->mapToGlobal(msgSched_->cell_rect(model.Row(), model.Col()).center());
        hands.mouse.msgSched_MouseDown(2, 0, x, y);
    });
    QObject::connect(msgSched_, &GridWidget::double_clicked, &window_,
                     [&hands] { hands.editing.msgSched_DblClick(); });
    QObject::connect(msgSched_, &GridWidget::cursor_moved, &window_, [&hands] { hands.mouse.cursor_moved(); });
    QObject::connect(msgSched_, &GridWidget::drag_moved, &window_,
                     [&hands](int x, int y) { hands.drag_drop.msgSched_DragOver(x, y); });
    QObject::connect(msgSched_, &GridWidget::dropped, &window_,
                     [&hands](int x, int y) { hands.drag_drop.msgSched_DragDrop(x, y); });
}

void GridHands::fill_menu() {
    interaction::Interaction& hands = calendar_->interaction;
    shell::MenuCommands& menu = calendar_->menu;
    QMenu* mnupopSchedule = mnuPopup_.addMenu("Schedule");
    mnupopSchedule->setObjectName("mnupopSchedule");
    lines_.push_back({mnupopSchedule->menuAction(), &PopupMenu::mnupopSchedule});
    add_entry(*mnupopSchedule, "mnupopCall", "Call", [&] { hands.scheduling.mnupopCall_Click(); });
    add_entry(*mnupopSchedule, "mnupopMeeting", "Meeting", [&] { hands.scheduling.mnupopMeeting_Click(); });
    add_entry(*mnupopSchedule, "mnupopTodo", "To-do", [&] { hands.scheduling.mnupopTodo_Click(); });
    add_entry(
        mnuPopup_, "mnupopReschedule", "Reschedule Activity...", [&] { hands.editing.mnupopReschedule_Click(); },
        &PopupMenu::mnupopReschedule);
    add_entry(
        mnuPopup_, "mnupopDetails", "View/Edit Activity Details...", [&] { hands.editing.mnupopDetails_Click(); },
        &PopupMenu::mnupopDetails);
    add_entry(
        mnuPopup_, "mnupopSend", "Send Activity...", [&] { hands.editing.mnupopSend_Click(); },
        &PopupMenu::mnupopSend);
    add_separator("mnuSep1", &PopupMenu::mnuSep1);
    add_entry(
        mnuPopup_, "mnupopClear", "Clear Activity...", [&] { hands.clearing.mnupopClear_Click(); },
        &PopupMenu::mnupopClear);
    add_entry(
        mnuPopup_, "mnuPopRecurring", "Edit Recurring Settings...", [&] { hands.editing.mnuPopRecurring_Click(); },
        &PopupMenu::mnuPopRecurring);
    add_separator("mnuSep2", &PopupMenu::mnuSep2);
    add_entry(
        mnuPopup_, "mnupopGoto", "Create Lookup (This cell)", [&] { hands.lookups.mnupopGoto_Click(); },
        &PopupMenu::mnupopGoto);
    add_entry(
        mnuPopup_, "mnupopLookup", "Create Lookup", [&] { hands.lookups.mnupopLookup_Click(); },
        &PopupMenu::mnupopLookup);
    mnupopLookup_ = lines_.back().action;
    add_separator("mnuSep4", &PopupMenu::mnuSep4);
    add_entry(
        mnuPopup_, "mnuResetRowHeight", "Reset Row Height", [&] { menu.mnuResetRowHeight_Click(); },
        &PopupMenu::mnuResetRowHeight);
    add_entry(
        mnuPopup_, "mnuResetColumnWidth", "Reset Column Width", [&] { menu.mnuResetColumnWidth_Click(); },
        &PopupMenu::mnuResetColumnWidth);
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
    msgSched_->show_drop_permitted(icon == interaction::DragIcon::permitted);
}

} // namespace ui
