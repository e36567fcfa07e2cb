#pragma once

#include <string>

// Which process of which machine wrote something, so that others can tell later whether it still runs.
namespace store {

std::string this_process();

// False once the process has ended, or its machine was started again. True where that can't be told, as of a
// process of another machine.
bool is_running(const std::string& process);

} // namespace store
