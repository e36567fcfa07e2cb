#include "desk/import/zones.h"

#include "core/values/text.h"
#include "desk/import/zone_definition.h"
#include "desk/import/zone_file.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace importing {
namespace {

constexpr std::size_t longest_name = 255;       // bytes
constexpr std::size_t most_of_a_zone = 3000000; // units of work
constexpr std::size_t units_to_look_for_a_file = 2000;
constexpr std::size_t largest_file = 100000; // bytes

bool is_plain(std::string_view name) {
    return std::ranges::all_of(name, [](char c) {
        return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '/' ||
               c == '_' || c == '-' || c == '+';
    });
}

constexpr int most_pieces = 3; // of the machine's names, as in "America/Argentina/Ushuaia"

// Where the maker and the names come after each other, the place of the next one.
std::size_t next_piece(const std::string& name, std::size_t place) {
    const std::size_t slash = name.find('/', place);
    return slash == std::string::npos ? name.size() : slash + 1;
}

bool is_utc(const std::string& name) { return name == "UTC" || name == "Etc/UTC" || name == "GMT"; }

// Empty when the machine has no zone of that name.
std::string machine_file(const std::string& name) {
    const std::string path = "/usr/share/zoneinfo/" + name; // a name may begin with a slash
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error) || std::filesystem::file_size(path, error) > largest_file)
        return {};
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace

const Zone* MachineZones::read(const std::string& name) {
    auto place = read_.find(name);
    if (place == read_.end()) {
        std::optional<Zone> zone;
        if (is_utc(name)) {
            zone.emplace();
        } else if (is_plain(name)) {
            work_.spend(units_to_look_for_a_file);
            if (const std::string bytes = machine_file(name); !bytes.empty())
                zone = zone_in_file(bytes, [this](std::size_t units) { work_.spend(units); });
        }
        place = read_.emplace(name, std::move(zone)).first;
    }
    return place->second ? &*place->second : nullptr;
}

const Zone* MachineZones::find(const std::string& name) {
    if (name.size() > longest_name)
        return nullptr;
    std::size_t from = name.size();
    for (int piece = 0; piece < most_pieces && from != 0 && from != std::string::npos; ++piece)
        from = name.rfind('/', from - 1);
    for (from = from == std::string::npos ? 0 : from; from < name.size(); from = next_piece(name, from))
        if (const Zone* zone = read(name.substr(from)))
            return zone;
    const std::string other = other_names_ ? other_names_(name) : "";
    return other.empty() ? nullptr : read(other);
}

Zones::Zones(const Component& calendar, MachineZones& machine, Work& work) : machine_(machine), work_(work) {
    for (const Component& part : calendar.parts) {
        if (part.name != "VTIMEZONE")
            continue;
        std::string name(values::trimmed(value_in(part, "TZID")));
        for (const char* escaped : {"\\,", "\\;", "\\\\"})
            name = values::replaced(name, escaped, escaped + 1);
        definitions_.insert_or_assign(name, &part);
    }
}

const Zone* Zones::own(const std::string& name) {
    const auto definition = definitions_.find(name);
    if (definition == definitions_.end())
        return nullptr;
    auto place = own_.find(name);
    if (place == own_.end()) {
        std::optional<Zone> zone;
        const auto spend = [this](std::size_t units) { work_.spend(units); };
        work_.within(most_of_a_zone, [&] { zone = zone_of(*definition->second, spend); });
        place = own_.emplace(name, std::move(zone)).first;
    }
    return place->second ? &*place->second : nullptr;
}

const Zone* Zones::find(const std::string& name) {
    const Zone* zone = own(name);
    if (!zone)
        zone = machine_.find(name);
    if (!zone)
        unknown_.insert(name);
    return zone;
}

} // namespace importing
