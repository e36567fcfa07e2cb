#pragma once

#include "desk/store/store.h"

#include <cstdint>
#include <string>

// The database's records as files of other programs' formats, and for another desk to have them back whole
// (docs/exchange.md).
namespace exporting {

struct Options {
    std::string user{};     // whose activities; empty for everybody's
    std::int64_t stamp = 0; // the present moment in seconds since 1970
};

// What came into a file.
struct Report {
    std::string file{};
    std::string user{}; // empty for everybody
    bool is_calendar = true;
    std::size_t activities = 0; // series among them
    std::size_t series = 0;
    std::size_t without_date = 0;
    std::size_t without_rule = 0; // series that other programs see once
    std::size_t contacts = 0;
    std::size_t notes = 0;
    std::size_t groups_without_contacts = 0; // which no card can tell of
    std::size_t bytes = 0;

    std::string text() const; // for people, in lines
};

// A path that ends in ".ics" gets the activities, one in ".vcf" all contacts with their notes and groups. All or
// nothing: a failure (values::Failure, with a sentence for the user) leaves the file that stood there, or none. It
// comes when the path ends in another way or can't be written, when there is no such user, and from the store.
Report export_file(store::Store& store, const std::string& path, const Options& options);

} // namespace exporting
