// Entry into the screen: InitForm binds the host, takes a frame, reads the
// labels and prefixes, and opens the page of the mode.
#include "screen/screen_titles.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

namespace {
constexpr int kDispatchTransaction = 5;

struct ModeTitles {
    const char* frameTitle;
    const char* listCaption;  // nullptr: the mode has no list page
};

ModeTitles TitlesOf(long nMode) {
    switch (nMode) {
        case mode::FromSalesConfirmation:
        case mode::FromAlert: return {"Dispatch from Sales Confirmation", "Sales Confirmation Details:"};
        case mode::NewDispatch: return {"Generate New Dispatch", nullptr};
        case mode::FromPurchaseOrder: return {"Dispatch from Purchase Order", "Purchase Order Details:"};
        case mode::View: return {"View Dispatch", "Dispatch Details"};
        case mode::Cancel: return {"Cancel Dispatch", "Dispatch Details"};
        case mode::Amendment: return {"Dispatch Amendment", "Dispatch Details"};
        default: return {"", nullptr};
    }
}
}  // namespace

const char* DispatchModeTitle(long nMode) { return TitlesOf(nMode).frameTitle; }

void Zuro_frmDispatch_Dispatch::InitForm(platform::Date DServerDate, long nModeArg,
                                         host_services::HostContext& Zuro_objGlobal, platform::Date AlertDate) {
    Handled("InitForm", [&] {
        auto& global = host_.global;
        auto& messages = host_.messages;

        objHostContext_ = &Zuro_objGlobal;
        global.SetHostContext(Zuro_objGlobal);
        host_.tools.SetToolsContext(Zuro_objGlobal);

        objLink = host_.mainForm.GiveMeNewLink();
        objLink->SetMyChild(*this);
        host_.mainForm.CaptureChildObj(*this);

        nMode = nModeArg;

        // Taking the form's window under the frame loads the form.
        parentWindow_ = objLink->hwnd();
        LoadOnce();

        global.ApplyFormStyle(static_cast<host_services::HostedForm&>(*this), global.GetGridHeaderFont(),
                              global.GetGridBodyFont());
        global.ApplyFormStyle(*objLink, global.GetGridHeaderFont(), global.GetGridBodyFont());
        global.ApplyGridStyle(DTFlexDispatch);
        objLink->SetIcon(global.GetFormIcon());

        formVisible_ = true;
        Form_Resize();

        szLblSelectSalesman = messages.GetLabel("Select Salesman");
        szLblSelectBeat = messages.GetLabel("Select Beat");
        szLblSelectCategory = messages.GetLabel("Select Category");
        szLblAllCategories = messages.GetLabel("All Categories");
        szLblAllCustomers = messages.GetLabel("ALL CUSTOMERS");

        FrameAvailable.Width = cmdMemo.Left - 50;
        lstAvailable.Width = FrameAvailable.Width - 100;
        frameRemarks.Left = cmdMemo.Left;
        frameRemarks.Width = 3200;
        txtRemarks.Width = 3080;
        txtCustomer.Visible = true;
        txtCustomerID.Visible = true;
        cboCustomer.Visible = false;
        cboCustomerID.Visible = false;

        dtFromDate.Value = DServerDate;
        dtToDate.Value = DServerDate;
        DTDispatchDate.Value = DServerDate;
        dtServerDate = DServerDate;

        szSCPrefix = global.GetVoucherPrefix(global.GetSCPrefixKey());
        szPOPrefix = global.GetVoucherPrefix(global.GetPOPrefixKey());
        szDispatchPrefix = global.GetVoucherPrefix(global.GetDispatchPrefixKey());

        nMode = nModeArg;
        szRefNumbers.clear();

        cmdMemo.Visible = global.GetMemoFieldsEnabled();

        if (nMode == mode::FromAlert) dtFromDate.Value = AlertDate;

        const ModeTitles titles = TitlesOf(nMode);
        switch (nMode) {
            case mode::FromPurchaseOrder:
            case mode::View:
            case mode::Cancel:
            case mode::Amendment:
                TitleFrame(titles.frameTitle);
                Frame2.Caption = messages.GetLabel(titles.listCaption);
                if (nMode == mode::Cancel) {
                    objLink->SetHelpContextID(56);
                    frameRemarks.Visible = false;
                }
                if (nMode == mode::View || nMode == mode::Amendment) objLink->SetHelpContextID(63);
                if (nMode == mode::Amendment) cmdContinue.Caption = messages.GetLabel("&Amend");
                if (nMode == mode::FromPurchaseOrder || nMode == mode::Amendment) InitAutolist();
                if (nMode == mode::View) AlignDocLookUp();
                InitCustAutolists();
                InitList();
                SetFrame(1);
                ShowAllCustomers();
                SelectActiveText();
                global.ShowStatus(nMode == mode::Amendment ? "Loading Dispatches..." : "Loading Pending Orders...", 0);
                if (nMode == mode::FromPurchaseOrder) {
                    ListAllPOAbstract();
                } else {
                    bool bDocLookUp = false;
                    ListDispatch(bDocLookUp);
                }
                global.ShowStatus(
                    nMode == mode::Amendment ? "Loading Dispatches... Done" : "Loading Pending Orders...Done", 0);
                InitDTFlexDispatch();
                break;
            case mode::FromSalesConfirmation:
            case mode::FromAlert:
                TitleFrame(titles.frameTitle);
                Frame2.Caption = messages.GetLabel(titles.listCaption);
                InitList();
                SetFrame(1);
                InitAutolist();
                InitCustAutolists();
                ShowAllCustomers();
                global.ShowStatus("Loading ...", 0);
                ListAllSOAbstract();
                global.ShowStatus(global.GetReadyMessage(), 0);
                InitDTFlexDispatch();
                break;
            case mode::NewDispatch:
                TitleFrame(titles.frameTitle);
                SetFrame(0);
                InitAutolist();
                InitCustAutolists();
                RequireObject(objCustomerList).SetEnabled(true);
                txtCustomer.SetText("");
                txtCustomer.Tag.clear();
                txtCustomerID.SetText("");
                txtCustomerID.Tag.clear();
                RequireObject(objCustomerList).SetEnabled(false);
                GetNewDispatchID();
                LoadDocumentTypes(kDispatchTransaction);
                txtCustomerID.Container = &Frame4;
                InitDTFlexDispatch();
                break;
            default: break;
        }

        // The first field of the mode takes focus, its text selected.
        if (nMode == mode::NewDispatch) {
            txtSalesman.SetFocus();
        } else if (global.GetCustomerNameFirst()) {
            txtCustomer.SetFocus();
        } else {
            txtCustomerID.SetFocus();
        }
        SelectActiveText();

        if (nMode == mode::FromSalesConfirmation || nMode == mode::NewDispatch || nMode == mode::Amendment) {
            PlaceApplySchemeBesideMemo();
            FrameAvailable.Width = 4500;
            lstAvailable.Width = FrameAvailable.Width - 100;
        } else if (nMode == mode::View || nMode == mode::Cancel) {
            cmdApplyScheme.Visible = false;
        }

        messages.TranslateForm(*this);
    });
}

void Zuro_frmDispatch_Dispatch::TitleFrame(const std::string& title) {
    objLink->SetCaption(host_.messages.GetLabel(title));
}

// The list page's customer boxes stand for every customer until one is chosen.
void Zuro_frmDispatch_Dispatch::ShowAllCustomers() {
    if (objCustomerList) objCustomerList->SetEnabled(true);
    txtCustomer.SetText(szLblAllCustomers);
    txtCustomer.Tag = "%";
    txtCustomerID.SetText(szLblAllCustomers);
    txtCustomerID.Tag = "%";
    if (objCustomerList) objCustomerList->SetEnabled(false);
}

// The host's "{HOME}+{END}" keys: the text of the box that has focus is selected.
void Zuro_frmDispatch_Dispatch::SelectActiveText() {
    if (activeControl_ && activeControl_->Kind() == platform::ControlKind::TextBox)
        static_cast<platform::TextBox*>(activeControl_)->SelectAll();
}

void Zuro_frmDispatch_Dispatch::PlaceApplySchemeBesideMemo() {
    cmdApplyScheme.Left = cmdMemo.Left - 1235;
    cmdApplyScheme.Height = cmdMemo.Height;
    cmdApplyScheme.Top = cmdMemo.Top;
}

void Zuro_frmDispatch_Dispatch::LoadOnce() {
    if (loaded_) return;
    loaded_ = true;
    Form_Load();
}

}  // namespace screen
