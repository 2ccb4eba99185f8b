// The number of the run-time error a call raised, or 0 when it raised none.
#pragma once

#include "platform/runtime_error.h"

namespace platform::testing {

template <class Call>
long ErrorNumberOf(Call&& call) {
    try {
        call();
    } catch (const RuntimeError& e) {
        return e.Number();
    }
    return 0;
}

}  // namespace platform::testing
