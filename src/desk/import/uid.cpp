#include "desk/import/uid.h"

#include "core/values/text.h"
#include "desk/import/digest.h"
#include "desk/import/own_lines.h"

namespace importing {

std::string uid_of(const Component& component) {
    constexpr std::size_t longest = 255; // bytes
    const std::string_view uid = values::trimmed(value_in(component, "UID"));
    if (uid.empty())
        return {};
    const std::string kind = component.name == "VTODO" && !own::parts_in(component, own::type)
                                 ? "VTODO:" // an event may bear the same, but for a desk's own
                                 : "";
    return kind + (uid.size() <= longest ? std::string(uid) : "#" + Digest().add(uid).text());
}

} // namespace importing
