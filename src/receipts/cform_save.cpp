// Saving the marks: each invoice of the list gets its status mask and numbers back,
// one call a row and no transaction, so rows written before a failure stay written.
#include "platform/convert.h"
#include "receipts/zuro_frm_cform_dispatch.h"

namespace receipts {

void Zuro_frmCForm_Dispatch::cmdSave_Click() {
    HandledAsSave([&] {
        auto& global = host_.global;
        if (objHostContext_) objHostContext_->GetClosedayChecking();
        if (!host_.tools.CheckCloseDay(global.GetTransactionDate(), global.GetCloseDayMode() == 1 ? -1 : 0)) {
            dtInvoice.SetFocus();
            return;
        }
        SaveEachRow();
    });
}

void Zuro_frmCForm_Dispatch::SaveReceipts() {
    HandledAsSave([&] { SaveEachRow(); });
}

void Zuro_frmCForm_Dispatch::SaveEachRow() {
    auto& global = host_.global;
    auto cellNumber = [&](int row, int c) { return platform::CLng(platform::Val(dtInvoice.GetCell(row, c))); };
    for (int r = 1; r <= dtInvoice.GridRows(); ++r) {
        const long nOrigC = cellNumber(r, col::OrigCForm);
        const long nOrigD = cellNumber(r, col::OrigDForm);
        long nMask = 0;

        long nC = 0;
        std::string szCNo;
        if (dtInvoice.GetCell(r, col::CForm) == szYesText) {
            nC = receipt::CFormReceived;
            nMask += receipt::CFormReceived;
            szCNo = global.ToText(platform::Value(dtInvoice.GetCell(r, col::CFormNo)));
        }
        long nD = 0;
        std::string szDNo;
        if (dtInvoice.GetCell(r, col::DForm) == szYesText) {
            nD = receipt::DFormReceived;
            nMask += receipt::DFormReceived;
            szDNo = global.ToText(platform::Value(dtInvoice.GetCell(r, col::DFormNo)));
        }

        const bool bSameC = nC == nOrigC, bSameD = nD == nOrigD;
        if (bSameC && bSameD) {
            nMask += receipt::MarksUnchanged;
        } else if (bSameC != bSameD) {
            // Clearing the only mark of a row saves nothing.
            if (nC == 0 && nD == 0) continue;
        } else {
            // Both marks changed in one save: the row is passed over.
            continue;
        }

        const long nInvoiceID = platform::CLng(platform::CDbl(platform::Value(dtInvoice.GetCell(r, col::InvoiceID))));
        auto rs = global.RunProcedure("sp_Update_FormReceipt", {{nInvoiceID, platform::adtype::Integer},
                                                                {nMask, platform::adtype::Integer},
                                                                {szCNo, platform::adtype::VarChar},
                                                                {szDNo, platform::adtype::VarChar}});
        if (rs && rs->IsOpen()) rs->Close();
    }
    cmdRefresh_Click();
}

}  // namespace receipts
