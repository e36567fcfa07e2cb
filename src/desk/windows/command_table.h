#pragma once

#include "core/act/application.h"

#include <functional>
#include <map>

namespace windows {

// What the numbered commands do.
class CommandTable {
public:
    using Finished = std::function<void()>;
    // Begins the command; calls what it is given once, when the command is over. Throws when it can't begin.
    using Handler = std::function<void(Finished)>;

    void add(act::CommandNumber number, Handler handler);
    // Fails with 440 for a number that nobody handles.
    void run(act::CommandNumber number, Finished finished) const;

private:
    std::map<act::CommandNumber, Handler> handlers_;
};

} // namespace windows
