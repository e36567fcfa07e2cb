#include "desk/import/card_reader.h"

#include "core/values/text.h"
#include "desk/import/activity_text.h"
#include "desk/import/own_lines.h"
#include "desk/import/uid.h"
#include "desk/store/contact_fields.h"

#include <algorithm>
#include <initializer_list>
#include <map>
#include <set>
#include <utility>

namespace importing {
namespace {

namespace field = store::contact_field;

struct Property {
    std::string name;
    std::string parameters; // in small letters, between ";"
    std::string value;      // decoded, its escapes still there
};

bool has(const Property& property, std::string_view word) {
    std::string current;
    for (const char c : property.parameters + ";") {
        if ((c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-') {
            current += c;
            continue;
        }
        if (current == word)
            return true;
        current.clear();
    }
    return false;
}

int hexadecimal(char c) {
    constexpr std::string_view digits = "0123456789abcdefABCDEF";
    const std::size_t place = digits.find(c);
    return place == digits.npos ? -1 : static_cast<int>(place < 16 ? place : place - 6);
}

std::string from_quoted_printable(std::string_view text) {
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const int high = text[i] == '=' && i + 2 < text.size() ? hexadecimal(text[i + 1]) : -1;
        const int low = high >= 0 ? hexadecimal(text[i + 2]) : -1;
        if (low >= 0) {
            bytes += static_cast<char>(high * 16 + low);
            i += 2;
        } else {
            bytes += text[i];
        }
    }
    return readable(bytes);
}

std::vector<Property> properties_of(const Component& card) {
    std::vector<Property> properties;
    for (const Line& line : card.lines) {
        Property property{name_of(line), {}, std::string(value_of(line))};
        const std::string head = line.text.substr(0, line.text.size() - property.value.size());
        if (const std::size_t parameters = head.find(';'); parameters != head.npos)
            property.parameters = values::lower(std::string_view(head).substr(parameters));
        if (has(property, "quoted-printable"))
            property.value = from_quoted_printable(property.value);
        if (!property.name.empty() && !has(property, "base64") && !has(property, "b"))
            properties.push_back(std::move(property));
    }
    return properties;
}

// The parts between semicolons, with their escapes.
std::vector<std::string> parts_of(const std::string& value) {
    std::vector<std::string> parts;
    std::string part;
    for (std::size_t i = 0; i <= value.size(); ++i) {
        if (i == value.size() || value[i] == ';') {
            parts.push_back(std::exchange(part, {}));
        } else {
            part += value[i];
            if (value[i] == '\\' && i + 1 < value.size())
                part += value[++i];
        }
    }
    return parts;
}

std::string part(const std::vector<std::string>& parts, std::size_t number) {
    return number < parts.size() ? parts[number] : std::string();
}

std::string joined(const std::vector<std::string>& parts) {
    std::string text;
    for (const std::string& part : parts)
        text += part + ";";
    return text;
}

bool is_field(int number) {
    return std::ranges::any_of(store::contact_fields(),
                               [&](const store::ContactField& known) { return known.number == number; });
}

// Fields that no other program can have changed.
bool has_no_place(int number) {
    return number == field::status || number == field::salutation || number == field::referred_by ||
           number == field::extension || number == field::record_creator || number == field::record_manager;
}

class Card {
public:
    explicit Card(const Component& card) : properties_(properties_of(card)) {
        found_.source.line = card.line;
        read_names();
        if (!found_.is_empty())
            read_rest();
        if (own::parts_in(card, own::check))
            restore_own(card);
        found_.source.title = text(field::name).empty() ? text(field::company) : text(field::name);
        found_.source.uid = single_line(value_in(card, "UID"));
        found_.uid = uid_of(card);
    }
    FoundCard take() { return std::move(found_); }

private:
    std::string text(int number) const {
        const auto place = found_.contact.fields.find(number);
        return place == found_.contact.fields.end() ? std::string() : place->second;
    }

    bool set(int number, const std::string& value) {
        return !value.empty() && found_.contact.fields.emplace(number, value).second;
    }

    // The same for a value that is lost where the field has another one already.
    void set_or_count(int number, const std::string& value, const char* what) {
        if (!set(number, value) && !value.empty() && value != text(number))
            left_out_[what].insert(value);
    }

    std::string line_of(const std::string& value) {
        bool is_cut = false;
        std::string line = single_line(unescaped(value), &is_cut);
        cut_ += is_cut;
        return line;
    }

    // Each as one line.
    std::vector<std::string> lines_of(const std::string& value) {
        std::vector<std::string> lines;
        for (const std::string& part : parts_of(value))
            lines.push_back(line_of(part));
        return lines;
    }

    void tell_changes() {
        for (const auto& [what, values] : left_out_)
            found_.changes.push_back("There is no room for its further " + std::string(what) + " (" +
                                     std::to_string(values.size()) + ").");
        if (cut_ > 0)
            found_.changes.push_back("Texts that were too long were cut (" + std::to_string(cut_) + ").");
    }

    template <typename Take>
    void each(std::string_view name, const Take& take) {
        // Those that are preferred come first.
        for (const bool preferred : {true, false})
            for (const Property& property : properties_)
                if (property.name == name && has(property, "pref") == preferred)
                    take(property);
    }

    void read_names() {
        each("FN", [&](const Property& p) { set(field::name, line_of(p.value)); });
        each("N", [&](const Property& p) {
            const auto parts = lines_of(p.value);
            std::string name;
            // Title, given, further and family name, and what comes after it.
            for (const std::size_t number : std::initializer_list<std::size_t>{3, 1, 2, 0, 4})
                if (const std::string word = part(parts, number); !word.empty())
                    name += (name.empty() ? "" : " ") + word;
            set(field::name, name);
        });
        each("ORG", [&](const Property& p) {
            const auto parts = lines_of(p.value);
            if (set(field::company, part(parts, 0)))
                set(field::department, part(parts, 1));
        });
    }

    void read_rest() {
        const auto read_line = [&](std::string_view name, int number, const char* what) {
            each(name, [&](const Property& p) { set_or_count(number, line_of(p.value), what); });
        };
        read_line("TITLE", field::title, "titles");
        read_line("EMAIL", field::e_mail, "mail addresses");
        read_line("URL", field::web_site, "web addresses");
        read_line("BDAY", field::birthday, "birthdays");
        each("TEL", [&](const Property& p) { read_phone(p); });
        for (const bool home : {false, true})
            each("ADR", [&](const Property& p) {
                if (has(p, "home") == home)
                    read_address(lines_of(p.value));
            });
        each("NOTE", [&](const Property& p) {
            bool is_cut = false;
            if (const std::string note = several_lines(unescaped(p.value), &is_cut); !note.empty())
                found_.notes.push_back({.text = note});
            cut_ += is_cut;
        });
        tell_changes();
    }

    // What a card has no place for, and all that it says where no other program has changed it.
    void restore_own(const Component& card) {
        found_.is_own = true;
        found_.exported = value_in(card, own::record);
        const bool is_untouched = own::is_untouched(card);
        for (const own::Parts& told : own::all_parts_in(card, own::field)) {
            const int number = static_cast<int>(told.number(0).value_or(0));
            if (!is_untouched && !has_no_place(number))
                continue;
            found_.contact.fields.erase(number);
            if (is_field(number) && !told.text(1).empty())
                found_.contact.fields[number] = told.text(1);
        }
        for (const own::Parts& group : own::all_parts_in(card, own::group))
            found_.groups.push_back({group.text(0), group.text(1), group.number(2).value_or(0)});
        if (!is_untouched)
            return;
        found_.changes.clear();
        found_.notes.clear();
        for (const own::Parts& note : own::all_parts_in(card, own::note))
            if (const auto seconds = note.number(0))
                found_.notes.push_back({note.text(1), store::DateTime::from_seconds(*seconds)});
    }

    void read_phone(const Property& property) {
        std::string number = line_of(property.value);
        if (values::lower(number).starts_with("tel:"))
            number.erase(0, 4);
        if (has(property, "fax"))
            set_or_count(field::fax, number, "fax numbers");
        else if (has(property, "pager"))
            set_or_count(field::pager, number, "pager numbers");
        else if (has(property, "cell"))
            set_or_count(field::mobile, number, "mobile numbers");
        else if (has(property, "home"))
            set_or_count(field::home_phone, number, "home phone numbers");
        else
            set_or_count(field::phone, number, "phone numbers");
    }

    // Post box, extension, street, city, state, code, country. The first address is taken.
    void read_address(const std::vector<std::string>& parts) {
        const bool is_empty =
            std::all_of(parts.begin(), parts.end(), [](const auto& part) { return part.empty(); });
        if (is_empty)
            return;
        if (has_address_) {
            left_out_["addresses"].insert(joined(parts));
            return;
        }
        has_address_ = true;
        int line = field::address;
        for (const std::size_t number : std::initializer_list<std::size_t>{2, 1, 0})
            if (set(line, part(parts, number)))
                ++line;
        set(field::city, part(parts, 3));
        set(field::state, part(parts, 4));
        set(field::postcode, part(parts, 5));
        set(field::country, part(parts, 6));
    }

    const std::vector<Property> properties_;
    FoundCard found_;
    bool has_address_ = false;
    std::map<std::string, std::set<std::string>> left_out_; // values, by what they are
    int cut_ = 0;
};

} // namespace

FoundCard read_card(const Component& card) { return Card(card).take(); }

} // namespace importing
