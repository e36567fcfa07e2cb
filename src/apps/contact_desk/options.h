#pragma once

#include <stdexcept>
#include <string>
#include <variant>
#include <vector>

// The command line of the contact desk.
namespace apps {

struct ShowHelp {
    bool operator==(const ShowHelp&) const = default;
};
struct ShowVersion {
    bool operator==(const ShowVersion&) const = default;
};
struct ShowWindow {
    std::string database; // empty to start without one
    bool operator==(const ShowWindow&) const = default;
};
struct NewSample {
    std::string database;
    bool operator==(const NewSample&) const = default;
};
struct ImportFile {
    std::string file;
    std::string user; // a name; empty when none was given
    std::string database;
    bool with_deleted = false; // what was taken before and deleted since comes back
    bool operator==(const ImportFile&) const = default;
};
struct ExportFile {
    std::string file;
    std::string user; // a name; empty for everybody
    std::string database;
    bool operator==(const ExportFile&) const = default;
};
using Task = std::variant<ShowHelp, ShowVersion, ShowWindow, NewSample, ImportFile, ExportFile>;

// What is wrong with a command line, in a sentence.
struct UsageError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// What the arguments, without the program's own name, ask for. A "--" makes everything after it a file name.
// Throws UsageError.
Task task_of(const std::vector<std::string>& arguments);

std::string usage();

} // namespace apps
