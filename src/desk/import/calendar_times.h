#pragma once

#include "desk/import/content_lines.h"
#include "desk/import/local_zone.h"
#include "desk/import/zones.h"

#include <libical/ical.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

// Times of a calendar, with their zones.
namespace importing {

struct FreeComponent {
    void operator()(icalcomponent* component) const { icalcomponent_free(component); }
};
using ParsedComponent = std::unique_ptr<icalcomponent, FreeComponent>;

// The parser's time rises with the square of a line's length. Of a free text, which is stored shorter anyway, so
// many bytes go through it; any other line that is longer doesn't go at all, nor one with several times whose
// parameters are long, since the parser repeats them for each.
inline constexpr std::size_t longest_line = 200000;
bool is_too_long(const Line& line);

// The component through the library's parser, with those of its lines and parts that an import reads. Absent when
// the parser makes nothing of it.
ParsedComponent parsed(const Component& component);
// The units of work that this takes.
std::size_t units_to_parse(const Component& component);

std::int64_t seconds_of(const icaldurationtype& duration);

// A date or a time as it stands in the calendar.
struct ZonedTime {
    values::DateTime wall_clock{};
    bool is_date = false;
    const Zone* zone = nullptr; // where its clock is; none for a date and for a time that holds everywhere
};

struct Period {
    ZonedTime start{};
    std::optional<std::int64_t> minutes{}; // absent when only the start is told
};

class Times {
public:
    Times(Zones& zones, const LocalTime& local_time, Work& work)
        : zones_(zones), local_time_(local_time), work_(work) {}

    // The times that a property holds. Impossible ones, as a 31st of June, and those outside the years 1900 to
    // 2500 are left out.
    std::vector<ZonedTime> all(icalproperty* property);
    // The same with their lengths. One that ends before it starts has a length below zero.
    std::vector<Period> periods(icalproperty* property);
    // That of the component's first property of a kind.
    std::optional<ZonedTime> first(icalcomponent* component, icalproperty_kind kind);
    // To the minute, in the local zone.
    values::DateTime local(const ZonedTime& time) const;
    // What clocks at that zone, or here where it is none, show at a moment in UTC.
    values::DateTime wall_clock(values::DateTime utc, const Zone* zone) const;

private:
    const Zone* zone_of(icalproperty* property);

    Zones& zones_;
    const LocalTime& local_time_;
    Work& work_;
};

} // namespace importing
