#pragma once

#include "core/host/files.h"
#include "core/settings/ini_document.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>

namespace settings {

// An INI file on disk. What was read is kept as long as the file's stamp shows that nobody changed it, so reading
// thousands of times is cheap and still sees what another process or an editor wrote.
class IniFile {
public:
    // Beyond this size a file is no settings file: it reads as empty and isn't written.
    static constexpr std::size_t most_bytes = 1024 * 1024;

    IniFile(host::Files& files, std::string path) : files_(files), path_(std::move(path)) {}

    // As the file stands now; empty when it can't be read.
    const IniDocument& read();
    // Reads, changes and replaces the file with other processes of this program kept out. True when the file holds
    // the result; false, with the file untouched, when it can't be read or written, or the change gives false. A
    // change that changes nothing doesn't touch the file.
    bool change(const std::function<bool(IniDocument&)>& edit);

private:
    bool keep(std::optional<host::FileContent> content);

    host::Files& files_;
    std::string path_;
    std::string bytes_; // what document_ was made of
    IniDocument document_;
    std::optional<host::FileStamp> stamp_; // while it proves that document_ is the file's content
};

} // namespace settings
