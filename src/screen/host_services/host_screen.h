// What the host shows around the form: the status line, its stored messages, the
// error log, the look of frames and grids, the short-cut hint line, and the host's
// other open forms.
#pragma once

#include <string>
#include <vector>

#include "platform/controls.h"
#include "platform/error_handler.h"
#include "screen/host_services/host_main_form.h"
#include "screen/host_services/hosted_form.h"

namespace host_services {

// ReportError, the central error log every routine's handler writes to, comes from
// platform::ErrorLog.
class HostScreen : public platform::ErrorLog {
public:
    // Shows a line on the application's status area: mustNotice 1 for a refusal or
    // warning the user must see, 0 for a plain progress line.
    virtual void ShowStatus(const std::string& text, int mustNotice) = 0;
    // Shows the message the host stores under the number, with {0}, {1} ... filled
    // from the arguments; the form passes mustNotice 1, as for a refusal.
    virtual void ShowNumberedMessage(long number, int mustNotice, const std::vector<std::string>& arguments) = 0;
    // The idle status line, shown again when a long step is over.
    virtual std::string GetReadyMessage() = 0;

    // The icon of a child frame.
    virtual std::string GetFormIcon() = 0;
    using StyleArray = std::vector<std::string>;
    // Gives a form the host's look, from the header and body styles.
    virtual void ApplyFormStyle(HostedForm& form, const StyleArray& header, const StyleArray& body) = 0;
    // Gives a child frame the host's look, from the header and body styles.
    virtual void ApplyFormStyle(HostLink& link, const StyleArray& header, const StyleArray& body) = 0;
    // The header style ApplyFormStyle takes.
    virtual StyleArray GetGridHeaderFont() = 0;
    // The body style ApplyFormStyle takes.
    virtual StyleArray GetGridBodyFont() = 0;
    // Gives a grid the host's look.
    virtual void ApplyGridStyle(platform::Control& grid) = 0;
    // The base label of the short-cut hint line while the form is open.
    virtual std::string GetFormShortcutText() = 0;
    // The base label of the short-cut hint line once the form has closed.
    virtual std::string GetFormCloseShortcutText() = 0;

    // The host's open form of that name, nullptr when none; the form passes -1 as the
    // host's option word.
    virtual HostedForm* FindOpenForm(const std::string& formName, int hostOption) = 0;
    // The mode the customer form is opened in from this screen.
    virtual int GetCustomerFormMode() = 0;
};

}  // namespace host_services
