#include "screen/zuro_cls_dispatch.h"

#include "platform/error_handler.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

Zuro_clsDispatch::Zuro_clsDispatch(host_services::HostServices services) : services_(std::move(services)) {}
Zuro_clsDispatch::~Zuro_clsDispatch() = default;

void Zuro_clsDispatch::InitDispatch(platform::Date& ServerDate, long& Mode, host_services::HostContext& Zuro_Global_Obj,
                                    platform::Date& AlrtDate) {
    auto form = std::make_unique<Zuro_frmDispatch_Dispatch>(services_);
    auto* dispatchForm = form.get();
    form_ = std::move(form);
    dispatchForm->InitForm(ServerDate, Mode, Zuro_Global_Obj, AlrtDate);
}

void Zuro_clsDispatch::InitCForm(platform::Date& /*ServerDate*/, host_services::HostContext& /*Zuro_Global_Obj*/) {
    // The receipt screen is not part of this build yet: the host hears so through
    // its error log, as it would of any method the component does not have.
    platform::RunHandled(services_.global, "Dispatch: InitCForm - ", [] { throw platform::RuntimeError(438); });
}

ScreenForm* Zuro_clsDispatch::Form() { return form_.get(); }

}  // namespace screen
