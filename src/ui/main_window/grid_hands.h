#pragma once

#include "core/calendar/calendar.h"
#include "core/interaction/interaction.h"
#include "ui/grid_widget/grid_widget.h"

#include <QMainWindow>
#include <QMenu>

#include <functional>
#include <vector>

namespace ui {

// Brings the grid's mouse and keys to the calendar's interaction, and shows its menu, pointer and question.
class GridHands : private interaction::Presenter {
public:
    GridHands(QMainWindow& window, GridWidget& msgSched, calendar::Calendar& calendar, host::Window& face,
              const calendar::Platform& platform);

    interaction::Interaction& hands() { return hands_; }

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
    void begin_drag() override { msgSched_.begin_drag(); }
    void show_drag_icon(interaction::DragIcon icon) override;
    int ask_activity_change() override;
    void minimise() override { window_.showMinimized(); }
    void Switch_View(int col) override { calendar_.navigation.Switch_View(col); }

    QMainWindow& window_;
    calendar::Calendar& calendar_;
    GridWidget& msgSched_;
    const host::ApplicationInfo& application_;
    interaction::Interaction hands_;
    QMenu mnuPopup_;
    QAction* mnupopLookup_ = nullptr;
    std::vector<Line> lines_;
    std::function<void()> chosen_; // the command of the entry that was chosen
    QPoint menu_place_;
};

} // namespace ui
