// The screen's two pages on one form: the frames of the page not shown are moved
// out of sight (top -10000) and disabled, and the customer boxes move between frames.
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

namespace {
constexpr double kOutOfSight = -10000;

// A label stands to the left of its box, 20 twips apart.
double LeftOfBox(double boxLeft, const platform::Label& label) { return boxLeft - label.Width - 20; }
}  // namespace

void Zuro_frmDispatch_Dispatch::SetFrame(long nScreen) {
    Handled("SetFrame", [&] {
        if (nMode == mode::NewDispatch) {
            SetTabStop(2);
            Frame1(0).Enabled = false;
            Frame1(0).Top = kOutOfSight, Frame1(0).Left = 105;
            Frame3.Enabled = true;
            Frame3.Top = 0, Frame3.Left = 90;
            txtCustomer.Container = &Frame4;
            txtCustomerID.Container = &Frame4;
            txtref.SetText("");
            txtref.Enabled = true;
            txtref.Locked = false;
            LayoutHeaderFields();
            DTFlexDispatch.SetGridRows(1);
            AlignControlsforDocumentNumber();
            MakeControlsVisible();
            return;
        }
        if (nScreen == 0) return;

        txtref.Enabled = true;
        txtref.Locked = true;
        txtCustomer.Container = &Frame1(1);
        txtCustomer.Top = lblFields(0).Top;
        txtCustomer.Left = dtFromDate.Left;
        txtCustomer.Width = 4050;
        if (nScreen == 1) {
            txtCustomerID.Container = &Frame1(1);
            txtCustomerID.Top = txtCustomer.Top + txtCustomer.Height + 60;
            txtCustomerID.Width = 4050;
            txtCustomerID.Left = dtFromDate.Left;
            Frame3.Enabled = false;
            Frame3.Top = kOutOfSight, Frame3.Left = 90;
            Frame1(0).Enabled = true;
            Frame1(0).Top = -20, Frame1(0).Left = 105;
        } else if (nScreen == 2) {
            Frame1(0).Enabled = false;
            Frame1(0).Top = kOutOfSight, Frame1(0).Left = 105;
            Frame3.Enabled = true;
            Frame3.Top = 0, Frame3.Left = 90;
            LayoutHeaderFields();
            AlignControlsforDocumentNumber();
            MakeControlsVisible();
        }
    });
}

void Zuro_frmDispatch_Dispatch::LayoutHeaderFields() {
    Handled("LayoutHeaderFields", [&] {
        lblFields(3).Top = 520;
        lblFields(3).Left = LeftOfBox(7245, lblFields(3));
        DTDispatchDate.Top = 500, DTDispatchDate.Left = 7245, DTDispatchDate.Width = 2085;
        txtSalesman.Top = 510, txtSalesman.Left = 1050, txtSalesman.Width = 2085;
        lblSalesman.Top = 520, lblSalesman.Left = LeftOfBox(1050, lblSalesman);
        txtBeat.Top = 510, txtBeat.Left = 4320, txtBeat.Width = 1620;
        lblBeat.Top = 520, lblBeat.Left = LeftOfBox(4320, lblBeat);
        LayoutCustomerFields();
        txtCategory.Top = 1180, txtCategory.Left = 1050, txtCategory.Width = 2085;
        lblCatGroup.Top = 1190, lblCatGroup.Left = lblSalesman.Left;
        txtref.Top = 1170, txtref.Left = 4320, txtref.Width = 1620, txtref.Height = 315;
        lblRef.Top = 1190, lblRef.Left = lblBeat.Left;
        for (platform::Control* control : std::initializer_list<platform::Control*>{
                 &txtSalesman, &lblSalesman, &txtBeat, &lblBeat, &txtCategory, &lblCatGroup})
            control->Visible = true;
    });
}

void Zuro_frmDispatch_Dispatch::LayoutCustomerFields() {
    Handled("LayoutCustomerFields", [&] {
        txtCustomer.Top = 835, txtCustomer.Left = 1050, txtCustomer.Height = 315, txtCustomer.Width = 2085;
        txtCustomer.TabStop = true;
        lblCustomer.Top = 855;
        lblCustomer.Left = nMode == mode::View ? 145 : LeftOfBox(1050, lblCustomer);
        txtCustomerID.Top = 835, txtCustomerID.Left = 4320, txtCustomerID.Height = 315, txtCustomerID.Width = 1620;
        lblCustomerId.Top = 855;
        lblCustomerId.Left = nMode == mode::View ? 3220 : LeftOfBox(4320, lblCustomerId);
        if (nMode == mode::Cancel) {
            lblCustomer.Left = 150, lblCustomer.Top = 855;
            lblCustomerId.Left = 3225, lblCustomerId.Top = 855;
        }
    });
}

void Zuro_frmDispatch_Dispatch::AlignControlsforDocumentNumber() {
    Handled("AlignControlsforDocumentNumber", [&] {
        Frame4.Height = 1920;
        for (auto* frame : {&Frame5(0), &Frame5(1)}) frame->Height = 555, frame->Top = 2000;
        for (auto* box : {&txtBillingAddress, &txtShippingAddress}) box->Height = 350, box->Top = 185;
    });
}

void Zuro_frmDispatch_Dispatch::MakeControlsVisible() {
    Handled("MakeControlsVisible", [&] {
        lblDocReference.Visible = true;
        txtDocReference.Visible = true;
        lblDocReference.Caption = host_.messages.GetLabel("Doc Type:");
        lblDocReference.Left = 5505;
        lblDocType.Visible = true;
        cbodocumenttype.Visible = true;
        cbodocumenttype.Top = 835, cbodocumenttype.Left = 7245, cbodocumenttype.Width = 2085;
        lblDocReference.Top = 855, lblDocReference.Left = LeftOfBox(7245, lblDocReference);
        txtDocReference.Top = 1170, txtDocReference.Left = 7245, txtDocReference.Height = 315,
        txtDocReference.Width = 2085;
        lblDocType.Top = 1190, lblDocType.Left = LeftOfBox(7245, lblDocType);
    });
}

void Zuro_frmDispatch_Dispatch::SetTabStop(long nScreen) {
    Handled("SetTabStop", [&] {
        if (nScreen == 1) {
            if (nMode != mode::NewDispatch) {
                cmdSave.TabStop = false;
                cmdClose(1).TabStop = false;
            }
            cmdClose(0).TabStop = true;
            cmdContinue.TabStop = true;
            txtCustomer.TabStop = true;
            vFocusOrder = {&txtCustomer, &txtCustomerID, &dtFromDate, &dtToDate};
        } else if (nScreen == 2) {
            cmdSave.TabStop = true;
            cmdClose(1).TabStop = true;
            cmdClose(0).TabStop = false;
            cmdContinue.TabStop = false;
            if (nMode != mode::NewDispatch) txtCustomer.TabStop = false;
            vFocusOrder2 = {&txtref, &DTDispatchDate, &txtBillingAddress, &txtShippingAddress, &DTFlexDispatch};
        }
    });
}

}  // namespace screen
