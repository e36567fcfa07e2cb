#include "core/values/ids.h"

#include "core/values/text.h"

namespace values {

std::string whole_id(std::string_view id) {
    return length(id) + 1 == id_length ? std::string(id) + " " : std::string(id);
}

std::vector<std::string> ids_in(std::string_view list) {
    std::vector<std::string> ids;
    while (true) {
        std::string id = first_characters(list, id_length);
        if (length(id) < id_length)
            return ids;
        list.remove_prefix(id.size());
        ids.push_back(std::move(id));
    }
}

} // namespace values
