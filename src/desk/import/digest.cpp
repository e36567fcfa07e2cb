#include "desk/import/digest.h"

#include <array>
#include <charconv>

namespace importing {

void Digest::add_byte(unsigned char byte) { value_ = (value_ ^ byte) * 0x100000001b3; }

Digest& Digest::add(std::string_view text) {
    add(static_cast<std::int64_t>(text.size()));
    for (const char c : text)
        add_byte(static_cast<unsigned char>(c));
    return *this;
}

Digest& Digest::add(std::int64_t number) {
    auto rest = static_cast<std::uint64_t>(number);
    for (int byte = 0; byte < 8; ++byte, rest >>= 8)
        add_byte(static_cast<unsigned char>(rest & 0xFF));
    return *this;
}

std::string Digest::text() const {
    std::array<char, 16> digits;
    return {digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), value_, 16).ptr};
}

std::string digest_of(const store::Activity& activity) {
    const auto seconds = [](const std::optional<store::DateTime>& date) { return date ? date->seconds() : -1; };
    const store::Recurrence& series = activity.recurrence;
    Digest digest;
    for (const std::int64_t number :
         {static_cast<std::int64_t>(activity.type), static_cast<std::int64_t>(activity.priority),
          std::int64_t{activity.start.has_value()}, seconds(activity.start), activity.end.seconds(),
          std::int64_t{activity.duration}, std::int64_t{activity.is_private}, std::int64_t{activity.alarm},
          std::int64_t{activity.alarm_lead}, std::int64_t{activity.colour.has_value()},
          std::int64_t{activity.colour.value_or(0)}, std::int64_t{activity.cleared},
          static_cast<std::int64_t>(series.kind), std::int64_t{series.frequency},
          std::int64_t{series.until.has_value()}, seconds(series.until), std::int64_t{series.days_of_week},
          std::int64_t{series.weeks_of_month}, std::int64_t{series.days_of_month}})
        digest.add(number);
    for (const std::string* text :
         {&activity.regarding, &activity.user, &activity.group, &activity.result, &activity.details})
        digest.add(*text);
    digest.add(static_cast<std::int64_t>(activity.contacts.size()));
    for (const std::string& contact : activity.contacts)
        digest.add(contact);
    for (const store::DateTime date : activity.exceptions)
        digest.add(date.seconds());
    return digest.text();
}

std::string digest_of(const store::Contact& contact) {
    Digest digest;
    for (const auto& [number, text] : contact.fields)
        if (!text.empty())
            digest.add(std::int64_t{number}).add(text);
    return digest.text();
}

} // namespace importing
