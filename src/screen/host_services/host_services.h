// Everything the screen may reach of its host, handed over in one piece.
#pragma once

#include <functional>
#include <memory>

#include "screen/host_services/auto_list.h"
#include "screen/host_services/host_context.h"
#include "screen/host_services/host_global.h"
#include "screen/host_services/host_main_form.h"
#include "screen/host_services/host_messages.h"
#include "screen/host_services/host_tools.h"

namespace host_services {

struct HostServices {
    HostGlobal& global;
    HostMessages& messages;
    HostTools& tools;
    HostMainForm& mainForm;
    // Each screen creates its own type-ahead lists.
    std::function<std::unique_ptr<AutoList>()> newAutoList;
};

}  // namespace host_services
