// The list page's events, and the routines of the document lists a host may call by
// name: the pending documents, the stored notes and their look-up, and the Continue
// and Close buttons between the two pages.
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
    WireStoredNotesAndContinue();
}

void Zuro_frmDispatch_Dispatch::WireStoredNotesAndContinue() {
    cmdGo.Click.Connect([this] { cmdGo_Click(); });
    txtDocID.GotFocus.Connect([this] { txtDocID_GotFocus(); });
    txtDocIDTo.GotFocus.Connect([this] { txtDocIDTo_GotFocus(); });
    txtDocID.KeyDown.Connect([this](int& key, int shift) { txtDocID_KeyDown(key, shift); });
    txtDocIDTo.KeyDown.Connect([this](int& key, int shift) { txtDocIDTo_KeyDown(key, shift); });
    cmdContinue.Click.Connect([this] { cmdContinue_Click(); });
    cmdContinue.KeyDown.Connect([this](int& key, int shift) { cmdContinue_KeyDown(key, shift); });
    for (int index : {0, 1}) {
        cmdClose(index).Click.Connect([this, index] { cmdClose_Click(index); });
        cmdClose(index).LostFocus.Connect([this, index] { cmdClose_LostFocus(index); });
    }

    using Self = Zuro_frmDispatch_Dispatch;
    RoutineBinder routines(routines_, *this);
    routines.Bind("ListDispatch", &Self::ListDispatch, {InOut("bDocLookUp")});
    routines.Bind("AlignDocLookUp", &Self::AlignDocLookUp, {});
    routines.Bind("cmdGo_Click", &Self::cmdGo_Click, {});
    routines.Bind("txtDocID_GotFocus", &Self::txtDocID_GotFocus, {});
    routines.Bind("txtDocIDTo_GotFocus", &Self::txtDocIDTo_GotFocus, {});
    routines.Bind("txtDocID_KeyDown", &Self::txtDocID_KeyDown, {InOut("KeyCode"), "Shift"});
    routines.Bind("txtDocIDTo_KeyDown", &Self::txtDocIDTo_KeyDown, {InOut("KeyCode"), "Shift"});
    routines.Bind("HandleSingleSelection", [this](int Item) { HandleSingleSelection(lstSO, Item); }, {"Item"});
    routines.Bind("cmdContinue_Click", &Self::cmdContinue_Click, {});
    routines.Bind("cmdContinue_KeyDown", &Self::cmdContinue_KeyDown, {InOut("KeyCode"), "Shift"});
    routines.Bind("cmdClose_Click", &Self::cmdClose_Click, {"Index"});
    routines.Bind("cmdClose_LostFocus", &Self::cmdClose_LostFocus, {"Index"});
    routines.Bind("ValidateDispatch", &Self::ValidateDispatch, {"nType", "bValid"});
    routines.Bind("ShowNotFound", &Self::ShowNotFound, {"szPONumbers"});
    routines.Bind("HandleControls", &Self::HandleControls, {});
}

}  // namespace screen
