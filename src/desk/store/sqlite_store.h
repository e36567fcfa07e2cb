#pragma once

#include "desk/store/activity_reading.h"
#include "desk/store/activity_records.h"
#include "desk/store/imported_records.h"
#include "desk/store/people_records.h"
#include "desk/store/sqlite_connection.h"
#include "desk/store/store.h"
#include "desk/store/temporary_instances.h"
#include "desk/store/toolbar_commands.h"
#include "desk/store/transactions.h"

namespace store {

// The store over a SQLite file. Each kind of record has a class of its own.
class SqliteStore final : public Store {
public:
    SqliteStore(std::unique_ptr<SqliteConnection> connection, Clock clock);

    const std::string& path() const override { return connection_->path(); }
    bool is_read_only() const override { return connection_->is_read_only(); }
    std::int64_t revision() override { return transactions_.revision(); }
    void begin_reading() override { transactions_.begin_reading(); }
    void end_reading() override { transactions_.end_reading(); }
    void together(const std::function<void()>& block) override { transactions_.together(block); }

    std::vector<User> users() override { return people_.users(); }
    std::string add(const User& user) override { return people_.add(user); }
    std::vector<Group> groups() override { return people_.groups(); }
    std::optional<Group> group(const std::string& id) override { return people_.group(id); }
    std::string add(const Group& group) override { return people_.add(group); }
    void update(const Group& group) override { people_.update(group); }
    std::vector<Contact> contacts() override { return people_.contacts(); }
    std::optional<Contact> contact(const std::string& id) override { return people_.contact(id); }
    std::string add(const Contact& contact) override { return people_.add(contact); }
    std::int64_t update(const Contact& contact) override { return people_.update(contact); }
    std::vector<Note> notes(const std::string& contact) override { return people_.notes(contact); }
    std::string add(const Note& note) override { return people_.add(note); }

    std::vector<Activity> activities(const ActivityQuery& query) override { return activities_.activities(query); }
    std::vector<Activity> activities(const ActivityQuery& query, int skip, int most) override {
        return activities_.activities(query, skip, most);
    }
    int count(const ActivityQuery& query) override { return activities_.count(query); }
    std::optional<Activity> activity(const std::string& id) override { return activities_.activity(id); }
    std::string add(const Activity& activity) override { return activities_.add(activity); }
    std::int64_t update(const Activity& activity) override { return activities_.update(activity); }
    void remove_activity(const std::string& id) override { activities_.remove(id); }
    void add_exception(const std::string& activity, DateTime date) override {
        activities_.add_exception(activity, date);
    }
    void remove_exception(const std::string& activity, DateTime date) override {
        activities_.remove_exception(activity, date);
    }

    ActivityReading& reading() override { return *reading_; }
    ToolbarCommands& toolbar_commands() override { return *toolbar_commands_; }
    TemporaryInstances& temporary_instances() override { return *temporary_instances_; }
    bool save_copy(const std::string& path, const Progress& progress) override;
    ImportedRecords& imported_records() override { return *imported_records_; }
    std::string identity() override;

private:
    std::unique_ptr<SqliteConnection> connection_;
    Clock clock_;
    Transactions transactions_{*connection_};
    PeopleRecords people_{*connection_, transactions_};
    ActivityRecords activities_{*connection_, transactions_, clock_};
    std::unique_ptr<ActivityReading> reading_;
    std::unique_ptr<ToolbarCommands> toolbar_commands_;
    std::unique_ptr<TemporaryInstances> temporary_instances_;
    std::unique_ptr<ImportedRecords> imported_records_;
};

std::unique_ptr<ActivityReading> make_activity_reading(SqliteConnection& connection);
std::unique_ptr<ToolbarCommands> make_toolbar_commands(SqliteConnection& connection, Store& store);
std::unique_ptr<TemporaryInstances> make_temporary_instances(SqliteConnection& connection, Store& store);
std::unique_ptr<ImportedRecords> make_imported_records(SqliteConnection& connection, Store& store);

} // namespace store
