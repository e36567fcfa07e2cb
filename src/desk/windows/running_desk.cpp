#include "desk/windows/running_desk.h"

#include "desk/windows/activity_commands.h"
#include "desk/windows/activity_list.h"
#include "desk/windows/contact_page.h"

#include <filesystem>

namespace windows {

RunningDesk::RunningDesk(OpenDatabase& database, Lookup& lookup, ContactPage& page, const CommandTable& commands,
                         ActivityCommands& activity_commands)
    : database_(database), lookup_(lookup), page_(page), commands_(commands),
      activity_commands_(activity_commands) {
    activity_commands_.on_awaited_dialog = [this] {
        if (on_activity_dialog)
            on_activity_dialog();
    };
    QObject::connect(&database, &OpenDatabase::closed, &page, [this] {
        if (on_database_closed)
            on_database_closed();
    });
}

std::string RunningDesk::database_path() const {
    return database_.is_open() ? std::filesystem::absolute(database_.path()).string() : std::string();
}

model::ActivityDialog* RunningDesk::activity_dialog() { return activity_commands_.awaited_dialog(); }

void RunningDesk::run_command(act::CommandNumber number, std::function<void()> finished) {
    commands_.run(number, std::move(finished));
}

std::string RunningDesk::active_tab() const { return page_.active_tab(); }

void RunningDesk::set_active_tab(const std::string& name) { page_.set_active_tab(name); }

void RunningDesk::create_lookup(const std::vector<std::string>& contacts) {
    database_.refresh();
    lookup_.show(contacts);
}

int RunningDesk::contact_count() const { return static_cast<int>(lookup_.contacts().size()); }

// The caller may have written a moment ago, so the desk looks at the database before it answers.
std::string RunningDesk::go_to(const std::string& contact) {
    database_.refresh();
    lookup_.go_to(contact);
    return lookup_.current();
}

act::ListFilter RunningDesk::activity_filter() const {
    return model::codes_of(page_.activities().filter(), database_.locale());
}

void RunningDesk::set_activity_filter(const act::ListFilter& filter) {
    page_.activities().set_filter(model::filter_of(filter, database_.locale()));
}

int RunningDesk::activity_count() const { return page_.activities().row_count(); }

store::Activity RunningDesk::activity(int row) const { return page_.activities().activity(row); }

void RunningDesk::select_activity(int row, bool selected) { page_.activities().select(row, selected); }

} // namespace windows
