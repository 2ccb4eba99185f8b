// The save button's events, and the routines of the credit gates, saving and printing
// that a host may call by name.
#include "screen/routine_binder.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

void Zuro_frmDispatch_Dispatch::WireSavingAndPrinting() {
    using Self = Zuro_frmDispatch_Dispatch;
    cmdSave.Click.Connect([this] { cmdSave_Click(); });
    cmdSave.KeyDown.Connect([this](int& key, int shift) { cmdSave_KeyDown(key, shift); });

    RoutineBinder routines(routines_, *this);
    routines.Bind("cmdSave_Click", &Self::cmdSave_Click, {});
    routines.Bind("ValidateHealthCareItems", &Self::ValidateHealthCareItems, {"szCustomerCode"});
    routines.Bind("ValidateQty", &Self::ValidateQty, {"nRows"});
    routines.Bind("SaveDispatch", &Self::SaveDispatch, {});
    routines.Bind("CleanUp", &Self::CleanUp, {});
    routines.Bind("CheckCreditGates", &Self::CheckCreditGates, {"nSalesmanID", "nBeatID", "nRows"});
    routines.Bind("CheckCrLimit", &Self::CheckCrLimit, {});
    routines.Bind("CheckCreditLimit", &Self::CheckCreditLimit, {"fExposure", "fCreditLimit"});
    routines.Bind("GetPrimaryItemName", &Self::GetPrimaryItemName, {"nRow", "szCol17", "szCol32"});
    routines.Bind("PrintSavedDispatch", &Self::PrintSavedDispatch, {"nDispatchID"});
    routines.Bind("PrintViewedDispatch", &Self::PrintViewedDispatch, {});
}

}  // namespace screen
