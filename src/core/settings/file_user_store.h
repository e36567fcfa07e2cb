#pragma once

#include "core/host/files.h"
#include "core/host/user_store.h"
#include "core/settings/ini_file.h"

#include <string>

namespace settings {

// The per-user store in a text file: a section for each branch, a line for each value. Any text can be a name or a
// value: what would break a line or be lost at its ends stands there as "%" and two hexadecimal digits, and "@" is
// the value without a name. Case doesn't count in names.
class FileUserStore : public host::UserStore {
public:
    // The file's folder must exist; the file is made at the first write.
    FileUserStore(host::Files& files, const std::string& path) : file_(files, path) {}

    std::optional<std::string> read(const std::string& branch, const std::string& name) const override;
    bool write(const std::string& branch, const std::string& name, const std::string& value) override;
    bool remove(const std::string& branch, const std::string& name) override;
    // With the branches below it.
    bool remove_branch(const std::string& branch) override;
    bool together(const std::function<void()>& block) override;
    std::vector<std::pair<std::string, std::string>> list(const std::string& branch) const override;

private:
    const IniDocument& document() const { return open_ ? *open_ : file_.read(); }
    bool change(const std::function<bool(IniDocument&)>& edit) {
        return open_ ? edit(*open_) : file_.change(edit);
    }

    mutable IniFile file_;
    IniDocument* open_ = nullptr; // what a block changes, while it runs
};

} // namespace settings
