#pragma once

#include "desk/windows/activity_commands.h"
#include "desk/windows/command_table.h"
#include "desk/windows/database_commands.h"
#include "desk/windows/exchange_commands.h"
#include "desk/windows/running_desk.h"

#include <QActionGroup>
#include <QLabel>
#include <QMainWindow>
#include <QTimer>

#include <functional>
#include <memory>
#include <string>

namespace Ui {
class DeskWindow;
}

namespace windows {

class ActivityList;
class ContactPage;

// The contact desk's window: a database, its views and the menus.
class DeskWindow : public QMainWindow {
    Q_OBJECT

public:
    DeskWindow(OpenDatabase& database, Exchange exchange);
    ~DeskWindow() override;

    // Opens a database. A failure shows its box, and what was open stays so.
    void open(const std::string& path) { database_commands_.open(path); }

    // Closes the window for a program that was asked to end. What is typed in a dialog is stored or thrown away as
    // the user says; other dialogs are cancelled. Calls `stays` when the user decides to stay, or it can't be
    // stored.
    void end(const std::function<void()>& stays);

    model::Desk& desk() { return *desk_; }

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void build_views();
    void connect_file_menu();
    void connect_contact_menu();
    void connect_schedule_menu();
    void connect_view_menu();
    void fill_commands();
    void on(QAction* action, std::function<void()> work); // with the box for failures

    void about();
    bool settle(QDialog& dialog);

    void show_view(QWidget* view);
    void come_forward(); // before the other windows
    void show_contact(const std::string& contact);
    void show_state(); // title, record count, which commands can be given
    ActivityList& shown_activities();
    void look_for_changes();

    OpenDatabase& database_;
    std::unique_ptr<Ui::DeskWindow> ui_;
    Lookup lookup_;
    ActivityCommands activity_commands_;
    DatabaseCommands database_commands_;
    ExchangeCommands exchange_commands_;
    CommandTable commands_;
    QActionGroup view_actions_;
    QTimer poll_;
    bool is_poll_failing_ = false; // told already
    QLabel* count_label_;
    QWidget* contact_list_;
    ContactPage* contact_page_;
    ActivityList* task_list_;
    QWidget* groups_;
    std::unique_ptr<RunningDesk> desk_;
};

} // namespace windows
