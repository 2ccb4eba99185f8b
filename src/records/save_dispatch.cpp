// Writing a dispatch note: the one routine that does, in one transaction on the
// host's connection. The order of its parts is the design: the credit gate before
// anything is begun, the abstract, the document counter, the lines (where stock
// leaves the batches), the source documents, the posting to accounts, and only
// then the commit. A failure anywhere after BeginTrans takes the whole note back
// and leaves the grid as the user left it, so the fault can be mended and the save
// tried again.
#include <algorithm>

#include "grid/row_model/grid_columns.h"
#include "platform/convert.h"
#include "records/save_locals.h"
#include "screen/procedure_results.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

namespace {
using platform::adtype::Date;
using platform::adtype::Double;
using platform::adtype::Integer;
using platform::adtype::VarChar;

constexpr long kDispatchTransactionType = 5;
}  // namespace

bool Zuro_frmDispatch_Dispatch::SaveDispatch() {
    auto& global = host_.global;
    bool bSaved = false;
    const char* szPrefix = nMode == mode::Amendment ? "Dispatch: AmendDispatch - " : "Dispatch: SaveDispatch - ";
    // The copy of the old note's lines is emptied once its stock is back; a failed
    // amendment rolls that back, so the copy must stand again for the next try.
    const platform::VariantTable vOldDetailKept = vOldDetail;
    platform::RunHandledInTransaction(global, szPrefix, global.GetConnection(), bInTransaction, [&] {
        SaveLocals save;

        // The parties, the rows and the dates are gathered, and the credit gates
        // passed, before any transaction is begun.
        save.nSalesmanID = std::max(GetSalesmanID(), 0L);
        save.nBeatID = std::max(GetBeatID(), 0L);
        szCurrentGroupID = GetGroupID();
        save.nRows = DTFlexDispatch.GridRows();
        if (DTFlexDispatch.IsBlankRow(save.nRows)) --save.nRows;
        save.dtDispatchDay = global.ToDateOnly(DTDispatchDate.Value);
        save.nDatedPosting = global.GetDatedPostingEnabled() ? 1 : 0;
        if (nMode == mode::NewDispatch || nMode == mode::Amendment) szCustomerCode = szEnteredCustomerCode;
        if (!CheckCreditGates(save.nSalesmanID, save.nBeatID, save.nRows)) {
            global.SetFocusTo(cmdSave);
            return;
        }

        global.GetConnection().BeginTrans();
        bInTransaction = true;

        // The references and the origin of the note, by the mode it was keyed in.
        switch (nMode) {
            case mode::FromSalesConfirmation:
            case mode::FromAlert:
                save.szFirstRef = szDocNumbers;
                save.szSecondRef = szDocIDs;
                save.nStatus = 1;
                break;
            case mode::NewDispatch:
                save.szFirstRef = save.szSecondRef = txtref.Text();
                save.nStatus = 2;
                break;
            case mode::FromPurchaseOrder:
                save.szFirstRef = szPONumbers;
                save.szSecondRef = szDocIDs;
                save.nStatus = 4;
                break;
            case mode::Amendment:
                save.szFirstRef = save.szSecondRef = txtref.Text();
                save.nStatus = nOriginalStatus;
                break;
            default: break;
        }

        // An amendment first closes the note it replaces and puts its stock back, so
        // that the replacement can take it again.
        if (nMode == mode::Amendment && !AmendOldDispatch()) {
            global.GetConnection().RollbackTrans();
            global.ShowStatus("Unable to save Dispatch Note", 1);
            return;
        }

        if (!SaveAbstract(save)) return;
        if (!UpdateTransactionSerial(save)) return;
        if (!SaveDetailRows(save.nRows, save.nDispatchID, save.dtDispatchDay, save.nDatedPosting)) return;
        UpdateSourceDocuments(save);
        if (!PostToAccounts(save)) return;

        // The status line changes ahead of the commit.
        const char* szDone =
            nMode == mode::Amendment ? "DispatchID = {0} has been Amended" : "DispatchID = {0} has been generated";
        global.ShowStatus(host_.messages.FormatMessage(szDone, {save.szDocumentID}), 0);
        global.SetLastTransactionDate(DTDispatchDate.Value);
        global.GetConnection().CommitTrans();
        bInTransaction = false;

        // The note is stored; a printing fault does not undo it.
        PrintSavedDispatch(save.nDispatchID);

        CleanUp();
        if (nMode == mode::Amendment)
            InitAfterAmendment(save.szDocumentID);
        else
            SetFrame(1);
        bSaved = true;
    });
    if (!bSaved && nMode == mode::Amendment) vOldDetail = vOldDetailKept;
    return bSaved;
}

bool Zuro_frmDispatch_Dispatch::SaveAbstract(SaveLocals& save) {
    auto& global = host_.global;
    const bool bAmend = nMode == mode::Amendment;
    platform::ParameterList parameters{{save.szFirstRef, VarChar}};
    if (bAmend) parameters.push_back({vOldRefNumber, VarChar});
    parameters.insert(parameters.end(), {{DTDispatchDate.Value, Date},
                                         {szCustomerCode, VarChar},
                                         {txtBillingAddress.Text(), VarChar},
                                         {txtShippingAddress.Text(), VarChar},
                                         {save.nStatus, Integer},
                                         {save.szSecondRef, VarChar},
                                         {szMemo1, VarChar},
                                         {szMemo2, VarChar},
                                         {szMemo3, VarChar},
                                         {txtDocReference.Text(), VarChar},
                                         {save.nSalesmanID, Integer},
                                         {save.nBeatID, Integer}});
    if (!bAllCategories) parameters.push_back({szCurrentGroupID, VarChar});

    auto result = global.NextRecordset(
        global.RunProcedure(bAmend ? "sp_Save_DispatchAbstract_Amend" : "sp_Save_DispatchAbstract", parameters));
    if (!HasRecordset(result)) {
        // The one failure of the save that tells the user nothing.
        global.GetConnection().RollbackTrans();
        return false;
    }
    save.nDispatchID = platform::CLng(global.ToNumber(result->Fields(0)));
    save.nDocumentID = platform::CLng(global.ToNumber(result->Fields(1)));
    result->Close();
    return true;
}

bool Zuro_frmDispatch_Dispatch::UpdateTransactionSerial(SaveLocals& save) {
    auto& global = host_.global;
    // The tag holds the reference the screen proposed; a reference the user kept
    // spends the document type's number, one whose lead he changed spends none.
    const std::string& szText = txtDocReference.Text();
    const std::string& szTag = txtDocReference.Tag;
    long nSameReference = platform::UCase(szText) == platform::UCase(szTag) ? 1 : 0;
    std::string szDocType;
    if (cbodocumenttype.ListIndex() > 0) szDocType = cbodocumenttype.Text();
    if (nSameReference == 0 && (!platform::IsNumericText(szText) || !platform::IsNumericText(szTag))) {
        const int nText = global.GetDocumentPrefixLength(szText);
        const int nTag = global.GetDocumentPrefixLength(szTag);
        if (szText.substr(0, std::max(nText, 0)) != szTag.substr(0, std::max(nTag, 0))) szDocType.clear();
    }

    auto result =
        global.NextRecordset(global.RunProcedure("sp_Update_TransactionSerial", {{kDispatchTransactionType, Integer},
                                                                                 {szDocType, VarChar},
                                                                                 {save.nDispatchID, Integer},
                                                                                 {platform::Trim(szText), VarChar},
                                                                                 {nSameReference, Integer}}));
    if (!HasRecordset(result)) {
        global.GetConnection().RollbackTrans();
        host_.messages.AskMessage("Unable to save Dispatch Note", host_services::msgbox::Information);
        return false;
    }
    save.szDocumentID = global.ToText(result->Fields(0));
    result->Close();
    return true;
}

void Zuro_frmDispatch_Dispatch::UpdateSourceDocuments(const SaveLocals& save) {
    auto& global = host_.global;
    if (nMode == mode::FromPurchaseOrder) {
        // The order numbers go in as they stand; an empty list fails the statement,
        // and the handler takes the note back.
        global.GetConnection().Execute("Update [POAbstractReceived] set Status = Status | 128 where [PONumber] IN (" +
                                       szPONumbers + ")");
        return;
    }
    if (nMode != mode::FromSalesConfirmation && nMode != mode::FromAlert) return;

    auto& grid = DTFlexDispatch;
    for (long r = 1; r <= save.nRows; ++r) {
        const std::string szItem = grid.GetCell(r, grid::colItemCode);
        const long nUOM = static_cast<long>(platform::Int(platform::Val(grid.GetCell(r, grid::colUOMID))));
        const double fQty =
            nUOM != 0 ? platform::Val(grid.GetCell(r, grid::colQuantity)) * global.ConvertToBaseUOM(szItem, nUOM)
                      : global.ConvertToDisplayUOM(szItem, grid.GetCell(r, grid::colQuantity));
        const long nFree = platform::Val(grid.GetCell(r, grid::colSalePrice)) == 0 ? 1 : 0;
        auto result = global.NextRecordset(global.RunProcedure(
            "sp_update_sopending", {{szItem, VarChar}, {fQty, Double}, {szDocNumbers, VarChar}, {nFree, Integer}}));
        // A missing result is not looked for: closing it raises the runtime's error.
        if (!result) throw platform::RuntimeError(platform::err::ObjectNotSet);
        result->Close();
    }
    for (const std::string& szSO : platform::Split(szDocNumbers, ",")) {
        const double fSO = global.ToNumber(platform::Value(szSO));
        global.RunProcedure("sp_close_so", {{fSO, Integer}});
        global.RunProcedure("sp_update_soRefNumber", {{fSO, Integer}, {save.nDocumentID, Integer}});
    }
}

bool Zuro_frmDispatch_Dispatch::PostToAccounts(const SaveLocals& save) {
    auto& global = host_.global;
    auto& journal = global.GetJournalService();
    const long nCounter = nMode == mode::Amendment ? global.GetSaveCounterOne() : global.GetSaveCounterTwo();
    platform::Date dtPostDate = nMode == mode::Amendment ? global.ToDateOnly(dtOriginalDispatchDate) : dtServerDate;

    bool bPosted;
    if (dtPostDate.serial < global.ToDateOnly(dtServerDate).serial || global.GetDatedPostingEnabled()) {
        // A note dated back posts on its own, earlier date.
        const platform::Date dtDispatchDay = global.ToDateOnly(DTDispatchDate.Value);
        if (dtDispatchDay.serial < dtPostDate.serial) dtPostDate = dtDispatchDay;
        bPosted = journal.Journal(nCounter, save.nDispatchID, szError, dtPostDate);
    } else {
        bPosted = journal.Journal(nCounter, save.nDispatchID, szError);
    }
    if (bPosted) return true;
    global.ShowStatus(szError, 0);
    global.GetConnection().RollbackTrans();
    return false;
}

}  // namespace screen
