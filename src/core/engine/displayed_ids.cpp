#include "engine/displayed_ids.h"

#include "values/ids.h"

#include <algorithm>
#include <cstring>

namespace engine {

namespace {

constexpr int filter_power = 20; // bits in the filter, as a power of two: room for some thousands of ids

std::size_t hash_of(const char* piece) {
    std::uint64_t head = 0;
    std::uint32_t tail = 0;
    static_assert(sizeof head + sizeof tail == values::id_length);
    std::memcpy(&head, piece, sizeof head);
    std::memcpy(&tail, piece + sizeof head, sizeof tail);
    const std::uint64_t mixed = (head ^ tail * 0x9E3779B97F4A7C15u) * 0xD6E8FEB86659FD93u;
    return static_cast<std::size_t>((mixed ^ mixed >> 32) * 0xD6E8FEB86659FD93u >> (64 - filter_power));
}

} // namespace

DisplayedIds::DisplayedIds() : filter_((std::size_t{1} << filter_power) / 64) {}

bool DisplayedIds::contains(std::string_view id) const {
    if (id.size() == values::id_length) {
        const std::size_t bit = hash_of(id.data());
        if ((filter_[bit / 64] >> bit % 64 & 1) == 0)
            return false;
    }
    // The occurrences of a series follow one another, so that the end of the text is the likely place.
    return text_.rfind(id) != std::string::npos;
}

void DisplayedIds::append(std::string_view id) {
    const std::size_t old_size = text_.size();
    text_ += id;
    note_pieces(old_size, text_.size());
}

void DisplayedIds::remove(std::string_view id) {
    if (id.empty() || !contains(id))
        return;
    for (std::size_t at = text_.find(id); at != std::string::npos; at = text_.find(id, at)) {
        text_.erase(at, id.size());
        note_pieces(at, at);
    }
}

void DisplayedIds::clear() {
    text_.clear();
    std::fill(filter_.begin(), filter_.end(), 0);
}

void DisplayedIds::note_pieces(std::size_t from, std::size_t to) {
    // What ends behind `from` may have begun before it.
    const std::size_t first = from < values::id_length ? 0 : from - values::id_length + 1;
    for (std::size_t at = first; at <= to && at + values::id_length <= text_.size(); ++at) {
        const std::size_t bit = hash_of(text_.data() + at);
        filter_[bit / 64] |= std::uint64_t{1} << bit % 64;
    }
}

} // namespace engine
