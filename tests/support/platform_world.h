#pragma once

#include "core/calendar/calendar.h"
#include "support/fake_act_server.h"
#include "support/fake_clock.h"
#include "support/fake_folders.h"
#include "support/fake_message_box.h"
#include "support/fake_program.h"
#include "support/fake_shell.h"
#include "support/fake_timer.h"
#include "support/fake_user_store.h"
#include "support/memory_files.h"

#include <string>
#include <vector>

namespace support {

// What a calendar stands on, all of it fake: Wednesday, 10 January 2024, 9:00, in an American locale; empty stores
// and no files.
class PlatformWorld {
public:
    // Values of the per-user store, and of the settings file in the program's folder.
    void store(const std::string& key, const std::string& value) { values.write("Settings", key, value); }
    std::string stored(const std::string& key) const { return values.read("Settings", key, "absent"); }
    void have_settings(const std::string& text) { files.content["/program/Orvanta.ini"] = text; }

    // The first line of each box.
    std::vector<std::string> boxes() const {
        std::vector<std::string> lines;
        for (const host::Message& message : box.shown)
            lines.push_back(message.text.substr(0, message.text.find('\r')));
        return lines;
    }

    host::Machine machine() {
        return {.application = application,
                .locale = values::english_us(),
                .clock = clock,
                .box = box,
                .shell = shell,
                .files = files,
                .folders = folders,
                .user_store = user_store};
    }
    calendar::Outside outside(act::Server& server) { return outside(server, box, events); }
    // With a box and events that are real ones.
    calendar::Outside outside(act::Server& server, host::MessageBox& one_box, act::EventControl& events) {
        return {.machine = {.application = application,
                            .locale = values::english_us(),
                            .clock = clock,
                            .box = one_box,
                            .shell = shell,
                            .files = files,
                            .folders = folders,
                            .user_store = user_store},
                .program = program,
                .server = server,
                .ActEvent1 = events,
                .tmrRefresh = tmrRefresh,
                .tmr2 = tmr2};
    }

    FakeMessageBox box;
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
    FakeEventControl events;
};

} // namespace support
