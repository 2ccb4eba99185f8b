// The host's menu: the seven modes of the dispatch screen and the receipt screen,
// each with the caption its frame takes.
#pragma once

#include <nlohmann/json.hpp>

namespace web {

nlohmann::json MenuState();

}  // namespace web
