#include "faults/work_session.h"

#include "desk/export/export_file.h"
#include "desk/import/import_file.h"
#include "desk/store/temporary_instances.h"
#include "desk/store/toolbar_commands.h"

#include <algorithm>
#include <filesystem>
#include <utility>

namespace faults {

namespace {

namespace fs = std::filesystem;
using values::DateTime;

constexpr const char* user = "U00000000001";
constexpr const char* contact = "C00000000001";
constexpr const char* series = "A00000000001";
constexpr const char* call = "A00000000002";

constexpr std::string_view calendar_file = "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nBEGIN:VEVENT\r\nUID:1\r\n"
                                           "DTSTART:20240109T140000\r\nDTEND:20240109T150000\r\n"
                                           "SUMMARY:From a file\r\nEND:VEVENT\r\nEND:VCALENDAR\r\n";

// What failed to be done is told by an exception where a program has its box round the work.
void require(bool is_done) {
    if (!is_done)
        throw values::Failure(values::FailureNumber::path_file_access);
}

std::string content_of_database(const std::string& path) {
    const auto store = store::Store::open(path);
    std::string text;
    for (const store::User& one : store->users())
        text += "user " + one.id + " " + one.name + "\n";
    for (const store::Contact& one : store->contacts()) {
        text += "contact " + one.id;
        for (const auto& [number, field] : one.fields)
            text += " " + field;
        text += "\n";
        for (const store::Note& note : store->notes(one.id))
            text += "note " + note.text + "\n";
    }
    for (const store::Group& one : store->groups())
        text += "group " + one.name + " " + std::to_string(one.contacts.size()) + "\n";
    for (const store::Activity& one : store->activities({}))
        text += "activity " + one.id + " " + one.regarding + " " + std::to_string(one.contacts.size()) + " " +
                std::to_string(one.exceptions.size()) + "\n";
    for (const store::ToolbarCommand& one : store->toolbar_commands().all())
        text += "command " + one.name + "\n";
    return text;
}

bool belongs_to_a_database(const fs::path& file) {
    const std::string name = file.filename().string();
    return name.ends_with("-wal") || name.ends_with("-shm");
}

} // namespace

WorkSession::WorkSession(std::string folder) : folder_(std::move(folder)) {
    support::write_file(in_folder("meeting.ics"), std::string(calendar_file));
    settings_.ini.SettingsFile = in_folder("Orvanta.ini");
    add_settings();
    add_records();
    add_files();
    add_calendar();
}

host::Machine WorkSession::machine_of_files() {
    return {.application = application,
            .locale = values::english_us(),
            .clock = clock,
            .box = box,
            .shell = shell,
            .files = *files_,
            .folders = folders_,
            .user_store = user_store_};
}

calendar::Outside WorkSession::outside_of_files() {
    return {.machine = machine_of_files(),
            .program = program,
            .server = server_,
            .ActEvent1 = events,
            .tmrRefresh = tmrRefresh,
            .tmr2 = tmr2};
}

store::Store& WorkSession::database() {
    if (!store_)
        store_ = store::Store::open(in_folder("team.desk"), [] { return DateTime::of(2024, 1, 10, 9); });
    return *store_;
}

void WorkSession::add_settings() {
    steps_.push_back({"a value of the user", [this] { settings_.user_store.write("Settings", "Left", "100"); }});
    steps_.push_back({"a second one", [this] {
                          settings_.user_store.write("Settings", "SettingsFile", in_folder("Orvanta.ini"));
                      }});
    steps_.push_back(
        {"a setting", [this] { require(settings_.ini.WriteKeyValue("Settings", "StdColWidth", "1900")); }});
    steps_.push_back(
        {"a second setting", [this] { require(settings_.ini.WriteKeyValue("Settings", "1stday", "2")); }});
    steps_.push_back({"holidays", [this] {
                          grid::HolidayFile file(here_);
                          file.HolidaysFile = in_folder("holidays.dat");
                          const grid::Holiday day{.date = "12/25/2024", .description = "Christmas"};
                          file.write({&day, 1});
                      }});
}

void WorkSession::add_records() {
    steps_.push_back({"a new database", [this] { store::Store::create(in_folder("team.desk")); }});
    steps_.push_back({"people", [this] {
                          database().together([this] {
                              database().add(store::User{.id = user, .name = "Ann"});
                              database().add(store::Contact{.id = contact, .fields = {{26, "Chris Smith"}}});
                          });
                      }});
    const DateTime start = DateTime::of(2024, 1, 8, 9);
    const auto activity = [=](const char* id, int hours) {
        return store::Activity{.id = id,
                               .regarding = id,
                               .start = start.plus_minutes(hours * 60),
                               .end = start.plus_minutes(hours * 60 + 60),
                               .duration = 60,
                               .user = user,
                               .contacts = {contact}};
    };
    steps_.push_back({"a series", [=, this] {
                          store::Activity one = activity(series, 0);
                          one.recurrence.kind = store::RecurrenceKind::daily;
                          database().add(one);
                      }});
    steps_.push_back({"a call", [=, this] { database().add(activity(call, 2)); }});
    steps_.push_back({"a change of it", [this] {
                          store::Activity one = database().activity(call).value();
                          one.regarding = "Changed";
                          database().update(one);
                      }});
    steps_.push_back({"an exception", [this] { database().add_exception(series, DateTime::of(2024, 1, 10)); }});
    steps_.push_back(
        {"a note",
         [this] { database().add(store::Note{.id = "N00000000001", .contact = contact, .text = "Likes tea"}); }});
    steps_.push_back({"a group", [this] {
                          database().add(
                              store::Group{.id = "G00000000001", .name = "Friends", .contacts = {contact}});
                      }});
    steps_.push_back({"a command", [this] { database().toolbar_commands().add({.name = "Orvanta"}); }});
}

void WorkSession::add_files() {
    steps_.push_back(
        {"an imported file", [this] { importing::import_file(database(), in_folder("meeting.ics")); }});
    steps_.push_back(
        {"an exported calendar", [this] { exporting::export_file(database(), in_folder("all.ics"), {}); }});
    steps_.push_back(
        {"exported contacts", [this] { exporting::export_file(database(), in_folder("all.vcf"), {}); }});
    steps_.push_back(
        {"a copy", [this] { database().save_copy(in_folder("copy.desk"), [](int, int) { return true; }); }});
}

calendar::Calendar& WorkSession::started() {
    if (!calendar_) {
        calendar_ = std::make_unique<calendar::Calendar>(outside_of_files(),
                                                         calendar::Face{window_, dialogs_, presenter_, question_});
        calendar_->start_up.Form_Load();
    }
    return *calendar_;
}

void WorkSession::start_again() {
    calendar_.reset();
    store_.reset();
}

void WorkSession::add_calendar() {
    steps_.push_back({"a change in the calendar", [this] {
                          act::Activity& activity = *started().act.session.ActActivity;
                          activity.Goto(call);
                          activity.Edit();
                          activity.Data(act::activity_field::regarding, std::string("From the calendar"));
                          activity.Update();
                      }});
    steps_.push_back({"an occurrence of its own",
                      [this] {
                          act::Activity& activity = *started().act.session.ActActivity;
                          activity.Goto(series);
                          const grid::clsMsgSchedCell& cell = started().grid.layout.Cells(2, 6);
                          started().interaction.instances.Change_Instance(cell, cell, 60);
                      },
                      false});
    steps_.push_back({"days off", [this] {
                          support::FakeHolidaysForm form;
                          forms::DaysOff dialog(here_, started().settings, form,
                                                started().grid.background.holidays, started().grid.layout);
                          form.Form_Unload = [&] { dialog.Form_Unload(); };
                          dialog.Form_Load();
                          form.set_chkday(1, true);
                          form.date = DateTime::of(2024, 5, 1);
                          form.description = "May Day";
                          dialog.cmdAdd_Click();
                          dialog.cmdOK_Click();
                      }});
    steps_.push_back({"the calendar's end", [this] { started().closing.Form_Unload(); }});
}

std::string WorkSession::run(const Step& step) {
    box.shown.clear();
    try {
        step.work();
    } catch (const values::Failure& failure) {
        return failure.description();
    }
    for (const host::Message& message : box.shown)
        if (message.text.starts_with("Error ") || message.text.find("can't be written") != message.text.npos)
            return message.text;
    return {};
}

std::string WorkSession::state() {
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder_))
        if (!belongs_to_a_database(entry.path()))
            files.push_back(entry.path());
    std::ranges::sort(files);
    std::string text;
    for (const fs::path& file : files) {
        text += "== " + file.filename().string() + "\n";
        text +=
            file.extension() == ".desk" ? content_of_database(file.string()) : support::content_of(file.string());
    }
    return text;
}

} // namespace faults
