#include "apps/contact_desk/options.h"

#include <optional>

namespace apps {
namespace {

struct Parts {
    bool help = false;
    bool version = false;
    bool with_deleted = false;
    std::optional<std::string> sample, import_from, export_to, user;
    std::vector<std::string> files;
};

void take_value(std::optional<std::string>& value, const std::string& option,
                const std::vector<std::string>& arguments, std::size_t& place) {
    if (value)
        throw UsageError(option + " is given twice.");
    if (place + 1 == arguments.size() || arguments[place + 1].empty())
        throw UsageError(option + " needs a value.");
    value = arguments[++place];
}

Parts parts_of(const std::vector<std::string>& arguments) {
    Parts parts;
    bool files_only = false;
    for (std::size_t place = 0; place < arguments.size(); ++place) {
        const std::string& argument = arguments[place];
        if (files_only || !argument.starts_with("-"))
            parts.files.push_back(argument);
        else if (argument == "--")
            files_only = true;
        else if (argument == "--help" || argument == "-h")
            parts.help = true;
        else if (argument == "--version")
            parts.version = true;
        else if (argument == "--new-sample")
            take_value(parts.sample, argument, arguments, place);
        else if (argument == "--import")
            take_value(parts.import_from, argument, arguments, place);
        else if (argument == "--export")
            take_value(parts.export_to, argument, arguments, place);
        else if (argument == "--with-deleted")
            parts.with_deleted = true;
        else if (argument == "--user")
            take_value(parts.user, argument, arguments, place);
        else
            throw UsageError("There is no option " + argument + ".");
    }
    for (const std::string& file : parts.files)
        if (file.empty())
            throw UsageError("A file name is empty.");
    return parts;
}

void require(bool holds, const char* sentence) {
    if (!holds)
        throw UsageError(sentence);
}

} // namespace

Task task_of(const std::vector<std::string>& arguments) {
    const Parts parts = parts_of(arguments);
    if (parts.help)
        return ShowHelp{};
    if (parts.version)
        return ShowVersion{};
    require(parts.sample.has_value() + parts.import_from.has_value() + parts.export_to.has_value() <= 1,
            "Of --new-sample, --import and --export one can be given.");
    require(!parts.user || parts.import_from || parts.export_to, "--user belongs to --import or --export.");
    require(!parts.with_deleted || parts.import_from, "--with-deleted belongs to --import.");
    if (parts.sample) {
        require(parts.files.empty(), "--new-sample takes one file.");
        return NewSample{*parts.sample};
    }
    if (parts.import_from) {
        require(parts.files.size() == 1, "--import needs the file and then one database.");
        return ImportFile{*parts.import_from, parts.user.value_or(""), parts.files.front(), parts.with_deleted};
    }
    if (parts.export_to) {
        require(parts.files.size() == 1, "--export needs the file and then one database.");
        return ExportFile{*parts.export_to, parts.user.value_or(""), parts.files.front()};
    }
    require(parts.files.size() <= 1, "One database can be opened at a time.");
    return ShowWindow{parts.files.empty() ? std::string() : parts.files.front()};
}

std::string usage() {
    return "Usage: contact-desk [DATABASE]\n"
           "       contact-desk --new-sample DATABASE\n"
           "       contact-desk --import FILE [--user NAME] [--with-deleted] DATABASE\n"
           "       contact-desk --export FILE.ics [--user NAME] DATABASE\n"
           "       contact-desk --export FILE.vcf DATABASE\n"
           "\n"
           "Without an option the contact desk opens in a window, with the database if one is named.\n"
           "\n"
           "  --new-sample DATABASE  makes a database with the sample company as of today\n"
           "  --import FILE          takes the records of an iCalendar or vCard file into the database\n"
           "  --export FILE          writes the activities to an iCalendar file, or the contacts to a vCard file\n"
           "  --user NAME            schedules what is imported for this user; writes this user's activities "
           "alone\n"
           "  --with-deleted         takes also what was imported before and has been deleted since\n"
           "  --help                 shows this text\n"
           "  --version              shows the version\n"
           "\n"
           "The exit status is 0 on success, 1 when something failed, 2 when the command line is wrong.\n";
}

} // namespace apps
