// The events a program's write raises: Change of a text, Click of a check box and
// of a list's index, ItemCheck of a ticked list; and the refusal of a bad index.
#include <gtest/gtest.h>

#include "controls_test_support.h"

namespace {

using namespace platform;

using controls_test::ErrorNumberOf;

class ControlsWriteEvents : public ::testing::Test {
protected:
    controls_test::SingleFocus scope;
    int changes = 0, clicks = 0;
};

TEST_F(ControlsWriteEvents, TextAndCheckBoxRaiseOnlyOnAChange) {
    TextBox box{scope, "txtref"};
    box.Change.Connect([&] { ++changes; });
    box.SetText("R-1");
    box.SetText("R-1");
    EXPECT_EQ(changes, 1);

    CheckBox check{scope, "chkForm1"};
    check.Click.Connect([&] { ++clicks; });
    check.SetValue(1);
    check.SetValue(1);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(ErrorNumberOf([&] { check.SetValue(3); }), err::InvalidPropertyValue);
}

TEST_F(ControlsWriteEvents, ListIndexClicksOnAMoveAndRefusesOutOfRange) {
    ListBox list{scope, "lstUOM"};
    list.AddItem("Multiple", 0);
    list.AddItem("Box", 7);
    list.Click.Connect([&] { ++clicks; });

    list.SetListIndex(1);
    list.SetListIndex(1);
    EXPECT_EQ(clicks, 1);
    for (int outside : {2, -2}) EXPECT_EQ(ErrorNumberOf([&] { list.SetListIndex(outside); }), err::InvalidPropertyValue);
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_EQ(ErrorNumberOf([&] { (void)list.List(2); }), 381);

    // Removing entries keeps the selection on its entry, without a Click.
    list.RemoveItem(0);
    EXPECT_EQ(list.List(list.ListIndex()), "Box");
    list.RemoveItem(0);
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(clicks, 1);
}

TEST_F(ControlsWriteEvents, ComboTakesTheTextOfTheEntryItsIndexMovesTo) {
    ComboBox combo{scope, "cbodocumenttype"};
    combo.AddItem("Dispatch");
    combo.AddItem("Sample");
    combo.Change.Connect([&] { ++changes; });
    combo.Click.Connect([&] { ++clicks; });

    combo.SetListIndex(1);
    EXPECT_EQ(combo.Text(), "Sample");
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(changes, 0);  // the move is a Click, not a Change
    combo.SetListIndex(-1);
    EXPECT_EQ(combo.Text(), "");
    combo.SetListIndex(0);
    combo.Clear();
    EXPECT_EQ(combo.Text(), "");
}

TEST_F(ControlsWriteEvents, TicksRaiseItemCheckAndAPlainListsSelectionIsItsIndex) {
    ListBox ticked{scope, "lstSO"};
    ticked.CheckBoxes = true;
    ticked.AddItem("SC-1");
    ticked.AddItem("SC-2");
    std::vector<int> checked;
    ticked.ItemCheck.Connect([&](int index) { checked.push_back(index); });
    ticked.SetSelected(1, true);
    ticked.SetSelected(1, true);
    ticked.SetSelected(0, false);
    EXPECT_EQ(checked, std::vector<int>{1});
    EXPECT_TRUE(ticked.Selected(1));
    EXPECT_EQ(ticked.ListIndex(), -1);  // a tick is not a selection

    ListBox plain{scope, "lstYesNo"};
    plain.AddItem("Yes");
    plain.AddItem("No");
    plain.Click.Connect([&] { ++clicks; });
    plain.SetSelected(1, true);
    plain.SetSelected(0, false);  // not the selected entry: nothing moves
    EXPECT_EQ(plain.ListIndex(), 1);
    plain.SetSelected(1, false);
    EXPECT_EQ(plain.ListIndex(), -1);
    EXPECT_EQ(clicks, 2);
}

}  // namespace
