// The receipt screen's life: InitForm binds the host and takes a frame, fills the
// filters and the first list; closing asks before marks on the list are lost and
// hands the frame back.
#include "receipts/zuro_frm_cform_dispatch.h"
#include "screen/screen_titles.h"

namespace receipts {

namespace {
// The customer name takes what the grid's width leaves beside the other columns.
constexpr double kCustomerColWidth = 3000;

struct ColumnLayout {
    const char* heading;
    double width;
};
constexpr ColumnLayout kColumns[col::Count] = {
    {"Invoice No", 1000}, {"Date", 1200},     {"Customer ID", 1200}, {"Customer", kCustomerColWidth},
    {"C Form", 800},      {"C Form No", 850}, {"D Form", 800},       {"D Form No", 850},
    {"InvoiceID", 0},     {"Orig CForm", 0},  {"Orig DForm", 0},
};
}  // namespace

void Zuro_frmCForm_Dispatch::InitForm(platform::Date DServerDate, host_services::HostContext& Zuro_objGlobal) {
    Handled("InitForm", [&] {
        auto& global = host_.global;
        auto& messages = host_.messages;

        objHostContext_ = &Zuro_objGlobal;
        global.SetHostContext(Zuro_objGlobal);
        objLink = host_.mainForm.GiveMeNewLink();
        objLink->SetMyChild(*this);
        host_.mainForm.CaptureChildObj(*this);
        parentWindow_ = objLink->hwnd();
        loaded_ = true;
        global.ApplyFormStyle(static_cast<host_services::HostedForm&>(*this), global.GetGridHeaderFont(),
                              global.GetGridBodyFont());
        global.ApplyFormStyle(*objLink, global.GetGridHeaderFont(), global.GetGridBodyFont());
        objLink->SetIcon(global.GetFormIcon());
        objLink->SetCaption(messages.GetLabel(screen::kCFormTitle));

        szYesText = messages.GetLabel("Yes");
        szNoText = messages.GetLabel("No");
        lstYesNo.Clear();
        lstYesNo.AddItem(szYesText);
        lstYesNo.AddItem(szNoText);

        const std::string szAllCustomers = messages.GetLabel("All Customers");
        for (auto* combo : {&cboCustomer, &cboCustomerID}) {
            combo->Clear();
            combo->AddItem(szAllCustomers);
        }
        // Customers of categories 4 and 5 are not invoiced here.
        const std::string condition = "And CustomerCategory not in (4,5)";
        global.FillComboBox("Customer", "CustomerID", "CustomerID", cboCustomerID, 0, 0, condition);
        global.FillComboBox("Customer", "CustomerID", "Company_Name", cboCustomer, 0, 0, condition);
        cboCustomer.SetListIndex(0);
        cboCustomerID.SetListIndex(0);
        dtFromDate.Value = DServerDate;
        dtToDate.Value = DServerDate;
        dtServerDate = DServerDate;

        chkForm1.Caption = global.GetFormOneCaption();
        chkForm2.Caption = global.GetFormTwoCaption();

        InitInvoiceGrid();
        cmdRefresh_Click();
        messages.TranslateForm(*this);
    });
}

void Zuro_frmCForm_Dispatch::InitInvoiceGrid() {
    Handled("InitInvoiceGrid", [&] {
        auto& global = host_.global;
        dtInvoice.SetGridCols(col::Count);
        dtInvoice.SetGridRows(0);
        dtInvoice.VisibleCols = col::DFormNo;
        dtInvoice.LastCheckedCol = col::DFormNo;
        dtInvoice.AllowAddRows = false;
        dtInvoice.AllowDeleteRows = false;
        for (int c = 1; c <= col::Count; ++c) {
            const ColumnLayout& layout = kColumns[c - 1];
            dtInvoice.SetColHeading(c, host_.messages.GetLabel(layout.heading));
            dtInvoice.SetColWidth(c, layout.width);
            // Only the two numbers are typed; the marks come from lstYesNo.
            dtInvoice.SetColLocked(c, c != col::CFormNo && c != col::DFormNo);
            dtInvoice.SetColAlignment(c, global.GetAlignLeft());
        }
        for (int c : {col::CForm, col::DForm}) {
            dtInvoice.SetColAlignment(c, global.GetAlignCentre());
            dtInvoice.AttachColumnList(c, lstYesNo);
        }
    });
}

void Zuro_frmCForm_Dispatch::cmdClose_Click() {
    Handled("cmdClose_Click", [&] { Close(); });
}

bool Zuro_frmCForm_Dispatch::Close() {
    if (!loaded_) return false;
    int Cancel = 0;
    Form_QueryUnload(Cancel, 0);
    return Cancel != 0;
}

void Zuro_frmCForm_Dispatch::Form_QueryUnload(int& Cancel, int /*UnloadMode*/) {
    Handled("Form_QueryUnload", [&] {
        // The user who wants to stay and save keeps the screen.
        if (dtInvoice.GridRows() > 0 && host_.messages.ConfirmSaveOnExit(true)) {
            Cancel = 1;
            objLink->SetStaus(1);
            host_.global.SetFocusTo(cmdSave);
            return;
        }
        host_.mainForm.LeaveChildObj(*this);
        parentWindow_ = 0;  // back under the desktop
        objLink->SetStaus(0);
        objLink.reset();
        objHostContext_ = nullptr;
        loaded_ = false;
    });
}

}  // namespace receipts
