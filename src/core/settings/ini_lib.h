#pragma once

#include "core/host/files.h"
#include "core/host/guard.h"
#include "core/settings/ini_file.h"

#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace settings {

// The settings file, and other files in its format. Where an operation takes a file, an empty text stands for the
// settings file and is overwritten with its path. All values are texts; lengths count characters.
class IniLib {
public:
    // Told a file's path when a write finds that the file can't be written, once for each file.
    using Unwritable = std::function<void(const std::string& file)>;

    IniLib(host::Files& files, const host::Guard& guarded, Unwritable unwritable = {})
        : files_(files), guarded_(guarded), unwritable_(std::move(unwritable)) {}

    std::string SettingsFile; // full path; it need not exist

    // The value, cut to 999 characters; the default when key, section or file is absent or the value empty. With
    // the type "Numeric" or "Boolean" a value that isn't numeric gives way to the substitute, unless that is
    // empty.
    std::string GetKeyValue(std::string_view section, std::string_view key, std::string_view default_value,
                            std::string_view type, std::string_view substitute, std::string& file) const;
    std::string GetKeyValue(std::string_view section, std::string_view key, std::string_view default_value) const;

    // False when the file can't be written, or the names or the value can't stand in such a file. File and section
    // are made as needed, folders are not.
    bool WriteKeyValue(std::string_view section, std::string_view key, std::string_view value, std::string& file);
    bool WriteKeyValue(std::string_view section, std::string_view key, std::string_view value);

    // True as well when there is no such section or file.
    bool DeleteSection(std::string_view section, std::string& file);
    bool DeleteSection(std::string_view section);

    // The section's key names in file order, empty when it has none. They are cut where their lengths and an end
    // mark each come to 1998 characters.
    std::vector<std::string> Extract_Keys(std::string_view section, std::string& file) const;
    std::vector<std::string> Extract_Keys(std::string_view section) const;

    // True for a file or a folder that is there.
    bool FileExists(const std::string& path) const { return files_.exists(path); }

private:
    IniFile& file_at(std::string& file) const;
    void tell_unwritable(const std::string& file);

    host::Files& files_;
    const host::Guard& guarded_;
    Unwritable unwritable_;
    std::set<std::string> told_; // files
    mutable std::map<std::string, IniFile> open_files_;
};

} // namespace settings
