#pragma once

#include "desk/import/calendar_times.h"
#include "desk/import/people.h"
#include "desk/import/report.h"
#include "desk/store/records.h"

namespace importing {

// A group as a desk's own file names it.
struct FoundGroup {
    std::string uid{};
    std::string name{};
};

struct FoundActivity {
    store::Activity activity{}; // without contacts, user and group
    std::vector<Person> people{};
    Source source{};
    std::string uid{};                 // by which it is known again; empty when the entry has none
    std::string occurrence{};          // which activity of the entry it is; empty for the entry's own
    std::string calendar{};            // the name of the one that it stands in
    bool is_own = false;               // a desk wrote it; then it has those people alone, and the next
    std::optional<std::string> user{}; // a name; empty for nobody's
    FoundGroup group{};
    std::string exported{}; // the digest of the record that was written
};

Source source_of(const Component& component);

// An event or a to-do without its recurrence.
struct Entry {
    Source source{};
    ParsedComponent component{};
    FoundActivity found{};
    ZonedTime start{};                  // as it stands
    std::vector<std::string> changes{}; // what is taken otherwise than it stands, in sentences
    std::string skipped{};              // why it can't be taken; empty when it can
    bool is_cancelled = false;          // which is then why
    bool is_settled = false;            // its recurrence is known already
    bool is_cut = false;                // it has more activities than were taken
};

// A duration as an activity can have it, in minutes. Where that is another one, the changes say so.
int duration_of(std::int64_t minutes, std::vector<std::string>& changes);

Entry read_entry(const Component& component, Times& times);

} // namespace importing
