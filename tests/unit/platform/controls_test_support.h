// What the control and grid tests share: a focus scope that moves the focus with
// LostFocus then GotFocus, and the number of the run-time error a call raises.
#pragma once

#include <utility>

#include "error_number.h"
#include "platform/controls.h"

namespace controls_test {

using platform::testing::ErrorNumberOf;

class SingleFocus : public platform::FocusScope {
public:
    platform::Control* ActiveControl() const override { return active; }
    void MoveFocus(platform::Control& to) override {
        platform::Control* previous = std::exchange(active, &to);
        if (previous) previous->LostFocus.Raise();
        to.GotFocus.Raise();
    }
    platform::Control* active = nullptr;
};

}  // namespace controls_test
