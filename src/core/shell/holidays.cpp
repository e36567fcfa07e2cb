#include "shell/holidays.h"

#include "values/failure.h"
#include "values/text.h"

namespace shell {

namespace {

constexpr std::size_t most_bytes = 16 * 1024 * 1024;

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

std::string HolidayFile::Get_Holidays(const std::string& path) const {
    return guarded_("in frmMain: Function Get_Holidays - Line # ", [&](host::Step& step) {
        std::string holidays;
        step = 10;
        if (!files_.exists(path))
            return holidays;
        step = 20;
        const std::optional<host::FileContent> file = files_.read(path, most_bytes);
        if (!file)
            throw Failure(FailureNumber::path_file_access);
        const std::string text =
            values::is_utf8(file->bytes) ? file->bytes : values::utf8_from_windows_1252(file->bytes);
        std::string_view rest = text;
        step = 30;
        next_line(rest);
        while (!rest.empty()) {
            step = 40;
            const std::vector<std::string> pieces = values::split(next_line(rest), "=");
            step = 50;
            if (pieces.empty())
                throw Failure(FailureNumber::subscript_out_of_range);
            holidays += "|" + pieces.front() + "|";
        }
        return holidays;
    });
}

} // namespace shell
