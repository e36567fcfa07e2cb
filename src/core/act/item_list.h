#pragma once

#include "core/values/failure.h"

#include <string>
#include <vector>

namespace act {

// The entries of a combo or list box: a text and a number each, and which one is selected. Indices count from 0;
// one that there is not fails with 381.
class ItemList {
public:
    void Clear();
    void AddItem(std::string text, int item_data = 0);
    int ListCount() const { return static_cast<int>(entries_.size()); }
    const std::string& List(int index) const { return entry(index).text; }
    int ItemData(int index) const { return entry(index).item_data; }

    int ListIndex() const { return selected_; } // -1: nothing is selected
    void ListIndex(int index);                  // fails with 380 outside -1 to ListCount - 1
    // The selected entry's text, empty when nothing is selected.
    std::string Text() const { return selected_ < 0 ? std::string() : List(selected_); }

private:
    struct Entry {
        std::string text;
        int item_data;
    };
    const Entry& entry(int index) const;

    std::vector<Entry> entries_;
    int selected_ = -1;
};

} // namespace act
