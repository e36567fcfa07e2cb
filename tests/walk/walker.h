#pragma once

#include "adapters/bus/application_link.h"
#include "adapters/qt/qt_clock.h"
#include "adapters/qt/qt_files.h"
#include "adapters/qt/qt_folders.h"
#include "adapters/qt/qt_message_box.h"
#include "apps/orvanta/desk_server.h"
#include "core/settings/file_user_store.h"
#include "ui/main_window/frm_main.h"
#include "walk/desk_process.h"
#include "walk/outside.h"
#include "walk/random_hand.h"
#include "walk/store_rules.h"
#include "walk/ticking.h"
#include "walk/watchdog.h"

#include <QElapsedTimer>
#include <QString>

#include <map>
#include <optional>
#include <set>
#include <string>

namespace walk {

// A calendar as its program puts it together, but for what ends or leaves the process.
class OpenCalendar {
public:
    OpenCalendar(const QDBusConnection& bus, const std::string& folder);

    ui::frmMain& window() { return window_; }
    bool waits_for_desk() const { return link_->waits(); }
    bool has_ended() const { return process_.has_ended; }

private:
    std::shared_ptr<bus::Link> link_;
    const values::Locale& locale_ = values::english_us();
    std::unique_ptr<host::MessageBox> box_ = qt::make_message_box();
    std::unique_ptr<host::Clock> clock_ = qt::make_clock();
    std::unique_ptr<host::Timer> tmrRefresh_ = qt::make_timer(), tmr2_ = qt::make_timer();
    std::unique_ptr<host::Files> files_ = qt::make_files();
    settings::FileUserStore user_store_;
    settings::PerUserStore user_values_{user_store_};
    CompanionsOnly shell_;
    std::unique_ptr<host::Folders> folders_;
    NoProcess process_;
    apps::DeskServer server_;
    std::unique_ptr<act::EventControl> ActEvent1_;
    ui::frmMain window_;
};

// Wanders through the calendar's window and everything that it opens.
class Walker {
public:
    // The folder holds what the calendar keeps in files.
    Walker(const QDBusConnection& bus, DeskProcess& desk, const std::string& database, const std::string& folder,
           unsigned seed, long events);

    void run(); // until so many events have been sent, or something is wrong

    std::vector<std::string> faults;          // what broke, in the order in which it did
    std::map<std::string, int> failure_boxes; // how often each text was shown
    std::map<std::string, int> dialogs;       // how often each window was worked on
    int starts = 0;
    long activities_at_end() const { return rules_.activities(); }
    long events() const { return hand_.events(); }

private:
    void step();
    void start_calendar();
    void choose_settings();
    void watch_wait();
    void note_dialog(QWidget& dialog);
    void act_in_window();
    void drag_in_grid();
    void select_in_grid();
    QPoint place_in_grid();
    QPoint place_of_activity();

    QDBusConnection bus_;
    DeskProcess& desk_;
    const std::string folder_;
    const long last_event_;
    RandomHand hand_, knocking_hand_; // the second one while the calendar waits for the desk
    StoreRules rules_;
    Watchdog watchdog_{"The calendar"};
    std::optional<OpenCalendar> calendar_;
    QPointer<QWidget> noted_dialog_;
    QElapsedTimer wait_;
    bool is_waiting_ = false;
};

} // namespace walk
