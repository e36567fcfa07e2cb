#include "core/act/item_list.h"

#include <functional>
#include <gtest/gtest.h>

namespace {

act::ItemList two_entries() {
    act::ItemList list;
    list.AddItem("Ann", 7);
    list.AddItem("Bob", 9);
    return list;
}

TEST(ItemList, KeepsTextsAndNumbersInTheirOrder) {
    const act::ItemList list = two_entries();
    ASSERT_EQ(list.ListCount(), 2);
    EXPECT_EQ(list.List(0), "Ann");
    EXPECT_EQ(list.ItemData(0), 7);
    EXPECT_EQ(list.List(1), "Bob");
    EXPECT_EQ(list.ItemData(1), 9);
}

TEST(ItemList, HasNoSelectionUntilOneIsMade) {
    act::ItemList list = two_entries();
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(list.Text(), "");
    list.ListIndex(1);
    EXPECT_EQ(list.Text(), "Bob");
    list.ListIndex(-1);
    EXPECT_EQ(list.Text(), "");
}

TEST(ItemList, LosesEntriesAndSelectionWhenCleared) {
    act::ItemList list = two_entries();
    list.ListIndex(1);
    list.Clear();
    EXPECT_EQ(list.ListCount(), 0);
    EXPECT_EQ(list.ListIndex(), -1);
}

int number_of_failure(const std::function<void()>& action) {
    try {
        action();
    } catch (const values::Failure& failure) {
        return failure.number();
    }
    return 0;
}

TEST(ItemList, RefusesAnIndexThatThereIsNot) {
    act::ItemList list = two_entries();
    EXPECT_EQ(number_of_failure([&] { list.List(2); }), 381);
    EXPECT_EQ(number_of_failure([&] { list.ItemData(-1); }), 381);
    EXPECT_EQ(number_of_failure([&] { list.ListIndex(2); }), 380);
    EXPECT_EQ(number_of_failure([&] { list.ListIndex(-2); }), 380);
}

} // namespace
