#include "core/settings/ini_lib.h"

#include "core/values/numbers.h"
#include "core/values/text.h"

namespace settings {

namespace {

constexpr std::size_t most_value_characters = 999;
// The room for a section's key names, each with an end mark, and one end mark more for the list.
constexpr std::size_t names_room = 2000;

std::vector<std::string> cut_to_room(std::vector<std::string> names) {
    std::size_t total = 1;
    for (const std::string& name : names)
        total += values::length(name) + 1;
    if (total <= names_room)
        return names;
    std::size_t room = names_room - 2;
    std::vector<std::string> fitting;
    for (const std::string& name : names) {
        if (room == 0)
            break;
        fitting.push_back(values::first_characters(name, room));
        room -= values::length(fitting.back());
        room -= room > 0 ? 1 : 0;
    }
    return fitting;
}

} // namespace

std::string IniLib::GetKeyValue(std::string_view section, std::string_view key, std::string_view default_value,
                                std::string_view type, std::string_view substitute, std::string& file) const {
    return guarded_("in IniLib: Function GetKeyValue - Line # ", [&](host::Step& step) {
        step = 10;
        IniFile& ini = file_at(file);
        step = 20;
        std::string value =
            values::first_characters(ini.read().value(section, key).value_or(""), most_value_characters);
        step = 30;
        if (value.empty())
            value = default_value;
        step = 40;
        const bool must_be_numeric = type == "Numeric" || type == "Boolean";
        return must_be_numeric && !values::is_numeric(value) && !substitute.empty() ? std::string(substitute)
                                                                                    : value;
    });
}

bool IniLib::WriteKeyValue(std::string_view section, std::string_view key, std::string_view value,
                           std::string& file) {
    return guarded_("in IniLib: Function WriteKeyValue - Line # ", [&](host::Step& step) {
        step = 10;
        IniFile& ini = file_at(file);
        step = 20;
        bool can_stand_there = true;
        const bool is_written =
            ini.change([&](IniDocument& document) { return can_stand_there = document.set(section, key, value); });
        if (!is_written && can_stand_there)
            tell_unwritable(file);
        return is_written;
    });
}

bool IniLib::DeleteSection(std::string_view section, std::string& file) {
    return guarded_("in IniLib: Function DeleteSection - Line # ", [&](host::Step& step) {
        step = 10;
        IniFile& ini = file_at(file);
        step = 20;
        if (!files_.exists(file))
            return true;
        step = 30;
        return ini.change([&](IniDocument& document) {
            document.remove_section(section);
            return true;
        });
    });
}

std::vector<std::string> IniLib::Extract_Keys(std::string_view section, std::string& file) const {
    return guarded_("in IniLib: Function Extract_Keys - Line # ", [&](host::Step& step) {
        step = 10;
        IniFile& ini = file_at(file);
        step = 20;
        return cut_to_room(ini.read().keys(section));
    });
}

std::string IniLib::GetKeyValue(std::string_view section, std::string_view key,
                                std::string_view default_value) const {
    std::string file;
    return GetKeyValue(section, key, default_value, "", "", file);
}

bool IniLib::WriteKeyValue(std::string_view section, std::string_view key, std::string_view value) {
    std::string file;
    return WriteKeyValue(section, key, value, file);
}

bool IniLib::DeleteSection(std::string_view section) {
    std::string file;
    return DeleteSection(section, file);
}

std::vector<std::string> IniLib::Extract_Keys(std::string_view section) const {
    std::string file;
    return Extract_Keys(section, file);
}

IniFile& IniLib::file_at(std::string& file) const {
    if (file.empty())
        file = SettingsFile;
    return open_files_.try_emplace(file, files_, file).first->second;
}

void IniLib::tell_unwritable(const std::string& file) {
    if (unwritable_ && told_.insert(file).second)
        unwritable_(file);
}

} // namespace settings
