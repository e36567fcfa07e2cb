#pragma once

#include "adapters/qt/qt_files.h"
#include "core/forms/days_off_world.h"
#include "core/settings/file_user_store.h"
#include "desk/store/store.h"
#include "support/half_real_server.h"
#include "support/platform_world.h"
#include "support/temporary_folder.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace faults {

// What users of both programs do one after another, over real files in a folder: settings, holidays, a database
// with its records, a file imported, files exported, a copy, the calendar's start, a change there and its end.
class WorkSession : protected support::PlatformWorld {
public:
    explicit WorkSession(std::string folder);

    struct Step {
        std::string name;
        std::function<void()> work;  // throws or shows a box where it fails
        bool can_be_repeated = true; // a second time it changes nothing, or is refused
    };
    const std::vector<Step>& steps() const { return steps_; }

    // Carries a step out. Gives what the user was told of its failure; empty when it went well.
    std::string run(const Step& step);
    // Both programs end, and start when they are used again.
    void start_again();
    // All that the files hold, as a program would read them that starts now.
    std::string state();

private:
    std::string in_folder(const char* name) const { return folder_ + "/" + name; }
    store::Store& database();
    calendar::Calendar& started();
    void add_settings();
    void add_records();
    void add_files();
    void add_calendar();
    calendar::Outside outside_of_files();
    host::Machine machine_of_files();

    std::string folder_;
    std::vector<Step> steps_;
    std::unique_ptr<host::Files> files_ = qt::make_files();
    support::FakeFolders folders_{folder_};
    settings::FileUserStore user_store_{*files_, in_folder("user-store.ini")};
    support::FakeMainWindow window_;
    host::Platform here_{machine_of_files(), window_};
    settings::Settings settings_{here_};
    std::unique_ptr<store::Store> store_;
    support::HalfRealServer server_{in_folder("team.desk")};
    support::FakeDialogs dialogs_;
    support::FakePresenter presenter_;
    support::FakeActivityChange question_;
    std::unique_ptr<calendar::Calendar> calendar_;
};

} // namespace faults
