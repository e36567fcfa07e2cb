#pragma once

#include <string>
#include <vector>

namespace store {

// A command that another program adds to the contact manager.
struct ToolbarCommand {
    std::string name{}; // unique
    std::string program{}, folder{}, title{}, caption{}, icon{}, large_icon{};
    int flag = 1;
};

enum class CommandPlace { toolbar, tools_menu };

// The commands of other programs and where they stand: in the toolbar or the Tools menu of the views 1 to 6.
// Failures as the store's.
class ToolbarCommands {
public:
    virtual ~ToolbarCommands() = default;
    virtual std::vector<ToolbarCommand> all() = 0;                            // by name
    virtual std::vector<ToolbarCommand> at(CommandPlace place, int view) = 0; // by name
    virtual bool exists(const std::string& name) = 0;
    virtual void add(const ToolbarCommand& command) = 0; // one of the same name is replaced and keeps its places
    virtual bool stands(const std::string& name, CommandPlace place, int view) = 0;
    // Places a command, which may stand there already. False when there is no such command or view.
    virtual bool place(const std::string& name, CommandPlace place, int view) = 0;
    // False when it didn't stand there.
    virtual bool displace(const std::string& name, CommandPlace place, int view) = 0;
};

} // namespace store
