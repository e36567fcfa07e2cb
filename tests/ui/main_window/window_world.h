#pragma once

#include "adapters/desk/desk_data.h"
#include "main_window/frm_main.h"
#include "support/fake_act_server.h"
#include "support/fake_clock.h"
#include "support/fake_folders.h"
#include "support/fake_message_box.h"
#include "support/fake_shell.h"
#include "support/fake_timer.h"
#include "support/fake_user_store.h"
#include "support/memory_files.h"
#include "support/temporary_database.h"

#include <QCoreApplication>

#include <memory>
#include <string>

namespace support {

// The data of a real database beside a running application in memory.
class HalfRealServer : public act::Server {
public:
    explicit HalfRealServer(std::string database) : database_(std::move(database)) {}
    std::unique_ptr<act::Application> create_application() override { return fakes_.create_application(); }
    std::unique_ptr<act::Database> create_database() override {
        return desk::make_database([this] { return database_; });
    }
    std::unique_ptr<act::AuxCommands> create_aux_commands() override { return fakes_.create_aux_commands(); }

private:
    std::string database_;
    FakeActData data_;
    FakeApplicationState state_;
    FakeServer fakes_{data_, state_};
};

class FakeProgram : public shell::Program {
public:
    bool already_running() override { return is_second; }
    void end() override { ++ends; }

    bool is_second = false;
    int ends = 0;
};

// The calendar's window over a real database with one user, Ann, one contact, Chris Smith, and a meeting of an
// hour on Wednesday, 10 January 2024, at 9:00, which is now.
class WindowWorld {
public:
    WindowWorld() {
        ann = database.store().add(store::User{.name = "Ann"});
        chris = database.store().add(store::Contact{.fields = {{26, "Chris Smith"}}});
        add_meeting(9);
    }

    void add_meeting(int hour) {
        const values::DateTime start = values::DateTime::of(2024, 1, 10, hour);
        database.store().add(store::Activity{
            .start = start, .end = start.plus_minutes(60), .duration = 60, .user = ann, .contacts = {chris}});
    }

    void load() {
        window.load();
        settle();
    }
    // Lets everything happen that is due.
    static void settle() {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
    std::string stored(const std::string& key) { return values.read("Settings", key, "absent"); }
    // What the grid shows at that hour on the Wednesday.
    QString at(int hour) {
        return QString::fromStdString(window.calendar().grid.msgSched.TextMatrix(hour - 8 + 1, 5)).trimmed();
    }
    template <typename Control>
    Control* control(const char* name) {
        return window.findChild<Control*>(name);
    }

    TemporaryDatabase database;
    std::string ann, chris;
    FakeMessageBox fake_box;
    host::ApplicationInfo application{
        .title = "Orvanta", .major = 1, .minor = 2, .revision = 3, .support_address = "help@example.org"};
    FakeClock clock{values::DateTime::of(2024, 1, 10, 9, 0)};
    FakeTimer tmrRefresh, tmr2;
    FakeShell shell;
    FakeUserStore user_store;
    settings::PerUserStore values{user_store};
    MemoryFiles files;
    FakeFolders folders;
    FakeProgram program;
    HalfRealServer server{database.path()};
    FakeEventControl events;
    ui::frmMain window{{.application = application,
                        .locale = values::english_us(),
                        .box = fake_box,
                        .clock = clock,
                        .tmrRefresh = tmrRefresh,
                        .tmr2 = tmr2,
                        .shell = shell,
                        .user_store = user_store,
                        .files = files,
                        .folders = folders,
                        .program = program,
                        .server = server,
                        .ActEvent1 = events}};
};

} // namespace support
