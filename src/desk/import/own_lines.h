#pragma once

#include "desk/import/content_lines.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The lines that the desk adds to what it writes, for what iCalendar and vCard have no place for. docs/exchange.md
// tells them all. The export writes what the import reads.
namespace importing::own {

inline constexpr std::string_view prefix = "X-ORVANTA-";
// Of an entry. The first two stand in every one.
inline constexpr std::string_view type = "X-ORVANTA-TYPE";   // CALL, MEETING, TO-DO
inline constexpr std::string_view times = "X-ORVANTA-TIMES"; // start|end|minutes
inline constexpr std::string_view regarding = "X-ORVANTA-REGARDING";
inline constexpr std::string_view details = "X-ORVANTA-DETAILS";
inline constexpr std::string_view alarm = "X-ORVANTA-ALARM"; // 1 or 0|minutes before
inline constexpr std::string_view colour = "X-ORVANTA-COLOUR";
inline constexpr std::string_view cleared = "X-ORVANTA-CLEARED"; // 1 or 0
inline constexpr std::string_view result = "X-ORVANTA-RESULT";
inline constexpr std::string_view series = "X-ORVANTA-SERIES"; // kind|every|until|weekdays|weeks|days of month
inline constexpr std::string_view exceptions = "X-ORVANTA-EXCEPTIONS"; // date|date|...
inline constexpr std::string_view contact = "X-ORVANTA-CONTACT";       // name of the record|name|mail|company
// Of an entry, of a card (with the place in the group) and, all of them, of a calendar.
inline constexpr std::string_view group = "X-ORVANTA-GROUP"; // name of the record|name|place
// Of an entry and, all of them, of a calendar.
inline constexpr std::string_view user = "X-ORVANTA-USER"; // name|security|access
// Of a card.
inline constexpr std::string_view field = "X-ORVANTA-FIELD"; // number|text
inline constexpr std::string_view note = "X-ORVANTA-NOTE";   // written|text
// Of an entry and of a card: a digest of the record that was written, and whether other programs left it as it
// was.
inline constexpr std::string_view record = "X-ORVANTA-RECORD";
inline constexpr std::string_view check = "X-ORVANTA-CHECK";
// Of an entry: the same for its start, its rule of recurrence and its exceptions alone.
inline constexpr std::string_view rule_check = "X-ORVANTA-RULE-CHECK";

inline constexpr std::string_view types[] = {"CALL", "MEETING", "TO-DO"};
inline constexpr std::string_view series_kinds[] = {"", "DAILY", "WEEKLY", "DAYS-OF-MONTH", "WEEKDAYS-OF-MONTH"};

// Any bytes as the part of a line's value, and back. The value has none of the characters to which programs give a
// meaning in texts, so that one that reads and writes it as a text changes nothing.
std::string escaped(std::string_view bytes);
std::string plain(std::string_view text);

// A value's parts between upright bars, plain; missing ones are empty.
class Parts {
public:
    explicit Parts(std::string_view value);
    std::string text(std::size_t number) const { return number < parts_.size() ? parts_[number] : std::string(); }
    // Absent when the part is no whole number.
    std::optional<std::int64_t> number(std::size_t number) const;
    std::size_t size() const { return parts_.size(); }

private:
    std::vector<std::string> parts_;
};

// Absent when the component has no such line.
std::optional<Parts> parts_in(const Component& component, std::string_view name);
std::vector<Parts> all_parts_in(const Component& component, std::string_view name);

// A digest of the lines that other programs know, in whatever order, but for when it was written.
std::string check_of(const Component& component);
std::string rule_check_of(const Component& component);
// Whether other programs left the component, or its dates, as the desk wrote them.
bool is_untouched(const Component& component);
bool has_untouched_rule(const Component& component);

// The name of a record (UID) in files, made of its id and its database's identity.
std::string uid_of(const std::string& id, const std::string& identity);
// The record's id when it is one of this database's.
std::optional<std::string> id_of(std::string_view uid, const std::string& identity);

} // namespace importing::own
