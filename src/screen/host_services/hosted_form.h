// What the host sees of a screen it frames: a focus scope with a name. The host
// never reaches into the screen's routines except through the call-backs below.
#pragma once

#include <string>

#include "platform/controls.h"

namespace host_services {

class HostedForm : public platform::FocusScope {
public:
    virtual std::string FormName() const = 0;
};

// The call-backs of a type-ahead list's owner.
class AutoListOwner {
public:
    virtual ~AutoListOwner() = default;
    virtual void AutoListCallBack() = 0;
    virtual void CustomerCallBack(const std::string& szCustomerCode, const std::string& szCustomerName) = 0;
};

}  // namespace host_services
