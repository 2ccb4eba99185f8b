// The list view numbers items and sub-items from 1; one item is selected at a time.
#include <gtest/gtest.h>

#include "controls_test_support.h"

namespace {

using namespace platform;

using controls_test::ErrorNumberOf;

class ControlsListView : public ::testing::Test {
protected:
    controls_test::SingleFocus scope;
    ListView list{scope, "lstAvailable"};

    void SetUp() override {
        for (const char* batch : {"B1", "B2", "B3"}) list.Add(batch).SetSubItem(3, std::string(batch) + "-qty");
    }
};

TEST_F(ControlsListView, ItemsAndSubItemsCountFromOne) {
    EXPECT_EQ(list.Item(1).Text, "B1");
    EXPECT_EQ(list.Item(2).SubItem(3), "B2-qty");
    EXPECT_EQ(list.Item(2).SubItems[2].text, "B2-qty");
    EXPECT_EQ(list.Item(2).SubItem(5), "");  // never written
    for (int outside : {0, 4}) EXPECT_EQ(ErrorNumberOf([&] { (void)list.Item(outside); }), 35600);
    EXPECT_EQ(ErrorNumberOf([&] { (void)list.Item(1).SubItem(0); }), 35600);

    list.Remove(1);
    EXPECT_EQ(list.Item(1).Text, "B2");
}

TEST_F(ControlsListView, SelectingOneClearsTheOthersAndFindItemMatchesWholeText) {
    list.Select(1);
    list.Select(3);
    EXPECT_EQ(list.SelectedIndex(), 3);
    EXPECT_FALSE(list.Item(1).Selected);
    list.Select(0);
    EXPECT_EQ(list.SelectedIndex(), 0);

    list.Add("B2");
    EXPECT_EQ(list.FindItem("B2"), 2);
    EXPECT_EQ(list.FindItem("B"), 0);
}

}  // namespace
