#include "core/settings/file_user_store.h"

#include "core/values/text.h"

#include <algorithm>
#include <charconv>
#include <exception>
#include <utility>

namespace settings {

namespace {

constexpr std::string_view digits = "0123456789ABCDEF";
constexpr const char* no_name = "@";

// As it can stand in a line of the file: `special` characters, control characters, blanks and quotes at the ends,
// and bytes that aren't UTF-8 become "%" and two digits.
std::string escaped(std::string_view text, std::string_view special) {
    const bool is_text = values::is_utf8(text);
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto code = static_cast<unsigned char>(text[i]);
        const bool at_end = i == 0 || i + 1 == text.size();
        const bool lost_at_end = at_end && (code == ' ' || code == '"' || code == '\'');
        if (code < 0x20 || code == '%' || lost_at_end || (code >= 0x80 && !is_text) ||
            values::contains(special, text.substr(i, 1)))
            result.append("%").append(digits.substr(code >> 4, 1)).append(digits.substr(code & 0xF, 1));
        else
            result += text[i];
    }
    return result;
}

std::string escaped_branch(const std::string& branch) { return escaped(branch, "]"); }

std::string escaped_name(const std::string& name) {
    if (name.empty())
        return no_name;
    return name == no_name ? "%40" : escaped(name, "=;[");
}

std::string plain(std::string_view text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        unsigned code = 0;
        const char* const end = text.data() + std::min(i + 3, text.size());
        if (text[i] == '%' && i + 2 < text.size() &&
            std::from_chars(text.data() + i + 1, end, code, 16).ptr == end) {
            result += static_cast<char>(code);
            i += 2;
        } else {
            result += text[i];
        }
    }
    return result;
}

} // namespace

std::optional<std::string> FileUserStore::read(const std::string& branch, const std::string& name) const {
    const auto value = document().value(escaped_branch(branch), escaped_name(name));
    return value ? std::optional(plain(*value)) : std::nullopt;
}

bool FileUserStore::write(const std::string& branch, const std::string& name, const std::string& value) {
    return change([&](IniDocument& document) {
        return document.set(escaped_branch(branch), escaped_name(name), escaped(value, ""));
    });
}

bool FileUserStore::remove(const std::string& branch, const std::string& name) {
    return change(
        [&](IniDocument& document) { return document.remove_key(escaped_branch(branch), escaped_name(name)); });
}

bool FileUserStore::remove_branch(const std::string& branch) {
    const std::string wanted = values::lower(escaped_branch(branch));
    return change([&](IniDocument& document) {
        bool removed = false;
        for (const std::string& section : document.sections()) {
            const std::string name = values::lower(section);
            if (name == wanted || name.starts_with(wanted + "\\"))
                removed = document.remove_section(section) || removed;
        }
        return removed;
    });
}

bool FileUserStore::together(const std::function<void()>& block) {
    std::exception_ptr failed;
    const bool is_kept = change([&](IniDocument& document) {
        IniDocument* const outer = std::exchange(open_, &document);
        try {
            block();
        } catch (...) {
            failed = std::current_exception();
        }
        open_ = outer;
        return true;
    });
    if (failed)
        std::rethrow_exception(failed);
    return is_kept;
}

std::vector<std::pair<std::string, std::string>> FileUserStore::list(const std::string& branch) const {
    const IniDocument& document = this->document();
    const std::string section = escaped_branch(branch);
    std::vector<std::pair<std::string, std::string>> values;
    for (const std::string& name : document.keys(section))
        values.emplace_back(name == no_name ? "" : plain(name), plain(document.value(section, name).value_or("")));
    return values;
}

} // namespace settings
