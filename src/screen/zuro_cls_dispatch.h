// The public class the host creates to open the dispatch screen: a thin door that
// creates the form, keeps it, and forwards to its initialiser.
#pragma once

#include <memory>

#include "platform/value.h"
#include "screen/host_services/host_services.h"
#include "screen/screen_form.h"

namespace screen {

class Zuro_frmDispatch_Dispatch;

class Zuro_clsDispatch {
public:
    // The host library's services, as the process has them.
    explicit Zuro_clsDispatch(host_services::HostServices services);
    ~Zuro_clsDispatch();

    void InitDispatch(platform::Date& ServerDate, long& Mode, host_services::HostContext& Zuro_Global_Obj,
                      platform::Date& AlrtDate);
    void InitCForm(platform::Date& ServerDate, host_services::HostContext& Zuro_Global_Obj);

    // The open screen, for a host that drives it with user events; nullptr before
    // one of the two calls.
    ScreenForm* Form();

private:
    host_services::HostServices services_;
    std::unique_ptr<ScreenForm> form_;
};

}  // namespace screen
