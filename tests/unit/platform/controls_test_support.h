// What the control and grid tests share: a focus scope that only remembers the
// active control, and the number of the run-time error a call raises.
#pragma once

#include "platform/controls.h"
#include "platform/runtime_error.h"

namespace controls_test {

class SingleFocus : public platform::FocusScope {
public:
    platform::Control* ActiveControl() const override { return active; }
    void MoveFocus(platform::Control& to) override { active = &to; }
    platform::Control* active = nullptr;
};

// 0 when the call raises no run-time error.
template <class Call>
long ErrorNumberOf(Call&& call) {
    try {
        call();
    } catch (const platform::RuntimeError& error) {
        return error.Number();
    }
    return 0;
}

}  // namespace controls_test
