#pragma once

namespace shell {

// The process that the program runs in.
class Program {
public:
    virtual ~Program() = default;
    // True when this user has the program running on this display already.
    virtual bool already_running() = 0;
    // Ends the process once its present event is done; nothing the program shows or times comes after it.
    virtual void end() = 0;
};

} // namespace shell
