#pragma once

#include "adapters/desk/desk_data.h"
#include "main_window/frm_main.h"
#include "support/platform_world.h"
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

// The calendar's window over a real database with one user, Ann, one contact, Chris Smith, and a meeting of an
// hour on Wednesday, 10 January 2024, at 9:00, which is now.
class WindowWorld : public PlatformWorld {
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
    HalfRealServer server{database.path()};
    ui::frmMain window{platform(server)};
};

} // namespace support
