#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace engine {

// The ids of the activities placed since the last full refresh, each standing once. It is a plain text of ids
// joined with no separator, and an id counts as held wherever it occurs in that text, across the border of two
// others as well. A filter of all its 12-byte pieces answers nearly every question without a search.
class DisplayedIds {
public:
    DisplayedIds();

    const std::string& text() const { return text_; }
    bool contains(std::string_view id) const;
    // The ids one by one, in their order. None where an id that begins with that character might be found anywhere
    // but as one of them, now or once some of them have been taken out.
    std::optional<std::vector<std::string_view>> one_by_one(char first_of_ids) const;
    void append(std::string_view id);
    void remove(std::string_view id); // every occurrence
    void clear();

private:
    void note_pieces(std::size_t from, std::size_t to); // those with a character from there to there
    bool may_hold(const char* piece) const;

    std::string text_;
    std::vector<std::uint64_t> filter_; // two bits are set for every piece that ever stood in the text
};

} // namespace engine
