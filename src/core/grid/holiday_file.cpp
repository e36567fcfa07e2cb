#include "core/grid/holiday_file.h"

#include "core/settings/ini_file.h"
#include "core/settings/text_encoding.h"
#include "core/values/failure.h"
#include "core/values/text.h"
#include "core/values/text_forms.h"

namespace grid {

namespace {

// The titles look the descriptions up in the file as they look up settings.
constexpr std::size_t most_bytes = settings::IniFile::most_bytes;

using values::Failure;
using values::FailureNumber;

// Takes the next line off the text; CR, LF and both together end one.
std::string_view next_line(std::string_view& text) {
    const std::size_t end = text.find_first_of("\r\n");
    const std::string_view line = text.substr(0, end);
    if (end == text.npos)
        text = {};
    else
        text.remove_prefix(end + (text.substr(end).starts_with("\r\n") ? 2 : 1));
    return line;
}

} // namespace

bool HolidayFile::holds(values::DateTime day) const {
    return values::contains(Holidays, "|" + values::short_date(day, here_.locale) + "|");
}

std::vector<std::string> HolidayFile::lines() const {
    std::vector<std::string> lines;
    if (!here_.files.exists(HolidaysFile))
        return lines;
    const std::optional<host::FileContent> file = here_.files.read(HolidaysFile, most_bytes);
    if (!file)
        throw Failure(FailureNumber::path_file_access);
    const settings::FileText content = settings::decoded(file->bytes);
    std::string_view rest = content.text;
    next_line(rest);
    while (!rest.empty())
        lines.emplace_back(next_line(rest));
    return lines;
}

std::string HolidayFile::Get_Holidays() const {
    return here_.guarded("in frmMain: Function Get_Holidays - Line # ", [&](host::Step& step) {
        std::string holidays;
        step = 10;
        for (const std::string& line : lines()) {
            step = 20;
            const std::vector<std::string> pieces = values::split(line, "=");
            step = 30;
            if (pieces.empty())
                throw Failure(FailureNumber::subscript_out_of_range);
            holidays += "|" + pieces.front() + "|";
        }
        return holidays;
    });
}

void HolidayFile::write(std::span<const Holiday> holidays) {
    settings::FileText file;
    if (const auto old = here_.files.read(HolidaysFile, most_bytes))
        file = settings::decoded(old->bytes);
    file.odd_byte.clear();
    file.text = "[Holidays]\r\n";
    for (const Holiday& holiday : holidays)
        file.text += holiday.date + "=" + holiday.description + "\r\n";
    const std::string bytes = settings::encoded(file);
    if (bytes.size() > most_bytes || !here_.files.replace(HolidaysFile, bytes))
        throw Failure(FailureNumber::path_file_access);
}

} // namespace grid
