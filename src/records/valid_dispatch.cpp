// Whether a stored note may still be changed: cancelling and amending both stop at a
// note that is closed (bit 128), which a cancelled or amended note always is.
#include "screen/procedure_results.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

bool Zuro_frmDispatch_Dispatch::ValidDispatch(long nDispatchID, bool& bValid) {
    bValid = false;
    Handled("ValidDispatch", [&] {
        auto rs = host_.global.GetConnection().Execute(std::string("Select CustomerID From DispatchAbstract ") +
                                                       "Where DispatchID = " + std::to_string(nDispatchID) +
                                                       " And Status & 128 = 0");
        bValid = HasRecordset(rs) && !rs->Eof();
        if (HasRecordset(rs)) rs->Close();
    });
    return bValid;
}

}  // namespace screen
