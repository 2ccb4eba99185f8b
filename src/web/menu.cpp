#include "web/menu.h"

#include "screen/screen_titles.h"

namespace web {

nlohmann::json MenuState() {
    nlohmann::json screens = nlohmann::json::array();
    for (long mode = 1; mode <= 7; ++mode)
        screens.push_back({{"screen", "dispatch"}, {"mode", mode}, {"caption", screen::DispatchModeTitle(mode)}});
    screens.push_back({{"screen", "cform"}, {"caption", screen::kCFormTitle}});
    return {{"screens", screens}};
}

}  // namespace web
