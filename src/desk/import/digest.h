#pragma once

#include "desk/store/records.h"

#include <cstdint>
#include <string>
#include <string_view>

// A short text for what something holds, to tell later whether it has changed. It keeps no secrets.
namespace importing {

class Digest {
public:
    Digest& add(std::string_view text); // its length counts as well
    Digest& add(std::int64_t number);
    std::string text() const; // hexadecimal

private:
    void add_byte(unsigned char byte);

    std::uint64_t value_ = 0xcbf29ce484222325; // the start and, in add_byte, the factor of the FNV-1a hash
};

// Of what a record tells, without its id, its edit date and its revision.
std::string digest_of(const store::Activity& activity);
std::string digest_of(const store::Contact& contact);

} // namespace importing
