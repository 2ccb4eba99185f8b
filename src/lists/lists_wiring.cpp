// The list page's events, and the routines of the document lists a host may call by
// name.
#include "screen/routine_binder.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

void Zuro_frmDispatch_Dispatch::WireDocumentLists() {
    lstSO.ItemCheck.Connect([this](int item) { lstSO_ItemCheck(item); });
    lstSO.KeyDown.Connect([this](int& key, int shift) { lstSO_KeyDown(key, shift); });
    cmdRefresh.Click.Connect([this] { cmdRefresh_Click(); });
    dtFromDate.LostFocus.Connect([this] { dtFromDate_LostFocus(); });
    dtToDate.LostFocus.Connect([this] { dtToDate_LostFocus(); });
    dtFromDate.KeyDown.Connect([this](int& key, int shift) { dtFromDate_KeyDown(key, shift); });
    dtToDate.KeyDown.Connect([this](int& key, int shift) { dtToDate_KeyDown(key, shift); });

    using Self = Zuro_frmDispatch_Dispatch;
    RoutineBinder routines(routines_, *this);
    routines.Bind("InitList", &Self::InitList, {});
    routines.Bind("InitValues", &Self::InitValues, {});
    routines.Bind("ListAllSOAbstract", &Self::ListAllSOAbstract, {});
    routines.Bind("ListSpecifiedSOAbstract", &Self::ListSpecifiedSOAbstract, {"szCustomerID"});
    routines.Bind("ListAllPOAbstract", &Self::ListAllPOAbstract, {});
    routines.Bind("ListSpecifiedPOAbstract", &Self::ListSpecifiedPOAbstract, {"szCustomerID"});
    routines.Bind("GetDetails", &Self::GetDetails, {});
    routines.Bind("Validate", &Self::Validate, {});
    routines.Bind("lstSO_ItemCheck", &Self::lstSO_ItemCheck, {"Item"});
    routines.Bind("lstSO_KeyDown", &Self::lstSO_KeyDown, {InOut("KeyCode"), "Shift"});
    routines.Bind("cmdRefresh_Click", &Self::cmdRefresh_Click, {});
    routines.Bind("dtFromDate_LostFocus", &Self::dtFromDate_LostFocus, {});
    routines.Bind("dtToDate_LostFocus", &Self::dtToDate_LostFocus, {});
    routines.Bind("dtFromDate_KeyDown", &Self::dtFromDate_KeyDown, {InOut("KeyCode"), "Shift"});
    routines.Bind("dtToDate_KeyDown", &Self::dtToDate_KeyDown, {InOut("KeyCode"), "Shift"});
}

}  // namespace screen
