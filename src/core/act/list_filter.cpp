#include "core/act/list_filter.h"

#include "core/values/text.h"
#include "core/values/text_forms.h"

namespace act::filter_dates {

namespace {

constexpr const char* range_code = "6";
constexpr const char* separator = "\\";

} // namespace

std::string text_of(const Range& range, const values::Locale& locale) {
    return range_code + (separator + values::short_date(range.first, locale)) + separator +
           values::short_date(range.last, locale);
}

std::optional<Range> range_of(const std::string& dates, const values::Locale& locale) {
    const auto pieces = values::split(dates, separator);
    if (pieces.size() != 3 || pieces[0] != range_code)
        return std::nullopt;
    const auto first = values::parse_date(pieces[1], locale), last = values::parse_date(pieces[2], locale);
    return first && last ? std::optional(Range{first->date(), last->date()}) : std::nullopt;
}

} // namespace act::filter_dates
