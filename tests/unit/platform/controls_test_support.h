// What the control and grid tests share: a focus scope that only remembers the
// active control, and the number of the run-time error a call raises.
#pragma once

#include "error_number.h"
#include "platform/controls.h"

namespace controls_test {

using platform::testing::ErrorNumberOf;

class SingleFocus : public platform::FocusScope {
public:
    platform::Control* ActiveControl() const override { return active; }
    void MoveFocus(platform::Control& to) override { active = &to; }
    platform::Control* active = nullptr;
};

}  // namespace controls_test
