#pragma once

#include "support/fake_main_window.h"
#include "support/fake_presenter.h"
#include "support/platform_world.h"

#include <string>

namespace support {

// The calendar in a world of fakes: two users, no activities.
class ShellWorld : public PlatformWorld {
public:
    ShellWorld() {
        for (const char* name : {"Ann", "Bob"})
            data.users.push_back({.id = id(name), .name = name, .security = "", .access = ""});
        window.Form_Unload = [this] { calendar.closing.Form_Unload(); };
        window.chkView_Click = [this](int index) { calendar.navigation.chkView_Click(index); };
        window.chkAMPM_Click = [this](int index) { calendar.navigation.chkAMPM_Click(index); };
    }

    static std::string id(const std::string& name) { return name + std::string(12 - name.size(), '-'); }

    void load() { calendar.start_up.Form_Load(); }
    void start() {
        load();
        calendar.start_up.Form_Activate();
    }
    const grid::Layout& layout() const { return calendar.grid.layout; }

    FakeMainWindow window;
    FakeDialogs dialogs;
    FakeActData data;
    FakeApplicationState state;
    FakeServer server{data, state};
    FakePresenter presenter;
    FakeActivityChange question;
    calendar::Calendar calendar{outside(server), {window, dialogs, presenter, question}};
};

} // namespace support
