// How `open` brings a screen up: the host creates the component's public class and
// calls one of its entry points, as the application does.
#pragma once

#include <memory>

#include "host/plain_host.h"
#include "platform/value.h"
#include "screen/screen_form.h"

namespace session {

class ScreenOpener {
public:
    virtual ~ScreenOpener() = default;
    // The form the entry point opened; nullptr when it opened none.
    virtual screen::ScreenForm* OpenDispatch(host::PlainHost& host, platform::Date serverDate, long mode,
                                             platform::Date alertDate) = 0;
    virtual screen::ScreenForm* OpenCForm(host::PlainHost& host, platform::Date serverDate) = 0;
};

// Opens the screens through Zuro_clsDispatch.
std::unique_ptr<ScreenOpener> MakeDispatchOpener();

}  // namespace session
