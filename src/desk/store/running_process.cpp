#include "desk/store/running_process.h"

#include <sys/types.h>

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fstream>

namespace store {

namespace {

// As the kernel tells them; empty where it doesn't.
std::string first_line(const std::string& path) {
    std::ifstream file(path);
    std::string line;
    std::getline(file, line);
    return line;
}

std::string machine() { return first_line("/etc/machine-id"); }
std::string boot() { return first_line("/proc/sys/kernel/random/boot_id"); }

// The tick of its start: a number of a process is given again, together with the tick it isn't. Empty for a
// process that has ended, and for one that the kernel doesn't tell us of.
std::string start_of(const std::string& number) {
    constexpr int fields_between = 19; // the state, the 3rd field, to the start, the 22nd
    const std::string line = first_line("/proc/" + number + "/stat");
    const std::size_t name_end = line.rfind(") ");
    if (name_end == line.npos || line.compare(name_end + 2, 1, "Z") == 0)
        return {};
    std::size_t begin = name_end + 2;
    for (int field = 0; field < fields_between && begin != 0; ++field)
        begin = line.find(' ', begin) + 1;
    return line.substr(begin, line.find(' ', begin) - begin);
}

// A process of another user, where the machine shows each user their own alone.
bool is_hidden(const std::string& number) {
    return ::kill(static_cast<pid_t>(std::atol(number.c_str())), 0) != 0 && errno == EPERM;
}

// The next part of a text of parts between blanks.
std::string next_part(std::string& rest) {
    const std::size_t end = std::min(rest.find(' '), rest.size());
    std::string part = rest.substr(0, end);
    rest.erase(0, end + 1);
    return part;
}

} // namespace

std::string this_process() {
    const std::string number = std::to_string(::getpid());
    return machine() + " " + boot() + " " + number + " " + start_of(number);
}

bool is_running(const std::string& process) {
    std::string rest = process;
    if (next_part(rest) != machine())
        return true;
    if (next_part(rest) != boot())
        return false;
    const std::string number = next_part(rest);
    const bool is_number =
        !number.empty() && std::ranges::all_of(number, [](char c) { return c >= '0' && c <= '9'; });
    if (!is_number || rest.empty())
        return false;
    const std::string start = start_of(number);
    return start == rest || (start.empty() && is_hidden(number));
}

} // namespace store
