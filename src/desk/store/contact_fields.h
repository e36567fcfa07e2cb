#pragma once

#include <string_view>
#include <vector>

namespace store {

// The numbered fields of a contact that the calendar and the desk's pages offer. Numbers have gaps.
struct ContactField {
    int number;
    std::string_view label;
    std::string_view type; // "1" text, "2" capitals, "3" date, "4" phone, "9" e-mail, "10" web address
    bool has_popup_list;
};

namespace contact_field {
// The numbers are chosen so that the calendar's default extra fields (27, 30, 31, 35) read as an address, a city
// with its state, and a phone number; 35 to 39, 71, 74, 77 and 86 are the phone numbers that an export formats.
inline constexpr int company = 25;
inline constexpr int name = 26;
inline constexpr int address = 27;
inline constexpr int address_2 = 28;
inline constexpr int address_3 = 29;
inline constexpr int city = 30;
inline constexpr int state = 31;
inline constexpr int postcode = 32;
inline constexpr int country = 33;
inline constexpr int status = 34;
inline constexpr int phone = 35;
inline constexpr int fax = 36;
inline constexpr int home_phone = 37;
inline constexpr int mobile = 38;
inline constexpr int pager = 39;
inline constexpr int salutation = 40;
inline constexpr int title = 51;
inline constexpr int department = 52;
inline constexpr int birthday = 53;
inline constexpr int e_mail = 58;
inline constexpr int web_site = 59;
inline constexpr int referred_by = 60;
inline constexpr int extension = 62;
inline constexpr int record_creator = 202;
inline constexpr int record_manager = 203;
} // namespace contact_field

const std::vector<ContactField>& contact_fields(); // by rising number

} // namespace store
