// Which routine answers which control's event, and which routines a host may
// call by name.
#include "platform/convert.h"
#include "screen/routine_arguments.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

void Zuro_frmDispatch_Dispatch::WireEvents() {
    cmdMemo.Click.Connect([this] { cmdMemo_Click(); });
    WirePartyEvents();
    WireItemLookupAndUnits();
    WireItemEntryAndBatches();
    WireGridKeysAndRows();
    WireSavingAndPrinting();

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

namespace {
const std::string& Argument(const RoutineCall& call, std::size_t index) { return RoutineArguments(call, index + 1, 2).Text(index); }
long LongArgument(const RoutineCall& call, std::size_t index) { return RoutineArguments(call, index + 1, 2).Number(index); }
}  // namespace

void Zuro_frmDispatch_Dispatch::RegisterRoutines() {
    auto plain = [this](const char* name, void (Zuro_frmDispatch_Dispatch::*routine)()) {
        routines_.Add(name, [this, routine](RoutineCall&) { (this->*routine)(); });
    };
    auto withLong = [this](const char* name, auto routine) {
        routines_.Add(name, [this, routine](RoutineCall& call) { (this->*routine)(LongArgument(call, 0)); });
    };
    plain("InitDTFlexDispatch", &Zuro_frmDispatch_Dispatch::InitDTFlexDispatch);
    plain("cmdMemo_Click", &Zuro_frmDispatch_Dispatch::cmdMemo_Click);
    plain("ClearMemoFields", &Zuro_frmDispatch_Dispatch::ClearMemoFields);
    plain("Form_Resize", &Zuro_frmDispatch_Dispatch::Form_Resize);
    plain("AutoListCallBack", &Zuro_frmDispatch_Dispatch::AutoListCallBack);
    plain("LayoutHeaderFields", &Zuro_frmDispatch_Dispatch::LayoutHeaderFields);
    plain("LayoutCustomerFields", &Zuro_frmDispatch_Dispatch::LayoutCustomerFields);
    plain("AlignControlsforDocumentNumber", &Zuro_frmDispatch_Dispatch::AlignControlsforDocumentNumber);
    plain("MakeControlsVisible", &Zuro_frmDispatch_Dispatch::MakeControlsVisible);
    plain("RepositionAutolist", &Zuro_frmDispatch_Dispatch::RepositionAutolist);
    plain("GetNewDispatchID", &Zuro_frmDispatch_Dispatch::GetNewDispatchID);
    plain("GetRefNO", &Zuro_frmDispatch_Dispatch::GetRefNO);
    plain("InitCustAutolists", &Zuro_frmDispatch_Dispatch::InitCustAutolists);
    plain("LoadCustomerAdd", &Zuro_frmDispatch_Dispatch::LoadCustomerAdd);
    plain("ClearCustomer", &Zuro_frmDispatch_Dispatch::ClearCustomer);
    withLong("SetFrame", &Zuro_frmDispatch_Dispatch::SetFrame);
    withLong("SetTabStop", &Zuro_frmDispatch_Dispatch::SetTabStop);
    routines_.Add("AdvanceField", [this](RoutineCall& call) { AdvanceField(static_cast<int>(LongArgument(call, 0))); });
    routines_.Add("AdvanceField2", [this](RoutineCall& call) { AdvanceField2(static_cast<int>(LongArgument(call, 0))); });
    routines_.Add("LoadDocumentTypes",
                  [this](RoutineCall& call) { LoadDocumentTypes(static_cast<int>(LongArgument(call, 0))); });
    routines_.Add("SetDocumentReference",
                  [this](RoutineCall& call) { SetDocumentReference(static_cast<int>(LongArgument(call, 0))); });
    routines_.Add("GetCustomerCategory",
                  [this](RoutineCall& call) { call.result = platform::Value(GetCustomerCategory(Argument(call, 0))); });
    routines_.Add("DoubleQuotes", [](RoutineCall& call) { call.result = platform::Value(DoubleQuotes(Argument(call, 0))); });
    routines_.Add("ShowCustomerCredit", [this](RoutineCall& call) {
        ShowCustomerCredit(Argument(call, 0), call.arguments.size() > 1 && platform::UCase(Argument(call, 1)) == "TRUE");
    });
    routines_.Add("GetCreditLimit", [this](RoutineCall& call) { call.result = platform::Value(GetCreditLimit(Argument(call, 0))); });
    routines_.Add("GetOutstandingBalance",
                  [this](RoutineCall& call) { call.result = platform::Value(GetOutstandingBalance(Argument(call, 0))); });
    routines_.Add("GetCustomerOverDue", [this](RoutineCall& call) {
        call.result = platform::Value(GetCustomerOverDue(Argument(call, 0), LongArgument(call, 1)));
    });
    routines_.Add("GetChequesInHand", [this](RoutineCall& call) { call.result = platform::Value(GetChequesInHand(Argument(call, 0))); });
    routines_.Add("LoadBillsOutstanding",
                  [this](RoutineCall& call) { call.result = LoadBillsOutstanding(Argument(call, 0)); });
    routines_.Add("IsTradeCustomer", [this](RoutineCall& call) { call.result = platform::Value(IsTradeCustomer(Argument(call, 0))); });
    routines_.Add("ToUpperKey", [](RoutineCall& call) {
        int key = static_cast<int>(LongArgument(call, 0));
        ToUpperKey(key);
        call.outs.emplace_back("nKeyAscii", platform::Value(key));
    });
}

}  // namespace screen
