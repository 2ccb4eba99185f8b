// The loaders of source documents and their load-time schemes, as a host holding
// the form calls them, and Mode 2's copy key. Who ticks the documents and presses
// Continue is the list page's business; a host may set the fields itself.
#include "screen/routine_binder.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

void Zuro_frmDispatch_Dispatch::WireSourceLoading() {
    writableFields_["szCopySONumber"] = &szCopySONumber;
    writableNumbers_["nCustomerCategory"] = &nCustomerCategory;

    using Self = Zuro_frmDispatch_Dispatch;
    RoutineBinder routines(routines_, *this);
    routines.Bind("LoadItemDetails", &Self::LoadItemDetails, {});
    routines.Bind("LoadPOItems", &Self::LoadPOItems, {});
    routines.Bind("CopyCallBack", &Self::CopyCallBack, {});
    routines.Bind("FindSchemes", &Self::FindSchemes, {"szItemCode", "nQuantity", "DServerDate", "nRow"});
}

}  // namespace screen
