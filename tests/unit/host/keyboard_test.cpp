#include <gtest/gtest.h>

#include "host_fixture.h"
#include "platform/controls.h"

namespace host_test {
namespace {

constexpr int kEnter = 13, kBackspace = 8, kHome = 36, kEnd = 35, kUp = 38, kDown = 40;

class KeyboardTest : public HostTest {
protected:
    KeyboardTest() { services().mainForm.CaptureChildObj(form); }

    TestForm form{"frmDispatch"};
    platform::TextBox billing{form, "txtBillingAddress"};
    platform::TextBox shipping{form, "txtShippingAddress"};
    platform::TextBox salesman{form, "txtSalesman"};
};

TEST_F(KeyboardTest, FocusMovesOnlyToAControlThatCanTakeIt) {
    salesman.Visible = false;
    global().SetFocusTo(salesman);
    EXPECT_TRUE(form.moves.empty());
    global().SetFocusTo(billing);
    global().SetFocusTo(billing);
    EXPECT_EQ(form.moves, std::vector<std::string>{"txtBillingAddress"});
}

TEST_F(KeyboardTest, EnterGoesAheadAndShiftEnterBehind) {
    global().HandleEnterAdvance(0, billing, shipping);
    EXPECT_TRUE(shipping.HasFocus());
    global().HandleEnterAdvance(1, billing, shipping);
    EXPECT_TRUE(billing.HasFocus());
    global().HandleEnterAdvance(2, billing, shipping);
    EXPECT_TRUE(shipping.HasFocus());
}

TEST_F(KeyboardTest, TheSecondEnterInARowMovesOutOfAnAddress) {
    global().SetFocusTo(billing);
    billing.SetText("1 Mill Road");
    int key = kEnter;
    EXPECT_EQ(global().AddressEnterStep(key), 0);
    EXPECT_EQ(key, kEnter) << "the first Enter is a new line in the box";
    billing.SetText("1 Mill Road\nLeeds");  // typing breaks the row
    key = kEnter;
    EXPECT_EQ(global().AddressEnterStep(key), 0);
    key = kEnter;
    EXPECT_EQ(global().AddressEnterStep(key), 1);
    EXPECT_EQ(key, 0);

    key = kEnter;
    EXPECT_EQ(global().AddressEnterStep(key), 0) << "a fresh row begins";
    global().SetFocusTo(shipping);
    key = kEnter;
    EXPECT_EQ(global().AddressEnterStep(key), 0) << "an Enter in another box starts its own row";
}

TEST_F(KeyboardTest, ListViewSelectionWalksWithTheKeys) {
    platform::ListView list(form, "lstAvailable");
    EXPECT_FALSE(global().MoveListSelection(list, kDown));
    for (const char* batch : {"B1", "B2", "B3"}) list.Add(batch);
    EXPECT_TRUE(global().MoveListSelection(list, kDown));
    EXPECT_EQ(list.SelectedIndex(), 1);
    EXPECT_FALSE(global().MoveListSelection(list, kUp));
    EXPECT_TRUE(global().MoveListSelection(list, kEnd));
    EXPECT_EQ(list.SelectedIndex(), 3);
    EXPECT_FALSE(global().MoveListSelection(list, kDown));
    EXPECT_TRUE(global().MoveListSelection(list, kHome));
    EXPECT_EQ(list.SelectedIndex(), 1);
    EXPECT_FALSE(global().MoveListSelection(list, 65));
}

TEST_F(KeyboardTest, ComboEntriesAreFoundWithoutRegardToCase) {
    platform::ComboBox combo(form, "cbodocumenttype");
    for (const char* type : {"Select A Document Type", "DN-A", "OLD"}) combo.AddItem(type);
    combo.SetText("dn-a");
    global().ComboFindExact(combo);
    EXPECT_EQ(combo.ListIndex(), 1);
    EXPECT_EQ(combo.Text(), "DN-A");
    combo.SetText("Unknown");
    global().ComboFindExact(combo);
    EXPECT_EQ(combo.ListIndex(), -1);
    EXPECT_EQ(combo.Text(), "Unknown");
}

TEST_F(KeyboardTest, ComboTypeAheadGoesOnFromWhatWasTyped) {
    platform::ComboBox combo(form, "cboCustomer");
    for (const char* name : {"Alpha", "Beta", "Bravo"}) combo.AddItem(name);
    auto type = [&](int key) {
        global().ComboAutoComplete(combo, key);
        EXPECT_EQ(key, 0);
        return combo.Text();
    };
    EXPECT_EQ(type('b'), "Beta");
    EXPECT_EQ(type('r'), "Bravo");
    EXPECT_EQ(type(kBackspace), "Beta");
    EXPECT_EQ(type('x'), "bx");
    EXPECT_EQ(combo.ListIndex(), -1);
}

TEST_F(KeyboardTest, OpenFormsAreFoundByName) {
    EXPECT_EQ(global().FindOpenForm("FRMDISPATCH", -1), &form);
    EXPECT_EQ(global().FindOpenForm("frmCustomer", -1), nullptr);
    services().mainForm.LeaveChildObj(form);
    EXPECT_EQ(global().FindOpenForm("frmDispatch", -1), nullptr);
}

}  // namespace
}  // namespace host_test
