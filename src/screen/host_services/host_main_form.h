// The application's main window and the child frame it gives each screen.
#pragma once

#include <memory>
#include <string>

#include "screen/host_services/hosted_form.h"

namespace host_services {

class HostLink {
public:
    virtual ~HostLink() = default;
    virtual long hwnd() const = 0;
    virtual void SetMyChild(HostedForm& form) = 0;
    virtual void SetIcon(const std::string& icon) = 0;
    virtual std::string Caption() const = 0;
    virtual void SetCaption(const std::string& caption) = 0;
    virtual void SetHelpContextID(long id) = 0;
    virtual long HelpContextID() const = 0;
    virtual void SetHParent(long hwnd) = 0;
    // Spelled so by the host: 1 when an unload was refused, 0 when it proceeds.
    virtual void SetStaus(long value) = 0;
    virtual long Staus() const = 0;
    virtual void SetFocus() = 0;
};

class HostMainForm {
public:
    virtual ~HostMainForm() = default;
    virtual std::shared_ptr<HostLink> GiveMeNewLink() = 0;
    virtual void CaptureChildObj(HostedForm& form) = 0;
    virtual void LeaveChildObj(HostedForm& form) = 0;
    virtual void InitShortCuts(const std::string& text) = 0;
    virtual void FocusTo(platform::Control& control) = 0;
    // A masked input box; false when the user cancelled.
    virtual bool InputBoxE(const std::string& prompt, const std::string& title, std::string& text) = 0;
    virtual void SetFocus() = 0;
};

}  // namespace host_services
