#include "session/screen_opener.h"

#include "screen/zuro_cls_dispatch.h"

namespace session {
namespace {

class DispatchOpener : public ScreenOpener {
public:
    screen::ScreenForm* OpenDispatch(host::PlainHost& host, platform::Date serverDate, long mode,
                                     platform::Date alertDate) override {
        // The entry point takes its arguments by reference, as the host's late-bound
        // call passed them.
        auto& component = NewComponent(host);
        component.InitDispatch(serverDate, mode, host.Context(), alertDate);
        return component.Form();
    }

    screen::ScreenForm* OpenCForm(host::PlainHost& host, platform::Date serverDate) override {
        auto& component = NewComponent(host);
        component.InitCForm(serverDate, host.Context());
        return component.Form();
    }

private:
    // One instance of the class for each opening, as the host creates it; the one
    // before goes with its form.
    screen::Zuro_clsDispatch& NewComponent(host::PlainHost& host) {
        component_.reset();
        component_ = std::make_unique<screen::Zuro_clsDispatch>(host.Services());
        return *component_;
    }

    std::unique_ptr<screen::Zuro_clsDispatch> component_;
};

}  // namespace

std::unique_ptr<ScreenOpener> MakeDispatchOpener() { return std::make_unique<DispatchOpener>(); }

}  // namespace session
