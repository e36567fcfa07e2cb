#include "core/settings/ini_file.h"

namespace settings {

const IniDocument& IniFile::read() {
    const auto stamp = files_.stamp(path_);
    if (!stamp)
        keep(std::nullopt);
    else if (stamp_ != stamp)
        keep(files_.read(path_, most_bytes));
    return document_;
}

bool IniFile::change(const std::function<bool(IniDocument&)>& edit) {
    const auto lock = files_.lock(path_);
    if (!lock)
        return false;
    const bool is_new = !files_.exists(path_);
    if (!keep(files_.read(path_, most_bytes)) && !is_new)
        return false;
    IniDocument changed = document_;
    if (!edit(changed))
        return false;
    const std::string bytes = changed.bytes();
    if (bytes == bytes_)
        return true;
    stamp_.reset();
    return bytes.size() <= most_bytes && files_.replace(path_, bytes);
}

// Takes over what was read, nothing if it could not be. True when it could.
bool IniFile::keep(std::optional<host::FileContent> content) {
    const bool is_read = content.has_value();
    std::string bytes = is_read ? std::move(content->bytes) : std::string();
    stamp_ = is_read && content->settled ? std::optional(content->stamp) : std::nullopt;
    if (bytes != bytes_) {
        document_ = IniDocument(bytes);
        bytes_ = std::move(bytes);
    }
    return is_read;
}

} // namespace settings
