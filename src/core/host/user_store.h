#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace host {

// The per-user store: a tree of named text values. A branch is a path of names joined with "\", such as
// "Orvanta\Settings". Several processes use it at once; a read sees the last write of any of them.
class UserStore {
public:
    virtual ~UserStore() = default;
    virtual std::optional<std::string> read(const std::string& branch, const std::string& name) const = 0;
    virtual bool write(const std::string& branch, const std::string& name, const std::string& value) = 0;
    // False when the value, or the branch, isn't there.
    virtual bool remove(const std::string& branch, const std::string& name) = 0;
    virtual bool remove_branch(const std::string& branch) = 0;
    // Runs the block with the other processes kept out, and keeps what it changes here all at once when it ends;
    // also when it ends by an exception, which goes on. False when nothing can be kept, then mostly without the
    // block having run.
    virtual bool together(const std::function<void()>& block) = 0;
    // Names and values in the order they were first written.
    virtual std::vector<std::pair<std::string, std::string>> list(const std::string& branch) const = 0;
};

} // namespace host
