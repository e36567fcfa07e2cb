#include "core/forms/holiday_list.h"

#include "core/values/failure.h"
#include "core/values/text.h"
#include "core/values/text_forms.h"

#include <algorithm>

namespace forms {

namespace {

std::string one_line(std::string_view text) {
    std::string line(text);
    for (char& character : line)
        if (character == '\r' || character == '\n' || character == '\0')
            character = ' ';
    return line;
}

} // namespace

void HolidayList::append(std::string_view line) {
    std::vector<std::string> pieces = values::split(line, "=");
    if (pieces.size() < 2)
        throw values::Failure(values::FailureNumber::subscript_out_of_range);
    dates_as_read_ += pieces[0];
    holidays_.push_back({std::move(pieces[0]), std::move(pieces[1])});
}

std::size_t HolidayList::insert(values::DateTime date, std::string_view description,
                                const values::Locale& locale) {
    const auto next = std::find_if(holidays_.begin(), holidays_.end(), [&](const grid::Holiday& holiday) {
        return values::to_date(holiday.date, locale) >= date;
    });
    const auto inserted = holidays_.insert(next, {values::short_date(date, locale), one_line(description)});
    return static_cast<std::size_t>(inserted - holidays_.begin());
}

void HolidayList::remove(std::size_t place) {
    const auto holiday = holidays_.begin() + static_cast<std::ptrdiff_t>(place);
    if (!holiday->date.empty())
        dates_as_read_ = values::replaced(dates_as_read_, holiday->date, "");
    holidays_.erase(holiday);
}

} // namespace forms
