#include "desk/windows/running_desk.h"

#include "desk/windows/activity_commands.h"
#include "desk/windows/activity_list.h"
#include "desk/windows/contact_page.h"

#include <filesystem>

namespace windows {

RunningDesk::RunningDesk(OpenDatabase& database, const Shown& shown, const Commands& commands)
    : database_(database), shown_(shown), commands_(commands) {
    commands_.on_activities.on_awaited_dialog = [this] {
        if (on_activity_dialog)
            on_activity_dialog();
    };
    QObject::connect(&database, &OpenDatabase::closed, &shown_.page, [this] {
        if (on_database_closed)
            on_database_closed();
    });
}

std::string RunningDesk::database_path() const {
    return database_.is_open() ? std::filesystem::absolute(database_.path()).string() : std::string();
}

model::ActivityDialog* RunningDesk::activity_dialog() { return commands_.on_activities.awaited_dialog(); }

void RunningDesk::run_command(act::CommandNumber number, std::function<void()> finished) {
    commands_.by_number.run(number, std::move(finished));
}

std::string RunningDesk::active_tab() const { return shown_.page.active_tab(); }

void RunningDesk::set_active_tab(const std::string& name) { shown_.page.set_active_tab(name); }

void RunningDesk::create_lookup(const std::vector<std::string>& contacts) {
    database_.refresh();
    shown_.lookup.show(contacts);
    if (shown_.come_to_contacts)
        shown_.come_to_contacts();
}

int RunningDesk::contact_count() const { return static_cast<int>(shown_.lookup.contacts().size()); }

// The caller may have written a moment ago, so the desk looks at the database before it answers.
std::string RunningDesk::go_to(const std::string& contact) {
    database_.refresh();
    shown_.lookup.go_to(contact);
    return shown_.lookup.current();
}

act::ListFilter RunningDesk::activity_filter() const {
    return model::codes_of(shown_.page.activities().filter(), database_.locale());
}

void RunningDesk::set_activity_filter(const act::ListFilter& filter) {
    shown_.page.activities().set_filter(model::filter_of(filter, database_.locale()));
}

int RunningDesk::activity_count() const { return shown_.page.activities().row_count(); }

store::Activity RunningDesk::activity(int row) const { return shown_.page.activities().activity(row); }

void RunningDesk::select_activity(int row, bool selected) { shown_.page.activities().select(row, selected); }

} // namespace windows
