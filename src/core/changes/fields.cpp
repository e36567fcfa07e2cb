#include "core/changes/fields.h"

namespace changes {

Fields read_fields(const act::Activity& activity, std::span<const int> numbers) {
    Fields fields;
    for (const int number : numbers)
        fields[number] = activity.Data(number);
    return fields;
}

void write_fields(act::Activity& activity, const Fields& fields) {
    for (const auto& [number, value] : fields)
        activity.Data(number, value);
}

} // namespace changes
