#pragma once

#include "core/calendar/calendar.h"
#include "ui/grid_widget/grid_widget.h"

#include <QMainWindow>
#include <QMenu>

#include <functional>
#include <vector>

namespace ui {

// Brings the grid's mouse and keys to the calendar's interaction, and shows its menu and pointer.
class GridHands : public interaction::Presenter {
public:
    explicit GridHands(QMainWindow& window);
    // From now on the grid's events reach the calendar, of which this may already be the presenter.
    void attach(GridWidget& msgSched, calendar::Calendar& calendar);

private:
    struct Line {
        QAction* action;
        interaction::PopupMenu::Entry interaction::PopupMenu::*entry;
    };

    void connect_grid();
    void fill_menu();
    void add_entry(QMenu& menu, const char* name, const char* caption, const std::function<void()>& command,
                   interaction::PopupMenu::Entry interaction::PopupMenu::*entry = nullptr);
    void add_separator(const char* name, interaction::PopupMenu::Entry interaction::PopupMenu::*entry);

    void show_mnuPopup(const interaction::PopupMenu& menu) override;
    void begin_drag() override { msgSched_->begin_drag(); }
    void show_drag_icon(interaction::DragIcon icon) override;
    void minimise() override { window_.showMinimized(); }

    QMainWindow& window_;
    GridWidget* msgSched_ = nullptr; // both are there from attach on
    calendar::Calendar* calendar_ = nullptr;
    QMenu mnuPopup_;
    QAction* mnupopLookup_ = nullptr;
    std::vector<Line> lines_;
    std::function<void()> chosen_; // the command of the entry that was chosen
    QPoint menu_place_;
};

} // namespace ui
