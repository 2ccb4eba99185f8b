// The form's controls as the designer laid them out: names, frames, captions and
// the design-time places that the layout routines measure from.
#include <string>

#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

Zuro_frmDispatch_Dispatch::Zuro_frmDispatch_Dispatch(host_services::HostServices host)
    : Frame1_0(*this, "Frame1", 0),
      Frame1_1(*this, "Frame1", 1),
      Frame2(*this, "Frame2"),
      Frame3(*this, "Frame3"),
      Frame4(*this, "Frame4"),
      Frame5_0(*this, "Frame5", 0),
      Frame5_1(*this, "Frame5", 1),
      Frame6(*this, "Frame6"),
      frameRemarks(*this, "frameRemarks"),
      FrameAvailable(*this, "FrameAvailable"),
      dtFromDate(*this, "dtFromDate"),
      dtToDate(*this, "dtToDate"),
      DTDispatchDate(*this, "DTDispatchDate"),
      txtCustomer(*this, "txtCustomer"),
      txtCustomerID(*this, "txtCustomerID"),
      txtSalesman(*this, "txtSalesman"),
      txtBeat(*this, "txtBeat"),
      txtCategory(*this, "txtCategory"),
      txtref(*this, "txtref"),
      txtDocReference(*this, "txtDocReference"),
      txtDocID(*this, "txtDocID"),
      txtDocIDTo(*this, "txtDocIDTo"),
      txtBillingAddress(*this, "txtBillingAddress"),
      txtShippingAddress(*this, "txtShippingAddress"),
      txtRemarks(*this, "txtRemarks"),
      cbodocumenttype(*this, "cbodocumenttype"),
      cboCustomer(*this, "cboCustomer"),
      cboCustomerID(*this, "cboCustomerID"),
      cboSalesman(*this, "cboSalesman"),
      cboBeat(*this, "cboBeat"),
      cboCatGroup(*this, "cboCatGroup"),
      lstSO(*this, "lstSO"),
      lstAvailable(*this, "lstAvailable"),
      lstUOM(*this, "lstUOM"),
      DTFlexDispatch(*this, "DTFlexDispatch"),
      cmdContinue(*this, "cmdContinue"),
      cmdClose_0(*this, "cmdClose", 0),
      cmdClose_1(*this, "cmdClose", 1),
      cmdSave(*this, "cmdSave"),
      cmdGo(*this, "cmdGo"),
      cmdRefresh(*this, "cmdRefresh"),
      cmdApplyScheme(*this, "cmdApplyScheme"),
      cmdMemo(*this, "cmdMemo"),
      cmdChange(*this, "cmdChange"),
      lblDispDate(*this, "lblDispDate"),
      lblSalesman(*this, "lblSalesman"),
      lblBeat(*this, "lblBeat"),
      lblCatGroup(*this, "lblCatGroup"),
      lblRef(*this, "lblRef"),
      lblCustomer(*this, "lblCustomer"),
      lblCustomerId(*this, "lblCustomerId"),
      lblDocReference(*this, "lblDocReference"),
      lblDocType(*this, "lblDocType"),
      lblDispatchID(*this, "lblDispatchID"),
      host_(std::move(host)) {
    for (int i = 0; i < kFieldLabels; ++i)
        lblFieldsArray.push_back(std::make_unique<platform::Label>(*this, "lblFields", i));

    // The list page: the filter frame with the customer frame inside it, and the
    // document list under it.
    Frame1_0.Top = -20, Frame1_0.Left = 105, Frame1_0.Width = 11200, Frame1_0.Height = 7000;
    Frame1_1.Container = &Frame1_0;
    Frame1_1.Top = 120, Frame1_1.Left = 120, Frame1_1.Width = 6200, Frame1_1.Height = 1300;
    for (auto* label : {&lblFields(0), &lblFields(1), &lblFields(2)}) label->Container = &Frame1_1;
    lblFields(0).Top = 240, lblFields(0).Left = 120, lblFields(0).Caption = "Customer:";
    lblFields(1).Top = 240, lblFields(1).Left = 6400, lblFields(1).Caption = "From:";
    lblFields(2).Top = 600, lblFields(2).Left = 6400, lblFields(2).Caption = "To:";
    for (auto* picker : {&dtFromDate, &dtToDate}) picker->Container = &Frame1_0;
    dtFromDate.Top = 240, dtFromDate.Left = 1320, dtFromDate.Width = 1800;
    dtToDate.Top = 600, dtToDate.Left = 1320, dtToDate.Width = 1800;
    for (auto* box : {&txtCustomer, &txtCustomerID}) box->Container = &Frame1_1, box->Height = 315, box->Width = 4050;
    txtCustomer.Top = 240, txtCustomer.Left = 1320;
    txtCustomerID.Top = 615, txtCustomerID.Left = 1320;
    for (auto* combo : {&cboCustomer, &cboCustomerID}) combo->Container = &Frame1_1, combo->Visible = false;
    for (auto* box : {&txtDocID, &txtDocIDTo}) box->Container = &Frame1_0, box->Visible = false, box->Width = 1500;
    // The look-up by number of Mode 4 shows these with its boxes.
    lblFields(14).Container = &Frame1_0, lblFields(14).Visible = false, lblFields(14).Caption = "Dispatch ID:";
    lblFields(14).Top = 240, lblFields(14).Width = 1000;
    for (int i = 10; i < 14; ++i) lblFields(i).Visible = false;
    Frame2.Container = &Frame1_0;
    Frame2.Top = 1500, Frame2.Left = 120, Frame2.Width = 10950, Frame2.Height = 4800;
    lstSO.Container = &Frame2;
    lstSO.Top = 240, lstSO.Left = 120, lstSO.Width = 10700, lstSO.Height = 4400, lstSO.CheckBoxes = true;
    // The document list's ten columns as designed: the customer, the document's shown
    // number, its dates, value and reference; the last four carry keys and stay narrow.
    lstSO.ColumnHeaders = {{"Customer", 2500, 0},      {"SC Number", 1200, 0}, {"Date", 1200, 0},
                           {"Delivery Date", 1300, 0}, {"Value", 1200, 0},     {"PO Reference", 1600, 0},
                           {"SC Number", 0, 0},        {"Doc ID", 0, 0},       {"CustomerID", 0, 0},
                           {"Document Type", 0, 0}};
    for (auto* button : {&cmdGo, &cmdRefresh, &cmdContinue, &cmdClose_0})
        button->Container = &Frame1_0, button->Height = 375;
    cmdGo.Top = 240, cmdGo.Left = 9000, cmdGo.Caption = "&Go", cmdGo.Visible = false;
    cmdRefresh.Top = 6420, cmdRefresh.Left = 7200, cmdRefresh.Caption = "&Refresh";
    cmdContinue.Top = 6420, cmdContinue.Left = 8400, cmdContinue.Caption = "C&ontinue";
    cmdClose_0.Top = 6420, cmdClose_0.Left = 9600, cmdClose_0.Caption = "C&lose";

    // The entry page: party fields, the two addresses, the grid and the buttons.
    Frame3.Top = -10000, Frame3.Left = 90, Frame3.Width = 11300, Frame3.Height = 7200;
    Frame4.Container = &Frame3;
    Frame4.Top = 0, Frame4.Left = 0, Frame4.Width = 11300, Frame4.Height = 1920;
    for (auto* box : {&txtSalesman, &txtBeat, &txtCategory, &txtref, &txtDocReference})
        box->Container = &Frame4, box->Height = 315;
    for (auto* combo : {&cbodocumenttype, &cboSalesman, &cboBeat, &cboCatGroup}) combo->Container = &Frame4;
    for (auto* combo : {&cboSalesman, &cboBeat, &cboCatGroup}) combo->Visible = false;
    DTDispatchDate.Container = &Frame4;
    for (auto* label : {&lblDispDate, &lblSalesman, &lblBeat, &lblCatGroup, &lblRef, &lblCustomer, &lblCustomerId,
                        &lblDocReference, &lblDocType, &lblDispatchID})
        label->Container = &Frame4, label->Width = 1000;
    lblFields(3).Container = &Frame4, lblFields(3).Width = 1150, lblFields(3).Caption = "Dispatch Date:";
    // The date box's label on the page is lblFields(3), which the layout places; this
    // one keeps the designer's caption out of sight.
    lblDispDate.Caption = "Dispatch Date:", lblDispDate.Visible = false;
    lblSalesman.Caption = "Salesman:";
    lblBeat.Caption = "Beat:";
    lblCatGroup.Caption = "Category Group:";
    lblRef.Caption = "Reference:";
    lblCustomer.Caption = "Customer:";
    lblCustomerId.Caption = "Customer ID:";
    lblDocReference.Caption = "Doc Reference:";
    lblDocType.Caption = "Doc Reference:";
    lblDispatchID.Top = 120, lblDispatchID.Left = 7245, lblDispatchID.Width = 2500;
    Frame5_0.Container = &Frame3, Frame5_1.Container = &Frame3;
    Frame5_0.Top = 2000, Frame5_0.Left = 90, Frame5_0.Width = 5500, Frame5_0.Height = 555;
    Frame5_1.Top = 2000, Frame5_1.Left = 5700, Frame5_1.Width = 5500, Frame5_1.Height = 555;
    Frame5_0.Caption = "Billing Address", Frame5_1.Caption = "Shipping Address";
    txtBillingAddress.Container = &Frame5_0, txtShippingAddress.Container = &Frame5_1;
    for (auto* box : {&txtBillingAddress, &txtShippingAddress})
        box->MultiLine = true, box->Top = 185, box->Left = 90, box->Width = 5300, box->Height = 350;
    DTFlexDispatch.Container = &Frame3;
    DTFlexDispatch.Top = 2650, DTFlexDispatch.Left = 90, DTFlexDispatch.Width = 11100, DTFlexDispatch.Height = 3400;
    lstUOM.Container = &Frame3, lstUOM.Visible = false, lstUOM.Width = 1200, lstUOM.Height = 1200;
    FrameAvailable.Container = &Frame3;
    FrameAvailable.Top = 6100, FrameAvailable.Left = 90, FrameAvailable.Height = 1000, FrameAvailable.Visible = false;
    lstAvailable.Container = &FrameAvailable, lstAvailable.Top = 200, lstAvailable.Left = 50, lstAvailable.Height = 750;
    // The stock list's columns follow the fields of a batch; the third shows the
    // price kind of the customer's category.
    for (const char* heading : {"Batch", "Expiry", "Sale Price", "Quantity", "PKD", "Free", "Tax Suffered", "ECP",
                                "PTS", "PTR", "Company Price", "Applicable On", "Part of Percentage"})
        lstAvailable.ColumnHeaders.push_back({heading, 0, 0});
    cmdChange.Container = &FrameAvailable, cmdChange.Caption = "Set &Width", cmdChange.Visible = false;
    frameRemarks.Container = &Frame3, frameRemarks.Top = 6100, frameRemarks.Height = 700,
    frameRemarks.Caption = "Remarks";
    txtRemarks.Container = &frameRemarks, txtRemarks.Top = 220, txtRemarks.Left = 60, txtRemarks.Height = 400;
    for (auto* button : {&cmdSave, &cmdClose_1, &cmdApplyScheme, &cmdMemo})
        button->Container = &Frame3, button->Height = 375;
    cmdMemo.Top = 6850, cmdMemo.Left = 7900, cmdMemo.Width = 1100, cmdMemo.Caption = "&Memo";
    cmdApplyScheme.Top = 6850, cmdApplyScheme.Left = 6650, cmdApplyScheme.Width = 1200,
    cmdApplyScheme.Caption = "Apply Sc&heme";
    cmdSave.Top = 6850, cmdSave.Left = 9100, cmdSave.Width = 1000, cmdSave.Caption = "&Save";
    cmdClose_1.Top = 6850, cmdClose_1.Left = 10150, cmdClose_1.Width = 1000, cmdClose_1.Caption = "C&lose";
    Frame6.Container = &Frame3, Frame6.Visible = false;

    // The tab order of the entry page's focus rings counts from here.
    int tab = 0;
    for (platform::Control* control : std::initializer_list<platform::Control*>{
             &txtCustomer,     &txtCustomerID, &dtFromDate,     &dtToDate,          &cmdGo,
             &lstSO,           &txtref,        &DTDispatchDate, &txtBillingAddress, &txtShippingAddress,
             &DTFlexDispatch,  &txtSalesman,   &txtBeat,        &txtCategory,       &cbodocumenttype,
             &txtDocReference, &txtRemarks,    &cmdApplyScheme, &cmdMemo,           &cmdSave,
             &cmdClose_1,      &cmdContinue,   &cmdRefresh,     &cmdClose_0,        &cmdChange})
        control->TabIndex = tab++;

    RegisterControls();
    RegisterFields();
    RegisterRoutines();
    WireEvents();
}

Zuro_frmDispatch_Dispatch::~Zuro_frmDispatch_Dispatch() = default;

platform::Frame& Zuro_frmDispatch_Dispatch::Frame1(int index) {
    if (index == 0) return Frame1_0;
    if (index == 1) return Frame1_1;
    throw platform::RuntimeError(platform::err::SubscriptOutOfRange);
}

platform::Frame& Zuro_frmDispatch_Dispatch::Frame5(int index) {
    if (index == 0) return Frame5_0;
    if (index == 1) return Frame5_1;
    throw platform::RuntimeError(platform::err::SubscriptOutOfRange);
}

platform::CommandButton& Zuro_frmDispatch_Dispatch::cmdClose(int index) {
    if (index == 0) return cmdClose_0;
    if (index == 1) return cmdClose_1;
    throw platform::RuntimeError(platform::err::SubscriptOutOfRange);
}

platform::Label& Zuro_frmDispatch_Dispatch::lblFields(int index) {
    if (index < 0 || index >= kFieldLabels) throw platform::RuntimeError(platform::err::SubscriptOutOfRange);
    return *lblFieldsArray[static_cast<std::size_t>(index)];
}

void Zuro_frmDispatch_Dispatch::RegisterControls() {
    for (platform::Control* control : std::initializer_list<platform::Control*>{&Frame1_0,
                                                                                &Frame1_1,
                                                                                &Frame2,
                                                                                &Frame3,
                                                                                &Frame4,
                                                                                &Frame5_0,
                                                                                &Frame5_1,
                                                                                &Frame6,
                                                                                &frameRemarks,
                                                                                &FrameAvailable,
                                                                                &dtFromDate,
                                                                                &dtToDate,
                                                                                &DTDispatchDate,
                                                                                &txtCustomer,
                                                                                &txtCustomerID,
                                                                                &txtSalesman,
                                                                                &txtBeat,
                                                                                &txtCategory,
                                                                                &txtref,
                                                                                &txtDocReference,
                                                                                &txtDocID,
                                                                                &txtDocIDTo,
                                                                                &txtBillingAddress,
                                                                                &txtShippingAddress,
                                                                                &txtRemarks,
                                                                                &cbodocumenttype,
                                                                                &cboCustomer,
                                                                                &cboCustomerID,
                                                                                &cboSalesman,
                                                                                &cboBeat,
                                                                                &cboCatGroup,
                                                                                &lstSO,
                                                                                &lstAvailable,
                                                                                &lstUOM,
                                                                                &DTFlexDispatch,
                                                                                &cmdContinue,
                                                                                &cmdClose_0,
                                                                                &cmdClose_1,
                                                                                &cmdSave,
                                                                                &cmdGo,
                                                                                &cmdRefresh,
                                                                                &cmdApplyScheme,
                                                                                &cmdMemo,
                                                                                &cmdChange,
                                                                                &lblDispDate,
                                                                                &lblSalesman,
                                                                                &lblBeat,
                                                                                &lblCatGroup,
                                                                                &lblRef,
                                                                                &lblCustomer,
                                                                                &lblCustomerId,
                                                                                &lblDocReference,
                                                                                &lblDocType,
                                                                                &lblDispatchID})
        controls_[control->FullName()] = control;
    for (auto& label : lblFieldsArray) controls_[label->FullName()] = label.get();
}

std::vector<platform::Control*> Zuro_frmDispatch_Dispatch::Controls() const {
    std::vector<platform::Control*> controls;
    for (const auto& [name, control] : controls_) controls.push_back(control);
    return controls;
}

platform::Control* Zuro_frmDispatch_Dispatch::FindControl(const std::string& name, int index) {
    const std::string key = index < 0 ? name : name + "(" + std::to_string(index) + ")";
    auto it = controls_.find(key);
    return it == controls_.end() ? nullptr : it->second;
}

void Zuro_frmDispatch_Dispatch::MoveFocus(platform::Control& to) { TakeFocus(activeControl_, to); }

}  // namespace screen
