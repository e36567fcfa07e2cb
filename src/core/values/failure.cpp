#include "core/values/failure.h"

namespace values {

std::string description_of(FailureNumber number) {
    switch (number) {
    case FailureNumber::invalid_procedure_call:
        return "Invalid procedure call or argument";
    case FailureNumber::overflow:
        return "Overflow";
    case FailureNumber::out_of_memory:
        return "Out of memory";
    case FailureNumber::subscript_out_of_range:
        return "Subscript out of range";
    case FailureNumber::type_mismatch:
        return "Type mismatch";
    case FailureNumber::internal_error:
        return "Internal error";
    case FailureNumber::bad_file_name:
        return "Bad file name or number";
    case FailureNumber::file_not_found:
        return "File not found";
    case FailureNumber::path_file_access:
        return "Path/File access error";
    case FailureNumber::path_not_found:
        return "Path not found";
    case FailureNumber::object_not_set:
        return "Object variable not set";
    case FailureNumber::invalid_property_value:
        return "Invalid property value";
    case FailureNumber::invalid_property_index:
        return "Invalid property array index";
    case FailureNumber::cannot_create_object:
        return "Can't create object";
    case FailureNumber::automation:
        return "Automation error";
    }
    return "Application-defined or object-defined error";
}

} // namespace values
