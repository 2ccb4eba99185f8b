// What the plain host's services share: the connection, the settings, the
// transcript and the queued answers, and the little the host itself remembers
// between calls (the working date, the open child forms, the list guard).
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/dialog_answers.h"
#include "host/list_registry.h"
#include "host/settings.h"
#include "host/transcript.h"
#include "platform/database.h"
#include "platform/value.h"
#include "screen/host_services/host_context.h"
#include "screen/host_services/hosted_form.h"

namespace host {

struct HostState {
    HostState(platform::ConnectionPtr connection, Settings& settings, Transcript& transcript, DialogAnswers& answers);

    platform::ConnectionPtr connection;
    Settings& settings;
    Transcript& transcript;
    DialogAnswers& answers;
    std::shared_ptr<ListRegistry> lists = std::make_shared<ListRegistry>();

    platform::Date serverDate;  // the session's working date
    std::optional<platform::Date> lastTransactionDate;
    host_services::HostContext* context = nullptr;
    bool listGuard = false;
    // Child forms the main window treats as its own, the active one last.
    std::vector<host_services::HostedForm*> openForms;
    std::string shortcutText;
    // The looks applied to forms, grids and combos, one line each; nothing is drawn.
    std::vector<std::string> appliedStyles;
};

}  // namespace host
