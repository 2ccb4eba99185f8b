// The first thing an amendment does inside its save: the note it replaces is closed
// and marked amended, and its stock goes back to the very batches it came from, so
// that the replacement can take it again in the same transaction. The old note's
// lines are read from the copy kept when it was loaded, since the clerk has changed
// the grid since.
#include "platform/convert.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

namespace {
// The columns of the copy kept at loading.
constexpr long kOldItemCode = 1, kOldBatchCode = 2, kOldQuantity = 3, kOldTrackInventory = 5, kOldUOMID = 6;
constexpr long kOldDetailWidth = 6;
}  // namespace

bool Zuro_frmDispatch_Dispatch::AmendOldDispatch() {
    auto& global = host_.global;
    bool bClosed = false;
    Handled("AmendOldDispatch", [&] {
        auto& connection = global.GetConnection();
        connection.Execute("UPDATE DispatchAbstract SET Status = Status | 384, Remarks = N'" +
                           global.EscapeQuotes(txtRemarks.Text()) + "' WHERE DispatchID = " + szDocNumbers);

        for (long i = 1; i <= vOldDetail.UBound(1); ++i) {
            // An empty flag counts as 0: the line kept no stock.
            if (platform::Val("0" + global.ToText(vOldDetail.At(i, kOldTrackInventory))) != 1) continue;
            const std::string szItem = global.ToText(vOldDetail.At(i, kOldItemCode));
            const long nBatchCode = static_cast<long>(platform::Int(global.ToNumber(vOldDetail.At(i, kOldBatchCode))));
            const double fQty = global.ToNumber(vOldDetail.At(i, kOldQuantity));
            const long nUOM = static_cast<long>(platform::Int(global.ToNumber(vOldDetail.At(i, kOldUOMID))));
            GiveStockBack(szItem, nBatchCode, fQty, nUOM);
        }

        AdjustOpeningForCancel();

        // The next amendment in this opening starts from the copy its own load makes.
        vOldDetail = platform::VariantTable(1, kOldDetailWidth);
        bClosed = true;
    });
    return bClosed;
}

}  // namespace screen
