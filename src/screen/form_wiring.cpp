// Which routine answers which control's event, and which routines a host may
// call by name.
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

void Zuro_frmDispatch_Dispatch::WireEvents() {
    cmdMemo.Click.Connect([this] { cmdMemo_Click(); });
}

void Zuro_frmDispatch_Dispatch::RegisterRoutines() {
    auto plain = [this](const char* name, void (Zuro_frmDispatch_Dispatch::*routine)()) {
        routines_.Add(name, [this, routine](RoutineCall&) { (this->*routine)(); });
    };
    plain("InitDTFlexDispatch", &Zuro_frmDispatch_Dispatch::InitDTFlexDispatch);
    plain("cmdMemo_Click", &Zuro_frmDispatch_Dispatch::cmdMemo_Click);
    plain("ClearMemoFields", &Zuro_frmDispatch_Dispatch::ClearMemoFields);
    plain("Form_Resize", &Zuro_frmDispatch_Dispatch::Form_Resize);
    plain("AutoListCallBack", &Zuro_frmDispatch_Dispatch::AutoListCallBack);
}

}  // namespace screen
