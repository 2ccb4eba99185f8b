// The host library's global service: one object that plays every role the form
// asks of its host, so that the form reaches each operation through the one
// reference it holds.
#pragma once

#include "screen/host_services/host_database.h"
#include "screen/host_services/host_documents.h"
#include "screen/host_services/host_keyboard.h"
#include "screen/host_services/host_saving.h"
#include "screen/host_services/host_screen.h"
#include "screen/host_services/host_settings.h"
#include "screen/host_services/host_units.h"

namespace host_services {

class HostGlobal : public HostDatabase,
                   public HostSettings,
                   public HostKeyboard,
                   public HostDocuments,
                   public HostUnits,
                   public HostSaving,
                   public HostScreen {};

}  // namespace host_services
