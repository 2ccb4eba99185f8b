// Cancelling a stored note (the cancel mode's save button): the note is closed and
// marked cancelled, its stock goes back to the very batches it came from, the
// openings after its date take it back and the posting is reversed, all in one
// transaction. The note keeps its lines; it is only marked. The sales confirmations
// it closed stay closed.
//
// Runs inside cmdSave_Click: a run-time error here is the button's, whose handler
// rolls the transaction back.
#include "grid/row_model/grid_columns.h"
#include "parties/party_boxes.h"
#include "platform/convert.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

namespace {
using platform::adtype::Date;
using platform::adtype::Integer;
}  // namespace

void Zuro_frmDispatch_Dispatch::CancelDispatch() {
    auto& global = host_.global;
    auto& messages = host_.messages;
    auto& grid = DTFlexDispatch;

    const long nDispatchID = static_cast<long>(platform::Int(platform::Val(szDocNumbers)));
    bool bValid = false;
    if (!ValidDispatch(nDispatchID, bValid)) {
        global.ShowStatus("You cannot cancel this dispatch.", 1);
        return;
    }

    // The day may be closed to changes; the host says so itself.
    if (!objHostContext_) throw platform::RuntimeError(platform::err::ObjectNotSet);
    objHostContext_->GetClosedayChecking();
    const int nClose = global.GetCloseDayMode();
    if (!host_.tools.CheckCloseDay(DTDispatchDate.Value, nClose == 1 ? -1 : 0)) return;

    if (messages.AskMessage("Do you wish to cancel this dispatch?", host_services::msgbox::YesNoQuestionSecond) ==
        host_services::msgbox::AnswerNo)
        return;

    auto& connection = global.GetConnection();
    connection.BeginTrans();
    bInTransaction = true;

    connection.Execute("UPDATE DispatchAbstract SET Status = Status | 192, Remarks = N'" +
                       global.EscapeQuotes(txtRemarks.Text()) + "',CancelUserName = N'" + global.GetUserName() +
                       "',CancelDate = getdate() WHERE DispatchID = " + szDocNumbers);

    // The stock goes back to the batch each line was taken from; a loaded line holds
    // its batch's code where a new line shows the stock available.
    for (int r = 1; r <= grid.GridRows(); ++r) {
        if (platform::Val("0" + grid.GetCell(r, grid::colTrackInventory)) != 1) continue;
        const std::string szItem = global.ToText(platform::Value(grid.GetCell(r, grid::colItemCode)));
        const long nBatchCode = platform::CLng(platform::Int(platform::Val(grid.GetCell(r, grid::colAvailableQty))));
        const double fQty = global.ToNumber(platform::Value(grid.GetCell(r, grid::colQuantity)));
        const long nUOM =
            static_cast<long>(platform::Int(global.ToNumber(platform::Value(grid.GetCell(r, grid::colUOMID)))));
        GiveStockBack(szItem, nBatchCode, fQty, nUOM);
    }

    AdjustOpeningForCancel();

    auto& journal = global.GetJournalService();
    const long nPosted = static_cast<long>(platform::Val(szDocNumbers));
    const bool bPosted = global.GetDatedPostingEnabled() ? journal.Journal(global.GetCancelCounter(), nPosted, szError,
                                                                           global.ToDateOnly(DTDispatchDate.Value))
                                                         : journal.Journal(global.GetCancelCounter(), nPosted, szError);
    if (!bPosted) {
        global.ShowStatus(szError, 0);
        connection.RollbackTrans();
        bInTransaction = false;
        return;
    }

    connection.CommitTrans();
    bInTransaction = false;

    InitAfterAmendment(szDefaultDocReference);
    global.SetFocusTo(parties::CustomerBox(*this, global));
    SetTabStop(1);
    bAskOnExit = false;
    global.ShowStatus(messages.FormatMessage("DispatchID = {0} has been Cancelled", {szDefaultDocReference}), 0);
}

// Used by cancelling and by amending, inside their transactions.
void Zuro_frmDispatch_Dispatch::GiveStockBack(const std::string& szItem, long nBatchCode, double fQty, long nUOM) {
    auto& global = host_.global;
    const double fBase = global.ConvertToBaseUOM(szItem, nUOM) * fQty;
    global.GetConnection().Execute("UPDATE Batch_Products SET Quantity = Quantity + " + platform::NumberToText(fBase) +
                                   " WHERE Batch_Code = " + std::to_string(nBatchCode));
}

// Used by cancelling and by amending, inside their transactions; the server's
// answer is not looked at.
void Zuro_frmDispatch_Dispatch::AdjustOpeningForCancel() {
    auto& global = host_.global;
    global.RunProcedure(
        "sp_adjust_opening_for_cancel_dispatch",
        {{static_cast<long>(platform::Val(szDocNumbers)), Integer}, {global.ToDateOnly(dtLoadedDispatchDate), Date}});
}

}  // namespace screen
