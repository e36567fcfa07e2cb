#include "core/engine/displayed_ids.h"

#include "core/values/ids.h"

#include <algorithm>
#include <cstring>

namespace engine {

namespace {

constexpr std::size_t least_words = std::size_t{1} << 14; // as all their numbers, a power of two

struct Bits {
    std::uint32_t first, second;
};

Bits bits_of(const char* piece) {
    std::uint64_t head = 0;
    std::uint32_t tail = 0;
    static_assert(sizeof head + sizeof tail == values::id_length);
    std::memcpy(&head, piece, sizeof head);
    std::memcpy(&tail, piece + sizeof head, sizeof tail);
    const std::uint64_t mixed = (head ^ tail * 0x9E3779B97F4A7C15u) * 0xD6E8FEB86659FD93u;
    const std::uint64_t hash = (mixed ^ mixed >> 32) * 0xD6E8FEB86659FD93u;
    return {static_cast<std::uint32_t>(hash >> 32), static_cast<std::uint32_t>(hash ^ hash >> 32)};
}

} // namespace

DisplayedIds::DisplayedIds() : filter_(least_words) {}

bool DisplayedIds::may_hold(const char* piece) const {
    const auto is_set = [this](std::uint32_t bit) {
        return (filter_[bit / 64 & (filter_.size() - 1)] >> bit % 64 & 1) != 0;
    };
    const Bits bits = bits_of(piece);
    return is_set(bits.first) && is_set(bits.second);
}

bool DisplayedIds::contains(std::string_view id) const {
    if (id.size() == values::id_length && !may_hold(id.data()))
        return false;
    // The occurrences of a series follow one another, so that it mostly is the last id.
    return text_.ends_with(id) || text_.find(id) != std::string::npos;
}

std::optional<std::vector<std::string_view>> DisplayedIds::one_by_one(char first_of_ids) const {
    // Where the character stands at their beginnings alone, it does so in whatever of them is left.
    const auto beginnings = static_cast<std::size_t>(std::ranges::count(text_, first_of_ids));
    if (text_.size() != beginnings * values::id_length)
        return std::nullopt;
    std::vector<std::string_view> ids;
    ids.reserve(beginnings);
    for (std::string_view rest = text_; !rest.empty(); rest.remove_prefix(values::id_length)) {
        if (rest.front() != first_of_ids)
            return std::nullopt;
        ids.push_back(rest.substr(0, values::id_length));
    }
    return ids;
}

void DisplayedIds::append(std::string_view id) {
    const std::size_t old_size = text_.size();
    text_ += id;
    if (text_.size() <= filter_.size()) {
        note_pieces(old_size, text_.size());
    } else { // too full to rule out most of what isn't there
        filter_.assign(filter_.size() * 2, 0);
        note_pieces(0, text_.size());
    }
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
    // What ends after `from` may have begun before it.
    const std::size_t first = from < values::id_length ? 0 : from - values::id_length + 1;
    for (std::size_t at = first; at <= to && at + values::id_length <= text_.size(); ++at) {
        const Bits bits = bits_of(text_.data() + at);
        for (const std::uint32_t bit : {bits.first, bits.second})
            filter_[bit / 64 & (filter_.size() - 1)] |= std::uint64_t{1} << bit % 64;
    }
}

} // namespace engine
