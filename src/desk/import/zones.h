#pragma once

#include "desk/import/content_lines.h"
#include "desk/import/work.h"
#include "desk/import/zone.h"

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>

namespace importing {

// The machine's name ("Europe/Berlin") of a zone that another system names otherwise ("W. Europe Standard Time");
// empty when there is none.
using ZoneNames = std::function<std::string(const std::string& name)>;

// The zones that the machine knows.
class MachineZones {
public:
    MachineZones(ZoneNames other_names, Work& work) : other_names_(std::move(other_names)), work_(work) {}

    // By the machine's name, also with a maker in front ("/example.org/Europe/Berlin"), or by another. Absent when
    // the machine doesn't know it.
    const Zone* find(const std::string& name);

private:
    const Zone* read(const std::string& name);

    const ZoneNames other_names_;
    Work& work_;
    std::map<std::string, std::optional<Zone>> read_{};
};

// The zones that a calendar brings itself, and those of the machine.
class Zones {
public:
    Zones(const Component& calendar, MachineZones& machine, Work& work);

    // The calendar's own, or the machine's where the calendar has none or one that can't be used. Absent when
    // neither knows it; the name is then remembered.
    const Zone* find(const std::string& name);
    std::set<std::string> take_unknown() { return std::exchange(unknown_, {}); }

private:
    const Zone* own(const std::string& name);

    MachineZones& machine_;
    Work& work_;
    std::map<std::string, const Component*> definitions_{};
    std::map<std::string, std::optional<Zone>> own_{};
    std::set<std::string> unknown_{};
};

} // namespace importing
