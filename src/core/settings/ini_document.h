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
    std::string bytes() const { return encoded(file_); }

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
    struct Range {
        std::size_t begin = 0;
        std::size_t end = 0;
    };
    struct Key {
        std::string name;
        Range line;  // with its line end
        Range value; // with its quotes
    };
    struct Section {
        std::string name;
        Range header; // with its line end
        std::size_t end = 0;
        std::vector<Key> keys{};
        std::unordered_map<std::string, std::size_t> by_name{};
    };

    void parse();
    void parse_line(Range line);
    void replace(Range range, std::string_view text);
    void insert_lines(std::size_t at, const std::vector<std::string>& lines);
    std::string_view line_end() const;
    const Section* find(std::string_view section) const;
    static const Key* find(const Section& section, std::string_view key);

    FileText file_;
    std::vector<Section> sections_;
    std::unordered_map<std::string, std::size_t> by_name_;
};

} // namespace settings
