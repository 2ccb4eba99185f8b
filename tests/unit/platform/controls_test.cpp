// Controls: the focus move and the refusal of focus, the events a program's write
// raises, the refusal of a bad index, and the list view's items counted from 1.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform_test_support.h"

namespace {

using namespace platform;
using platform::testing::ErrorNumberOf;
using platform::testing::SingleFocus;

TEST(ControlsFocus, MovesWithLostThenGotFocusAndIsRefusedUnderAHiddenOrDisabledFrame) {
    SingleFocus scope;
    Frame page{scope, "Frame3"}, inner{scope, "Frame5", 1};
    TextBox box{scope, "txtShippingAddress"};
    CommandButton save{scope, "cmdSave"};
    inner.Container = &page;
    box.Container = &inner;
    save.Container = &page;
    std::vector<std::string> events;
    box.GotFocus.Connect([&] { events.push_back("box got"); });
    box.LostFocus.Connect([&] { events.push_back("box lost"); });
    save.GotFocus.Connect([&] { events.push_back("save got"); });

    page.Top = -10000;  // a page moved out of sight but left enabled still takes focus
    box.SetFocus();
    box.SetFocus();  // already there: no second move
    save.SetFocus();
    EXPECT_EQ(events, (std::vector<std::string>{"box got", "box lost", "save got"}));

    const auto focusError = [](Control& control) { return ErrorNumberOf([&] { control.SetFocus(); }); };
    // The box hidden, its page disabled, its frame hidden: each alone refuses it.
    for (bool* shown : {&box.Visible, &page.Enabled, &inner.Visible}) {
        *shown = false;
        EXPECT_EQ(focusError(box), err::InvalidCall);
        *shown = true;
    }
    EXPECT_TRUE(save.HasFocus());
    Label label{scope, "lblRef"};
    EXPECT_EQ(focusError(label), err::InvalidCall);
    EXPECT_EQ(focusError(page), err::InvalidCall);
}

class Controls : public ::testing::Test {
protected:
    SingleFocus scope;
    int changes = 0, clicks = 0;
};

TEST_F(Controls, TextAndCheckBoxRaiseOnlyOnAChange) {
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

TEST_F(Controls, ListIndexClicksOnAMoveAndRefusesOutOfRange) {
    ListBox list{scope, "lstUOM"};
    list.AddItem("Multiple", 0);
    list.AddItem("Box", 7);
    list.Click.Connect([&] { ++clicks; });

    list.SetListIndex(1);
    list.SetListIndex(1);
    EXPECT_EQ(clicks, 1);
    for (int outside : {2, -2})
        EXPECT_EQ(ErrorNumberOf([&] { list.SetListIndex(outside); }), err::InvalidPropertyValue);
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_EQ(ErrorNumberOf([&] { (void)list.List(2); }), 381);

    // Removing entries keeps the selection on its entry, without a Click.
    list.RemoveItem(0);
    EXPECT_EQ(list.List(list.ListIndex()), "Box");
    list.RemoveItem(0);
    EXPECT_EQ(std::tuple(list.ListIndex(), clicks), std::tuple(-1, 1));
}

TEST_F(Controls, TicksRaiseItemCheckAndAPlainListsSelectionIsItsIndex) {
    ListBox ticked{scope, "lstSO"}, plain{scope, "lstYesNo"};
    ticked.CheckBoxes = true;
    for (ListBox* list : {&ticked, &plain}) {
        list->AddItem("Yes");
        list->AddItem("No");
    }
    std::vector<int> checked;
    ticked.ItemCheck.Connect([&](int index) { checked.push_back(index); });
    ticked.SetSelected(1, true);
    ticked.SetSelected(1, true);
    ticked.SetSelected(0, false);
    EXPECT_EQ(checked, std::vector<int>{1});
    EXPECT_TRUE(ticked.Selected(1));
    EXPECT_EQ(ticked.ListIndex(), -1);  // a tick is not a selection

    plain.Click.Connect([&] { ++clicks; });
    plain.SetSelected(1, true);
    plain.SetSelected(0, false);  // not the selected entry: nothing moves
    EXPECT_EQ(plain.ListIndex(), 1);
    plain.SetSelected(1, false);
    EXPECT_EQ(std::tuple(plain.ListIndex(), clicks), std::tuple(-1, 2));
}

TEST_F(Controls, ListViewCountsFromOneAndSelectsOneItemAtATime) {
    ListView list{scope, "lstAvailable"};
    for (const char* batch : {"B1", "B2", "B3"}) list.Add(batch);
    EXPECT_EQ(list.Item(2).SubItem(5), "");  // never written
    for (int outside : {0, 4}) EXPECT_EQ(ErrorNumberOf([&] { (void)list.Item(outside); }), 35600);
    EXPECT_EQ(ErrorNumberOf([&] { (void)list.Item(1).SubItem(0); }), 35600);

    list.Select(1);
    list.Select(3);
    EXPECT_EQ(std::tuple(list.SelectedIndex(), list.Item(1).Selected), std::tuple(3, false));
    list.Select(0);
    EXPECT_EQ(list.SelectedIndex(), 0);
}

}  // namespace
