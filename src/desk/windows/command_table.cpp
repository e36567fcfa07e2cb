#include "desk/windows/command_table.h"

#include "desk/model/refusal.h"

#include <string>
#include <utility>

namespace windows {

void CommandTable::add(act::CommandNumber number, Handler handler) { handlers_[number] = std::move(handler); }

void CommandTable::run(act::CommandNumber number, Finished finished) const {
    const auto handler = handlers_.find(number);
    if (handler == handlers_.end())
        model::refuse("The contact desk has no command " + std::to_string(static_cast<int>(number)) + ".");
    handler->second(std::move(finished));
}

} // namespace windows
