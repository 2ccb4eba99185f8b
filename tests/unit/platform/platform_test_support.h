// What the platform's tests share: the number of the run-time error a call raised,
// and a focus scope that moves the focus with LostFocus then GotFocus.
#pragma once

#include <tuple>  // the tests compare neighbouring values as one tuple
#include <utility>

#include "platform/controls.h"
#include "platform/runtime_error.h"

namespace platform::testing {

// 0 when the call raised no run-time error.
template <class Call>
long ErrorNumberOf(Call&& call) {
    try {
        call();
    } catch (const RuntimeError& e) {
        return e.Number();
    }
    return 0;
}

class SingleFocus : public FocusScope {
public:
    Control* ActiveControl() const override { return active; }
    void MoveFocus(Control& to) override {
        Control* previous = std::exchange(active, &to);
        if (previous) previous->LostFocus.Raise();
        to.GotFocus.Raise();
    }
    Control* active = nullptr;
};

}  // namespace platform::testing
