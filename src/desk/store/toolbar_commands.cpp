#include "desk/store/toolbar_commands.h"

#include "desk/store/sql.h"
#include "desk/store/sqlite_store.h"

namespace store {

namespace {

constexpr int last_view = 6;

class SqliteToolbarCommands final : public ToolbarCommands {
public:
    SqliteToolbarCommands(SqliteConnection& connection, Store& store) : connection_(connection), store_(store) {}

    std::vector<ToolbarCommand> all() override { return read(connection_.query(sql::commands)); }

    std::vector<ToolbarCommand> at(CommandPlace place, int view) override {
        return read(connection_.query(sql::commands_at, static_cast<int>(place), view));
    }

    bool exists(const std::string& name) override { return connection_.query(sql::command_exists, name).step(); }

    void add(const ToolbarCommand& command) override {
        store_.together([&] {
            connection_.run(sql::add_command, command.name, command.program, command.folder, command.title,
                            command.caption, command.icon, command.large_icon, command.flag);
        });
    }

    bool stands(const std::string& name, CommandPlace place, int view) override {
        return connection_.query(sql::command_stands, name, static_cast<int>(place), view).step();
    }

    bool place(const std::string& name, CommandPlace place, int view) override {
        if (view < 1 || view > last_view || !exists(name))
            return false;
        store_.together([&] { connection_.run(sql::place_command, name, static_cast<int>(place), view); });
        return true;
    }

    bool displace(const std::string& name, CommandPlace place, int view) override {
        bool stood = false;
        store_.together([&] {
            connection_.run(sql::displace_command, name, static_cast<int>(place), view);
            stood = connection_.changed_rows() > 0;
        });
        return stood;
    }

private:
    static std::vector<ToolbarCommand> read(Rows rows) {
        std::vector<ToolbarCommand> result;
        while (rows.step())
            result.push_back({.name = rows.text(0),
                              .program = rows.text(1),
                              .folder = rows.text(2),
                              .title = rows.text(3),
                              .caption = rows.text(4),
                              .icon = rows.text(5),
                              .large_icon = rows.text(6),
                              .flag = rows.small_number(7)});
        return result;
    }

    SqliteConnection& connection_;
    Store& store_;
};

} // namespace

std::unique_ptr<ToolbarCommands> make_toolbar_commands(SqliteConnection& connection, Store& store) {
    return std::make_unique<SqliteToolbarCommands>(connection, store);
}

} // namespace store
