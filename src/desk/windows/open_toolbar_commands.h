#pragma once

#include "desk/store/toolbar_commands.h"
#include "desk/windows/open_database.h"

namespace windows {

// The toolbar commands of whichever database is open. Without one every member fails with 440.
class OpenToolbarCommands : public store::ToolbarCommands {
public:
    explicit OpenToolbarCommands(const OpenDatabase& database) : database_(database) {}

    std::vector<store::ToolbarCommand> all() override { return commands().all(); }
    std::vector<store::ToolbarCommand> at(store::CommandPlace place, int view) override {
        return commands().at(place, view);
    }
    bool exists(const std::string& name) override { return commands().exists(name); }
    void add(const store::ToolbarCommand& command) override { commands().add(command); }
    bool stands(const std::string& name, store::CommandPlace place, int view) override {
        return commands().stands(name, place, view);
    }
    bool place(const std::string& name, store::CommandPlace place, int view) override {
        return commands().place(name, place, view);
    }
    bool displace(const std::string& name, store::CommandPlace place, int view) override {
        return commands().displace(name, place, view);
    }

private:
    store::ToolbarCommands& commands() const { return database_.store().toolbar_commands(); }

    const OpenDatabase& database_;
};

} // namespace windows
