// The object the host hands to InitDispatch and InitCForm.
#pragma once

namespace host_services {

class HostContext {
public:
    virtual ~HostContext() = default;
    // Refreshes the host's day-close settings; called before each save.
    virtual void GetClosedayChecking() = 0;
};

}  // namespace host_services
