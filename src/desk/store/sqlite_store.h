#pragma once

#include "desk/store/activity_reading.h"
#include "desk/store/connection.h"
#include "desk/store/store.h"
#include "desk/store/toolbar_commands.h"

#include <map>
#include <optional>

namespace store {

// The store over a SQLite file.
class SqliteStore final : public Store {
public:
    SqliteStore(std::unique_ptr<Connection> connection, Clock clock);
    ~SqliteStore() override;

    const std::string& path() const override;
    bool is_read_only() const override;
    std::int64_t revision() override;
    void begin_reading() override;
    void end_reading() override;

    std::vector<User> users() override;
    std::string add(const User& user) override;
    std::vector<Group> groups() override;
    std::optional<Group> group(const std::string& id) override;
    std::string add(const Group& group) override;
    void update(const Group& group) override;

    std::vector<Contact> contacts() override;
    std::optional<Contact> contact(const std::string& id) override;
    std::string add(const Contact& contact) override;
    std::int64_t update(const Contact& contact) override;

    std::vector<Note> notes(const std::string& contact) override;
    std::string add(const Note& note) override;

    std::vector<Activity> activities(const ActivityQuery& query) override;
    std::optional<Activity> activity(const std::string& id) override;
    std::string add(const Activity& activity) override;
    std::int64_t update(const Activity& activity) override;
    void remove_activity(const std::string& id) override;
    void add_exception(const std::string& activity, DateTime date) override;
    void remove_exception(const std::string& activity, DateTime date) override;

    ActivityReading& reading() override { return *reading_; }
    ToolbarCommands& toolbar_commands() override { return *toolbar_commands_; }

protected:
    void begin() override;
    void commit() override;
    void roll_back() override;

private:
    // The counters of ids and of revisions, read at their first use in a transaction and written at its end:
    // nobody else can change them meanwhile.
    std::int64_t& counter(const std::string& name);
    std::int64_t next_revision() { return ++counter("revision"); }
    // The record's own id where it brings one, else the next of its kind.
    std::string id_for(const std::string& own, const std::string& counter_name, char letter);

    std::vector<std::string> members(const std::string& group);
    void write_members(const std::string& group, const std::vector<std::string>& contacts);
    void read_lists(Activity& activity, int contact_count);
    void write_lists(const Activity& activity);
    void touch(const std::string& activity);
    [[noreturn]] void fail_as_changed(std::string_view kind, bool still_exists) const;

    std::unique_ptr<Connection> connection_;
    Clock clock_;
    std::unique_ptr<ActivityReading> reading_;
    std::unique_ptr<ToolbarCommands> toolbar_commands_;
    bool is_reading_ = false; // between begin_reading and its end
    int open_blocks_ = 0;
    std::map<std::string, std::int64_t> counters_; // those used in this transaction
    std::int64_t known_data_version_ = -1;
    std::optional<std::int64_t> known_revision_;
};

std::unique_ptr<ActivityReading> make_activity_reading(Connection& connection);
std::unique_ptr<ToolbarCommands> make_toolbar_commands(Connection& connection, Store& store);

} // namespace store
