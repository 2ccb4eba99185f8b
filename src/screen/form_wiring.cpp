// Which routine answers which control's event, and which routines a host may
// call by name.
#include "screen/routine_binder.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

void Zuro_frmDispatch_Dispatch::WireEvents() {
    cmdMemo.Click.Connect([this] { cmdMemo_Click(); });
    WirePartyEvents();
    WireItemLookupAndUnits();
    WireItemEntryAndBatches();
    WireGridKeysAndRows();
    WireSavingAndPrinting();
    WireStoredNoteLoading();
    WireSchemes();
    WireOtherGroupFreeItems();
    WireDocumentLists();
    WireSourceLoading();
    WireCancellationAndAmendment();

    // Pages and the header's keys.
    txtref.KeyDown.Connect([this](int& key, int shift) { txtref_KeyDown(key, shift); });
    txtRemarks.KeyDown.Connect([this](int& key, int shift) { txtRemarks_KeyDown(key, shift); });
    txtBillingAddress.KeyPress.Connect([this](int& key) { txtBillingAddress_KeyPress(key); });
    txtShippingAddress.KeyPress.Connect([this](int& key) { txtShippingAddress_KeyPress(key); });
    DTDispatchDate.KeyDown.Connect([this](int& key, int shift) { DTDispatchDate_KeyDown(key, shift); });
    cmdChange.Click.Connect([this] { cmdChange_Click(); });
    cmdChange.KeyDown.Connect([this](int& key, int shift) { cmdChange_KeyDown(key, shift); });

    // Document type and reference.
    txtDocReference.KeyDown.Connect([this](int& key, int shift) { txtDocReference_KeyDown(key, shift); });
    cbodocumenttype.KeyDown.Connect([this](int& key, int shift) { cbodocumenttype_KeyDown(key, shift); });
    cbodocumenttype.KeyPress.Connect([this](int& key) { cbodocumenttype_KeyPress(key); });
    cbodocumenttype.DropDown.Connect([this] { cbodocumenttype_DropDown(); });
    cbodocumenttype.Click.Connect([this] { cbodocumenttype_Click(); });
    cbodocumenttype.LostFocus.Connect([this] { cbodocumenttype_LostFocus(); });

    // Customer.
    txtCustomer.Change.Connect([this] { txtCustomer_Change(); });
    txtCustomerID.Change.Connect([this] { txtCustomerID_Change(); });
    txtCustomer.KeyDown.Connect([this](int& key, int shift) { txtCustomer_KeyDown(key, shift); });
    txtCustomerID.KeyDown.Connect([this](int& key, int shift) { txtCustomerID_KeyDown(key, shift); });
    txtCustomer.KeyPress.Connect([this](int& key) { txtCustomer_KeyPress(key); });
    txtCustomerID.KeyPress.Connect([this](int& key) { txtCustomerID_KeyPress(key); });
    txtCustomer.LostFocus.Connect([this] { txtCustomer_LostFocus(); });
    txtCustomerID.LostFocus.Connect([this] { txtCustomerID_LostFocus(); });
}

void Zuro_frmDispatch_Dispatch::RegisterRoutines() {
    using Self = Zuro_frmDispatch_Dispatch;
    RoutineBinder routines(routines_, *this);
    routines.Bind("InitDTFlexDispatch", &Self::InitDTFlexDispatch, {});
    routines.Bind("cmdMemo_Click", &Self::cmdMemo_Click, {});
    routines.Bind("ClearMemoFields", &Self::ClearMemoFields, {});
    routines.Bind("Form_Resize", &Self::Form_Resize, {});
    routines.Bind("AutoListCallBack", &Self::AutoListCallBack, {});
    routines.Bind("LayoutHeaderFields", &Self::LayoutHeaderFields, {});
    routines.Bind("LayoutCustomerFields", &Self::LayoutCustomerFields, {});
    routines.Bind("AlignControlsforDocumentNumber", &Self::AlignControlsforDocumentNumber, {});
    routines.Bind("MakeControlsVisible", &Self::MakeControlsVisible, {});
    routines.Bind("RepositionAutolist", &Self::RepositionAutolist, {});
    routines.Bind("GetNewDispatchID", &Self::GetNewDispatchID, {});
    routines.Bind("GetRefNO", &Self::GetRefNO, {});
    routines.Bind("InitCustAutolists", &Self::InitCustAutolists, {});
    routines.Bind("LoadCustomerAdd", &Self::LoadCustomerAdd, {});
    routines.Bind("ClearCustomer", &Self::ClearCustomer, {});
    routines.Bind("SetFrame", &Self::SetFrame, {"nScreen"});
    routines.Bind("SetTabStop", &Self::SetTabStop, {"nScreen"});
    routines.Bind("AdvanceField", &Self::AdvanceField, {"Shift"});
    routines.Bind("AdvanceField2", &Self::AdvanceField2, {"Shift"});
    routines.Bind("LoadDocumentTypes", &Self::LoadDocumentTypes, {"nTransactionType"});
    routines.Bind("SetDocumentReference", &Self::SetDocumentReference, {"nTransactionType"});
    routines.Bind("GetCustomerCategory", &Self::GetCustomerCategory, {"szCustomerID"});
    routines.Bind("DoubleQuotes", &Self::DoubleQuotes, {"szText"});
    routines.Bind("ShowCustomerCredit", &Self::ShowCustomerCredit, {"szName", Optional("bWithBills", "False")});
    routines.Bind("GetCreditLimit", &Self::GetCreditLimit, {"szCode"});
    routines.Bind("GetOutstandingBalance", &Self::GetOutstandingBalance, {"szCode"});
    routines.Bind("GetCustomerOverDue", &Self::GetCustomerOverDue, {"szCode", "nKind"});
    routines.Bind("GetChequesInHand", &Self::GetChequesInHand, {"szCode"});
    routines.Bind("LoadBillsOutstanding", &Self::LoadBillsOutstanding, {"szName"});
    routines.Bind("IsTradeCustomer", &Self::IsTradeCustomer, {"szCode"});
    routines.Bind("ToUpperKey", &Self::ToUpperKey, {InOut("nKeyAscii")});
}

}  // namespace screen
