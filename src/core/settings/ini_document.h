#pragma once

#include "core/settings/text_encoding.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace settings {

// The sections, keys and values of an INI file, as the platform's private profile functions see them. Case doesn't
// count in names, nor do blanks and tabs round names and values. Of sections of one name only the first counts, of
// keys of one name the first. A change touches its own line alone: order, comments, blank lines, spacing, line
// ends and encoding stay.
class IniDocument {
public:
    explicit IniDocument(std::string_view bytes = {});
    std::string bytes() const;

    // Without one pair of quotes round it. Absent when there is no such key.
    std::optional<std::string> value(std::string_view section, std::string_view key) const;
    // In file order, duplicates too.
    std::vector<std::string> keys(std::string_view section) const;
    std::vector<std::string> sections() const;

    // The key goes after the section's last key, a new section to the end. False, with nothing changed, for what
    // could not be read back: an empty name, a line end or NUL, a text that isn't UTF-8, a "]" in a section, a "="
    // in a key, a key that begins like a comment or a section.
    bool set(std::string_view section, std::string_view key, std::string_view value);
    // Header, keys and comments go. False when there is nothing of that name, as below.
    bool remove_section(std::string_view section);
    bool remove_key(std::string_view section, std::string_view key);

private:
    struct Line {
        std::string text;      // with its line end
        std::string name{};    // of its key; empty for a line that holds none
        std::size_t value = 0; // where the value begins, and how long it is, with its quotes
        std::size_t value_length = 0;
    };
    struct Section {
        std::string name{};
        std::vector<Line> lines{};                              // its header, then all up to the next
        std::unordered_map<std::string, std::size_t> by_name{}; // the line of each key
        std::size_t last_key = 0;                               // its line, or the header's

        void find_keys();
    };

    static Line line_of(std::string text);
    void take_line(std::string_view text);
    void find_sections();
    void end_line(Section& section, std::size_t place) const;
    std::string line_end() const;
    template <typename Document> // const or not
    static auto* find_in(Document& document, std::string_view section);
    Section* find(std::string_view section);
    const Section* find(std::string_view section) const;
    static const Line* find(const Section& section, std::string_view key);

    FileText form_;                 // without its text, which stands in the sections
    std::vector<Section> sections_; // the first is what stands before all sections
    std::unordered_map<std::string, std::size_t> by_name_;
};

} // namespace settings
