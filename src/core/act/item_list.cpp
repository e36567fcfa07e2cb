#include "core/act/item_list.h"

#include <utility>

namespace act {

void ItemList::Clear() {
    entries_.clear();
    selected_ = -1;
}

void ItemList::AddItem(std::string text, int item_data) { entries_.push_back({std::move(text), item_data}); }

void ItemList::ListIndex(int index) {
    if (index < -1 || index >= ListCount())
        throw values::Failure(values::FailureNumber::invalid_property_value);
    selected_ = index;
}

const ItemList::Entry& ItemList::entry(int index) const {
    if (index < 0 || index >= ListCount())
        throw values::Failure(values::FailureNumber::invalid_property_index);
    return entries_[static_cast<std::size_t>(index)];
}

} // namespace act
