#pragma once

#include <cstddef>
#include <limits>
#include <string>
#include <vector>

namespace importing {

// An entry of the file, so that a user finds it there.
struct Source {
    int line = 0; // of its beginning, from 1
    std::string title{};
    std::string uid{};
};

struct Remark {
    Source source;
    std::string text; // a sentence
};

// What became of the entries of a file. Those that an earlier import took are counted by themselves.
struct Report {
    std::string file{};
    std::string user{};         // for whom activities were scheduled
    std::size_t activities = 0; // series among them
    std::size_t series = 0;
    std::size_t contacts = 0;
    std::size_t notes = 0;
    std::size_t updated = 0; // activities, as are the next
    std::size_t unchanged = 0;
    std::size_t left_as_changed = 0; // by the user, since they were taken
    std::size_t left_deleted = 0;    // by the user
    std::size_t removed = 0;         // because their entry has them no longer
    std::size_t contacts_updated = 0;
    std::size_t contacts_unchanged = 0;
    std::size_t contacts_left_as_changed = 0;
    std::size_t outside_hours = 0; // activities for which the calendar has no time slot
    std::size_t mended_lines = 0;  // lines with bytes that were no UTF-8
    std::vector<Remark> changed{}; // taken, but not quite as they stood
    std::vector<Remark> skipped{};

    // For people, in lines. At most so many remarks of each kind are written out, the rest counted.
    std::string text(std::size_t most_remarks = std::numeric_limits<std::size_t>::max()) const;
};

} // namespace importing
