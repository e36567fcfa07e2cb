#pragma once

#include <exception>
#include <string>

namespace values {

// The numbers that the platform's own conversions and objects fail with. They appear in the failure box, so
// users and support know them.
enum class FailureNumber {
    invalid_procedure_call = 5,
    overflow = 6,
    out_of_memory = 7,
    subscript_out_of_range = 9,
    type_mismatch = 13,
    internal_error = 51,
    bad_file_name = 52,
    file_not_found = 53,
    path_file_access = 75,
    path_not_found = 76,
    object_not_set = 91,
    invalid_property_value = 380,
    invalid_property_index = 381,
    cannot_create_object = 429,
    automation = 440,
};

// The platform's description of a number, in English: "Type mismatch" for 13.
std::string description_of(FailureNumber number);

// What a procedure that can't go on throws: a number and one sentence for the user.
class Failure : public std::exception {
public:
    explicit Failure(FailureNumber number) : Failure(number, description_of(number)) {}
    Failure(FailureNumber number, std::string description)
        : number_(number), description_(std::move(description)) {}

    int number() const { return static_cast<int>(number_); }
    const std::string& description() const { return description_; }
    const char* what() const noexcept override { return description_.c_str(); }

private:
    FailureNumber number_;
    std::string description_;
};

// For statements after which the next one simply runs.
template <typename Statement>
void ignoring_failure(Statement&& statement) {
    try {
        statement();
    } catch (const Failure&) {
    }
}

} // namespace values
