#include "desk/import/report.h"

#include "desk/import/shown_hours.h"

#include <algorithm>

namespace importing {
namespace {

std::string counted(std::size_t count, const std::string& one, const std::string& many) {
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

std::string records(std::size_t activities, std::size_t contacts) {
    std::string text = activities > 0 ? counted(activities, "activity", "activities") : "";
    if (contacts > 0)
        text += (text.empty() ? "" : " and ") + counted(contacts, "contact", "contacts");
    return text;
}

std::string taken_before(const Report& report) {
    std::string text;
    const auto add = [&](const std::string& what, const char* became) {
        if (!what.empty())
            text += (text.empty() ? "Taken before: " : ", ") + what + " " + became;
    };
    add(records(report.updated, report.contacts_updated), "updated");
    add(records(report.unchanged, report.contacts_unchanged), "unchanged");
    add(records(report.left_as_changed, report.contacts_left_as_changed), "left as changed by the user");
    add(records(report.left_deleted, 0), "left deleted");
    add(records(report.removed, 0), "removed, as the file has no more of them");
    return text.empty() ? text : text + ".\n";
}

std::string shown_hours() {
    const auto hour = [](int minutes) { return std::to_string(minutes / 60) + ":00"; };
    return " (" + hour(first_slot) + " to " + hour(first_slot + slot_count * slot_minutes) +
           ", unless its time slots were set otherwise)";
}

std::string line_of(const Remark& remark) {
    std::string line = "  line " + std::to_string(remark.source.line);
    if (!remark.source.title.empty())
        line += ", \"" + remark.source.title + "\"";
    if (!remark.source.uid.empty())
        line += " (" + remark.source.uid + ")";
    return line + ": " + remark.text + "\n";
}

std::string listed(const std::string& heading, const std::vector<Remark>& remarks, std::size_t most) {
    if (remarks.empty())
        return {};
    std::string text = heading + "\n";
    const std::size_t shown = std::min(most, remarks.size());
    for (std::size_t i = 0; i < shown; ++i)
        text += line_of(remarks[i]);
    if (shown < remarks.size())
        text += "  and " + std::to_string(remarks.size() - shown) + " more\n";
    return text;
}

} // namespace

std::string Report::text(std::size_t most_remarks) const {
    std::string text = "Taken from " + file + ": " + counted(activities, "activity", "activities");
    if (series > 0)
        text += " (" + std::to_string(series) + " recurring)";
    if (activities > 0)
        text += " for " + user;
    text +=
        ", " + counted(contacts, "new contact", "new contacts") + ", " + counted(notes, "note", "notes") + ".\n";
    text += taken_before(*this);
    if (outside_hours > 0)
        text += counted(outside_hours, "activity lies", "activities lie") +
                " outside the hours that the calendar shows" + shown_hours() + ".\n";
    if (mended_lines > 0)
        text += counted(mended_lines, "line isn't", "lines aren't") + " UTF-8 and " +
                (mended_lines == 1 ? "was" : "were") + " read as Windows-1252.\n";
    return text + listed("Taken with a change:", changed, most_remarks) +
           listed("Skipped:", skipped, most_remarks);
}

} // namespace importing
