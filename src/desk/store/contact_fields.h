#pragma once

#include <string_view>
#include <vector>

namespace store {

// The numbered fields of a contact that the calendar and the desk's pages offer. Numbers have gaps.
struct ContactField {
    int number;
    std::string_view label;
    std::string_view type; // the store's own kinds: "1" text, "3" date, "4" phone, "5" number, "14" memo, ...
    bool has_popup_list;
};

namespace contact_field {
inline constexpr int company = 25;
inline constexpr int name = 26;
inline constexpr int title = 27;
inline constexpr int department = 28;
inline constexpr int salutation = 29;
inline constexpr int phone = 30;
inline constexpr int extension = 31;
inline constexpr int fax = 32;
inline constexpr int mobile = 35;
inline constexpr int e_mail = 36;
inline constexpr int web_site = 37;
inline constexpr int address = 40;
inline constexpr int city = 43;
inline constexpr int state = 44;
inline constexpr int postcode = 45;
inline constexpr int country = 46;
inline constexpr int referred_by = 50;
inline constexpr int birthday = 52;
inline constexpr int status = 55;
inline constexpr int record_creator = 202;
inline constexpr int record_manager = 203;
} // namespace contact_field

const std::vector<ContactField>& contact_fields(); // by rising number

} // namespace store
