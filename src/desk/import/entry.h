#pragma once

#include "desk/import/calendar_times.h"
#include "desk/import/people.h"
#include "desk/import/report.h"
#include "desk/store/records.h"

namespace importing {

struct FoundActivity {
    store::Activity activity{}; // without contacts and user
    std::vector<Person> people{};
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
};

// A duration as an activity can have it, in minutes. Where that is another one, the changes say so.
int duration_of(std::int64_t minutes, std::vector<std::string>& changes);

Entry read_entry(const Component& component, Times& times);

} // namespace importing
