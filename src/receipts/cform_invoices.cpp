// The invoice list: what the filters ask of the server, the rows it answers, and the
// marks the user sets through lstYesNo with the numbers that go with them.
#include "platform/convert.h"
#include "platform/key_codes.h"
#include "receipts/zuro_frm_cform_dispatch.h"

namespace receipts {

namespace {
constexpr double kMarkColWidth = 800, kNumberColWidth = 850;

bool Ticked(const platform::CheckBox& box) { return box.Value() == 1; }
}  // namespace

void Zuro_frmCForm_Dispatch::cmdRefresh_Click() { LoadInvoices(); }

void Zuro_frmCForm_Dispatch::LoadInvoices() {
    Handled("LoadInvoices", [&] {
        auto& global = host_.global;
        const std::string szCustomer = cboCustomerID.ListIndex() == 0 ? std::string("%") : cboCustomerID.Text();
        const bool bFormOne = Ticked(chkForm1), bFormTwo = Ticked(chkForm2);
        const long nFlags = (bFormOne ? receipt::CFormReceived : 0) + (bFormTwo ? receipt::DFormReceived : 0);
        const long nShow = (bFormOne ? receipt::CFormRequired : 0) + (bFormTwo ? receipt::DFormRequired : 0);
        LayoutFormColumns(bFormOne, bFormTwo);

        auto rs = global.NextRecordset(
            global.RunProcedure("sp_Get_ReceiptFormInvoice", {{szCustomer, platform::adtype::VarChar},
                                                              {global.DayStart(dtFromDate), platform::adtype::Date},
                                                              {global.DayEnd(dtToDate), platform::adtype::Date},
                                                              {nShow, platform::adtype::Integer},
                                                              {nFlags, platform::adtype::Integer}}));
        dtInvoice.ClearGrid();
        dtInvoice.SetGridRows(0);
        const std::string szDateFormat = global.GetDateFormat();
        auto mark = [&](int field) { return global.ToNumber(rs->Fields(field)) != 0 ? szYesText : szNoText; };
        auto text = [&](int field) { return global.ToText(rs->Fields(field)); };
        for (int row = 1; rs && rs->IsOpen() && !rs->Eof(); rs->MoveNext(), ++row) {
            dtInvoice.SetGridRows(row);
            dtInvoice.SetCell(row, col::InvoiceNo, text(1));
            dtInvoice.SetCell(row, col::Date, platform::Format(rs->Fields(4), szDateFormat));
            dtInvoice.SetCell(row, col::CustomerID, text(2));
            dtInvoice.SetCell(row, col::Customer, text(3));
            dtInvoice.SetCell(row, col::CForm, mark(5));
            dtInvoice.SetCell(row, col::CFormNo, text(9));
            dtInvoice.SetCell(row, col::DForm, mark(6));
            dtInvoice.SetCell(row, col::DFormNo, text(10));
            dtInvoice.SetCell(row, col::InvoiceID, text(0));
            dtInvoice.SetCell(row, col::OrigCForm, global.ToNumber(rs->Fields(7)) != 0 ? "32" : "0");
            dtInvoice.SetCell(row, col::OrigDForm, global.ToNumber(rs->Fields(8)) != 0 ? "64" : "0");
        }
        if (rs && rs->IsOpen()) rs->Close();

        if (dtInvoice.GridRows() > 0) {
            LockNumberColumn(dtInvoice.GridRow(), col::CForm);
            LockNumberColumn(dtInvoice.GridRow(), col::DForm);
            dtInvoice.SetFocus();
        } else {
            host_.mainForm.FocusTo(global.GetCustomerNameFirst() ? cboCustomer : cboCustomerID);
        }
    });
}

void Zuro_frmCForm_Dispatch::LayoutFormColumns(bool bFormOne, bool bFormTwo) {
    const bool bShowC = bFormOne || !bFormTwo;
    const bool bShowD = bFormTwo || !bFormOne;
    dtInvoice.SetColWidth(col::CForm, bShowC ? kMarkColWidth : 0);
    dtInvoice.SetColWidth(col::CFormNo, bShowC ? kNumberColWidth : 0);
    dtInvoice.SetColWidth(col::DForm, bShowD ? kMarkColWidth : 0);
    dtInvoice.SetColWidth(col::DFormNo, bShowD ? kNumberColWidth : 0);
    // Enter walks from the customer into the first form shown and ends the row at
    // the last number shown.
    dtInvoice.SetColNext(col::Customer, bShowC ? 0 : col::DForm);
    dtInvoice.LastEntryCol = bShowD ? col::DFormNo : col::CFormNo;
}

void Zuro_frmCForm_Dispatch::LockNumberColumn(int nRow, int nMarkCol) {
    if (nRow < 1 || nRow > dtInvoice.GridRows()) return;
    dtInvoice.SetColLocked(nMarkCol + 1, dtInvoice.GetCell(nRow, nMarkCol) == szNoText);
}

void Zuro_frmCForm_Dispatch::dtInvoice_AfterColUpdate(int nRow, int nCol, bool& /*bCancel*/) {
    Handled("dtInvoice_AfterColUpdate", [&] {
        if (nCol != col::CForm && nCol != col::DForm) return;
        if (dtInvoice.GetCell(nRow, nCol) == szNoText) dtInvoice.SetCell(nRow, nCol + 1, "");
        LockNumberColumn(nRow, nCol);
    });
}

void Zuro_frmCForm_Dispatch::dtInvoice_AtLastRow() {
    Handled("dtInvoice_AtLastRow", [&] { cmdSave.SetFocus(); });
}

void Zuro_frmCForm_Dispatch::dtInvoice_AtFirstRow() {
    Handled("dtInvoice_AtFirstRow", [&] { chkForm2.SetFocus(); });
}

// The list's choice goes into the mark cell, and the user goes on in the grid.
void Zuro_frmCForm_Dispatch::LandListChoice() {
    if (host_.global.GetListGuard() || lstYesNo.ListIndex() < 0) return;
    dtInvoice.ChooseFromList(lstYesNo.List(lstYesNo.ListIndex()), false);
    host_.global.SetFocusTo(dtInvoice);
}

void Zuro_frmCForm_Dispatch::lstYesNo_Click() {
    Handled("lstYesNo_Click", [&] { LandListChoice(); });
}

void Zuro_frmCForm_Dispatch::lstYesNo_KeyDown(int& KeyCode, int /*Shift*/) {
    Handled("lstYesNo_KeyDown", [&] {
        namespace keys = platform::keys;
        if (KeyCode != keys::Escape && KeyCode != keys::Enter && KeyCode != keys::F4) return;
        lstYesNo.Visible = false;
        LandListChoice();
    });
}

void Zuro_frmCForm_Dispatch::lstYesNo_LostFocus() {
    Handled("lstYesNo_LostFocus", [&] { lstYesNo.Visible = false; });
}

}  // namespace receipts
