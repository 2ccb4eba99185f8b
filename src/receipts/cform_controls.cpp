// The receipt form's controls as the designer laid them out, and what a driving host
// finds of them: the controls and fields by name, the routines it may call.
#include "platform/convert.h"
#include "receipts/zuro_frm_cform_dispatch.h"
#include "screen/routine_binder.h"

namespace receipts {

Zuro_frmCForm_Dispatch::Zuro_frmCForm_Dispatch(host_services::HostServices host)
    : MainFrame(*this, "MainFrame"),
      FilterFrame(*this, "FilterFrame"),
      InvoiceFrame(*this, "InvoiceFrame"),
      cboCustomer(*this, "cboCustomer"),
      cboCustomerID(*this, "cboCustomerID"),
      dtFromDate(*this, "dtFromDate"),
      dtToDate(*this, "dtToDate"),
      chkForm1(*this, "chkForm1"),
      chkForm2(*this, "chkForm2"),
      cmdRefresh(*this, "cmdRefresh"),
      cmdSave(*this, "cmdSave"),
      cmdClose(*this, "cmdClose"),
      dtInvoice(*this, "dtInvoice"),
      lstYesNo(*this, "lstYesNo"),
      lblStatic(*this, "lblStatic"),
      host_(std::move(host)) {
    LayControls();
    RegisterControls();
    RegisterFields();
    RegisterRoutines();
    WireEvents();
}

Zuro_frmCForm_Dispatch::~Zuro_frmCForm_Dispatch() = default;

void Zuro_frmCForm_Dispatch::LayControls() {
    MainFrame.Top = 0, MainFrame.Left = 90, MainFrame.Width = 11200, MainFrame.Height = 7000;
    FilterFrame.Container = &MainFrame;
    FilterFrame.Top = 120, FilterFrame.Left = 120, FilterFrame.Width = 10950, FilterFrame.Height = 1100;
    for (platform::Control* control : std::initializer_list<platform::Control*>{
             &lblStatic, &cboCustomer, &cboCustomerID, &dtFromDate, &dtToDate, &chkForm1, &chkForm2, &cmdRefresh})
        control->Container = &FilterFrame;
    lblStatic.Top = 240, lblStatic.Left = 120, lblStatic.Width = 1000, lblStatic.Caption = "Customer:";
    cboCustomer.Top = 240, cboCustomer.Left = 1200, cboCustomer.Width = 3600;
    cboCustomerID.Top = 600, cboCustomerID.Left = 1200, cboCustomerID.Width = 1800;
    dtFromDate.Top = 240, dtFromDate.Left = 5200, dtFromDate.Width = 1500;
    dtToDate.Top = 600, dtToDate.Left = 5200, dtToDate.Width = 1500;
    chkForm1.Top = 240, chkForm1.Left = 7000, chkForm1.Width = 1500;
    chkForm2.Top = 600, chkForm2.Left = 7000, chkForm2.Width = 1500;
    cmdRefresh.Top = 400, cmdRefresh.Left = 9400, cmdRefresh.Width = 1200, cmdRefresh.Caption = "&Refresh";

    InvoiceFrame.Container = &MainFrame;
    InvoiceFrame.Top = 1300, InvoiceFrame.Left = 120, InvoiceFrame.Width = 10950, InvoiceFrame.Height = 5000;
    dtInvoice.Container = &InvoiceFrame;
    dtInvoice.Top = 240, dtInvoice.Left = 120, dtInvoice.Width = 10700, dtInvoice.Height = 4600;
    lstYesNo.Container = &InvoiceFrame;
    lstYesNo.Visible = false, lstYesNo.Width = 800, lstYesNo.Height = 500;

    for (auto* button : {&cmdSave, &cmdClose}) button->Container = &MainFrame, button->Height = 375;
    cmdSave.Top = 6450, cmdSave.Left = 8800, cmdSave.Width = 1000, cmdSave.Caption = "&Save";
    cmdClose.Top = 6450, cmdClose.Left = 9950, cmdClose.Width = 1000, cmdClose.Caption = "C&lose";

    int tab = 0;
    for (platform::Control* control :
         std::initializer_list<platform::Control*>{&cboCustomer, &cboCustomerID, &dtFromDate, &dtToDate, &chkForm1,
                                                   &chkForm2, &cmdRefresh, &dtInvoice, &lstYesNo, &cmdSave, &cmdClose})
        control->TabIndex = tab++;
}

void Zuro_frmCForm_Dispatch::RegisterControls() {
    for (platform::Control* control : std::initializer_list<platform::Control*>{
             &MainFrame, &FilterFrame, &InvoiceFrame, &cboCustomer, &cboCustomerID, &dtFromDate, &dtToDate, &chkForm1,
             &chkForm2, &cmdRefresh, &cmdSave, &cmdClose, &dtInvoice, &lstYesNo, &lblStatic})
        controls_[control->FullName()] = control;
}

std::vector<platform::Control*> Zuro_frmCForm_Dispatch::Controls() const {
    std::vector<platform::Control*> controls;
    for (const auto& [name, control] : controls_) controls.push_back(control);
    return controls;
}

platform::Control* Zuro_frmCForm_Dispatch::FindControl(const std::string& name, int index) {
    if (index >= 0) return nullptr;  // the form has no control arrays
    auto it = controls_.find(name);
    return it == controls_.end() ? nullptr : it->second;
}

void Zuro_frmCForm_Dispatch::MoveFocus(platform::Control& to) { TakeFocus(activeControl_, to); }

void Zuro_frmCForm_Dispatch::RegisterFields() {
    fields_["szYesText"] = [this] { return szYesText; };
    fields_["szNoText"] = [this] { return szNoText; };
    fields_["dtServerDate"] = [this] { return platform::ToText(platform::Value(dtServerDate)); };
    fields_["objLink"] = [this] { return objLink ? objLink->Caption() : std::string("Nothing"); };
}

std::optional<std::string> Zuro_frmCForm_Dispatch::FieldText(const std::string& name) const {
    auto it = fields_.find(name);
    if (it == fields_.end()) return std::nullopt;
    return it->second();
}

void Zuro_frmCForm_Dispatch::RegisterRoutines() {
    using Self = Zuro_frmCForm_Dispatch;
    screen::RoutineBinder routines(routines_, *this);
    routines.Bind("InitInvoiceGrid", &Self::InitInvoiceGrid, {});
    routines.Bind("LoadInvoices", &Self::LoadInvoices, {});
    routines.Bind("SaveReceipts", &Self::SaveReceipts, {});
    routines.Bind("cmdRefresh_Click", &Self::cmdRefresh_Click, {});
    routines.Bind("cmdSave_Click", &Self::cmdSave_Click, {});
    routines.Bind("dtInvoice_AtLastRow", &Self::dtInvoice_AtLastRow, {});
    routines.Bind("dtInvoice_AtFirstRow", &Self::dtInvoice_AtFirstRow, {});
    routines.Bind("lstYesNo_Click", &Self::lstYesNo_Click, {});
    routines.Bind("lstYesNo_LostFocus", &Self::lstYesNo_LostFocus, {});
    routines.Bind("dtFromDate_LostFocus", &Self::dtFromDate_LostFocus, {});
    routines.Bind("dtToDate_LostFocus", &Self::dtToDate_LostFocus, {});
}

void Zuro_frmCForm_Dispatch::WireEvents() {
    cmdRefresh.Click.Connect([this] { cmdRefresh_Click(); });
    cmdSave.Click.Connect([this] { cmdSave_Click(); });
    cmdClose.Click.Connect([this] { cmdClose_Click(); });
    dtInvoice.AfterColUpdate.Connect(
        [this](int row, int col, bool& cancel) { dtInvoice_AfterColUpdate(row, col, cancel); });
    dtInvoice.AtLastRow.Connect([this] { dtInvoice_AtLastRow(); });
    dtInvoice.AtFirstRow.Connect([this] { dtInvoice_AtFirstRow(); });
    lstYesNo.Click.Connect([this] { lstYesNo_Click(); });
    lstYesNo.KeyDown.Connect([this](int& key, int shift) { lstYesNo_KeyDown(key, shift); });
    lstYesNo.LostFocus.Connect([this] { lstYesNo_LostFocus(); });
    dtFromDate.KeyDown.Connect([this](int& key, int shift) { dtFromDate_KeyDown(key, shift); });
    dtToDate.KeyDown.Connect([this](int& key, int shift) { dtToDate_KeyDown(key, shift); });
    dtFromDate.LostFocus.Connect([this] { dtFromDate_LostFocus(); });
    dtToDate.LostFocus.Connect([this] { dtToDate_LostFocus(); });
    chkForm1.KeyDown.Connect([this](int& key, int shift) { chkForm1_KeyDown(key, shift); });
    chkForm2.KeyDown.Connect([this](int& key, int shift) { chkForm2_KeyDown(key, shift); });
    cboCustomer.KeyPress.Connect([this](int& key) { cboCustomer_KeyPress(key); });
    cboCustomerID.KeyPress.Connect([this](int& key) { cboCustomerID_KeyPress(key); });
    cboCustomer.KeyDown.Connect([this](int& key, int shift) { cboCustomer_KeyDown(key, shift); });
    cboCustomerID.KeyDown.Connect([this](int& key, int shift) { cboCustomerID_KeyDown(key, shift); });
}

}  // namespace receipts
