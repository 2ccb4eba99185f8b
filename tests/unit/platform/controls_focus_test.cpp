// Focus: the run-time error when a control or a frame around it cannot take it,
// and the move through the form's focus scope.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/controls.h"
#include "platform/runtime_error.h"

namespace {

using namespace platform;

class RecordingScope : public FocusScope {
public:
    Control* ActiveControl() const override { return active; }
    void MoveFocus(Control& to) override {
        Control* previous = active;
        active = &to;
        if (previous) previous->LostFocus.Raise();
        to.GotFocus.Raise();
    }
    Control* active = nullptr;
};

long FocusError(Control& control) {
    try {
        control.SetFocus();
    } catch (const RuntimeError& error) {
        return error.Number();
    }
    return 0;
}

class ControlsFocus : public ::testing::Test {
protected:
    RecordingScope scope;
    Frame page{scope, "Frame3"};
    Frame inner{scope, "Frame5", 1};
    TextBox box{scope, "txtShippingAddress"};
    CommandButton save{scope, "cmdSave"};

    void SetUp() override {
        inner.Container = &page;
        box.Container = &inner;
        save.Container = &page;
    }
};

TEST_F(ControlsFocus, MovesFocusWithLostThenGotFocusOnce) {
    std::vector<std::string> events;
    box.GotFocus.Connect([&] { events.push_back("box got"); });
    box.LostFocus.Connect([&] { events.push_back("box lost"); });
    save.GotFocus.Connect([&] { events.push_back("save got"); });

    box.SetFocus();
    box.SetFocus();  // already there: no second move
    save.SetFocus();
    EXPECT_TRUE(save.HasFocus());
    EXPECT_EQ(events, (std::vector<std::string>{"box got", "box lost", "save got"}));
}

TEST_F(ControlsFocus, Error5WhenTheControlOrAnyFrameAroundItIsHiddenOrDisabled) {
    save.SetFocus();
    // A page moved out of sight but left enabled still takes focus.
    page.Top = -10000;
    EXPECT_EQ(FocusError(box), 0);
    save.SetFocus();

    box.Visible = false;
    EXPECT_EQ(FocusError(box), err::InvalidCall);
    box.Visible = true;
    page.Enabled = false;
    EXPECT_EQ(FocusError(box), err::InvalidCall);
    page.Enabled = true;
    inner.Visible = false;
    EXPECT_EQ(FocusError(box), err::InvalidCall);
    EXPECT_TRUE(save.HasFocus());

    Label label{scope, "lblRef"};
    EXPECT_EQ(FocusError(label), err::InvalidCall);
    EXPECT_EQ(FocusError(page), err::InvalidCall);
}

}  // namespace
