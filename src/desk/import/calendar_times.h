#pragma once

#include "desk/import/content_lines.h"
#include "desk/import/local_zone.h"

#include <libical/ical.h>

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

// Times of a calendar, with their zones.
namespace importing {

struct FreeComponent {
    void operator()(icalcomponent* component) const { icalcomponent_free(component); }
};
using ParsedComponent = std::unique_ptr<icalcomponent, FreeComponent>;

// The parser's time rises with the square of a line's length. Of a free text, which is stored shorter anyway, so
// many bytes go through it; any other line that is longer doesn't go at all.
inline constexpr std::size_t longest_line = 200000;
bool is_too_long(const Line& line);

// The component through the library's parser, with those of its lines and parts that an import reads. Absent when
// the parser makes nothing of it.
ParsedComponent parsed(const Component& component);

// The zones that a calendar brings itself, and those of the machine.
class Zones {
public:
    explicit Zones(const Component& calendar);

    // Absent when neither knows the name, which is then remembered.
    const icaltimezone* find(const std::string& name);
    std::set<std::string> take_unknown() { return std::exchange(unknown_, {}); }

private:
    struct FreeZone {
        void operator()(icaltimezone* zone) const { icaltimezone_free(zone, 1); }
    };
    std::map<std::string, std::unique_ptr<icaltimezone, FreeZone>> own_;
    std::set<std::string> unknown_;
};

class Times {
public:
    Times(Zones& zones, const LocalTime& local_time) : zones_(zones), local_time_(local_time) {}

    // The times that a property holds, in their own zone. Impossible ones, as a 31st of June, and those outside
    // the years 1900 to 2500 are left out.
    std::vector<icaltimetype> all(icalproperty* property);
    // That of the component's first property of a kind.
    std::optional<icaltimetype> first(icalcomponent* component, icalproperty_kind kind);
    // To the minute, in the local zone.
    values::DateTime local(const icaltimetype& time) const;

private:
    Zones& zones_;
    const LocalTime& local_time_;
};

} // namespace importing
