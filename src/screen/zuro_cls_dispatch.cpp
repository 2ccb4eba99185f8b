#include "screen/zuro_cls_dispatch.h"

#include "receipts/zuro_frm_cform_dispatch.h"
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

void Zuro_clsDispatch::InitCForm(platform::Date& ServerDate, host_services::HostContext& Zuro_Global_Obj) {
    auto form = std::make_unique<receipts::Zuro_frmCForm_Dispatch>(services_);
    auto* receiptForm = form.get();
    form_ = std::move(form);
    receiptForm->InitForm(ServerDate, Zuro_Global_Obj);
}

ScreenForm* Zuro_clsDispatch::Form() { return form_.get(); }

}  // namespace screen
