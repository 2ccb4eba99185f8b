// The form as the clerk's page draws it: every control with its place, size and
// contents, the grid, the type-ahead list, the dialog that waits, the status line.
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "host/dialog_answers.h"
#include "session/session.h"

namespace web {

// Places and sizes are kept in twips; the page works in pixels.
inline constexpr double kTwipsPerPixel = 15.0;

struct CallLines {
    std::vector<std::string> lines;   // the transcript lines of the call
    std::vector<std::string> prints;  // the printed documents so far, by file name
};

nlohmann::json FormState(const session::Session& session, const host::DialogQuestion* question, const CallLines& call);

// One control, without its place in the form's order.
nlohmann::json ControlState(const platform::Control& control);

}  // namespace web
