#pragma once

#include "core/host/user_store.h"

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace support {

// The per-user store in memory. `refuses_writes` makes every write fail, as on a full disk; `times_kept` counts
// the writes and blocks that the disk would have had to take.
class FakeUserStore : public host::UserStore {
    using Values = std::vector<std::pair<std::string, std::string>>;

    template <typename List>
    static auto find(List& values, const std::string& name) {
        return std::find_if(values.begin(), values.end(), [&](const auto& value) { return value.first == name; });
    }

public:
    std::optional<std::string> read(const std::string& branch, const std::string& name) const override {
        const auto found = branches_.find(branch);
        if (found == branches_.end())
            return std::nullopt;
        const auto value = find(found->second, name);
        return value == found->second.end() ? std::nullopt : std::optional(value->second);
    }
    bool write(const std::string& branch, const std::string& name, const std::string& value) override {
        if (refuses_writes && !in_block_)
            return false;
        times_kept += in_block_ ? 0 : 1;
        Values& values = branches_[branch];
        const auto present = find(values, name);
        if (present == values.end())
            values.emplace_back(name, value);
        else
            present->second = value;
        return true;
    }
    bool remove(const std::string& branch, const std::string& name) override {
        const auto found = branches_.find(branch);
        return found != branches_.end() &&
               std::erase_if(found->second, [&](const auto& value) { return value.first == name; }) > 0;
    }
    bool remove_branch(const std::string& branch) override {
        return std::erase_if(branches_, [&](const auto& item) {
                   return item.first == branch || item.first.starts_with(branch + "\\");
               }) > 0;
    }
    bool together(const std::function<void()>& block) override {
        in_block_ = true;
        block();
        in_block_ = false;
        times_kept += refuses_writes ? 0 : 1;
        return !refuses_writes;
    }
    std::vector<std::pair<std::string, std::string>> list(const std::string& branch) const override {
        const auto found = branches_.find(branch);
        return found == branches_.end() ? Values{} : found->second;
    }

    bool refuses_writes = false;
    int times_kept = 0;

private:
    bool in_block_ = false;
    std::map<std::string, Values> branches_;
};

} // namespace support
