// The routines of cancelling and amending stored notes that a host may call by name.
#include "screen/routine_binder.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

void Zuro_frmDispatch_Dispatch::WireCancellationAndAmendment() {
    using Self = Zuro_frmDispatch_Dispatch;
    RoutineBinder routines(routines_, *this);
    routines.Bind("ValidDispatch", &Self::ValidDispatch, {"nDispatchID", "bValid"});
}

}  // namespace screen
