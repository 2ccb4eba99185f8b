// The grid's cell updates, and the routines of item entry, pricing and batches a
// host may call by name.
#include "screen/routine_binder.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

void Zuro_frmDispatch_Dispatch::WireItemEntryAndBatches() {
    DTFlexDispatch.AfterColUpdate.Connect(
        [this](int nRow, int nCol, bool& bCancel) { DTFlexDispatch_AfterColUpdate(nRow, nCol, bCancel); });

    using Self = Zuro_frmDispatch_Dispatch;
    RoutineBinder routines(routines_, *this);
    routines.Bind("DTFlexDispatch_AfterColUpdate", &Self::DTFlexDispatch_AfterColUpdate,
                  {"nRow", "nCol", InOut("bCancel")});
    routines.Bind("GetItemPrice", &Self::GetItemPrice, {"szItemCode", "nRow"});
    routines.Bind("GetItemProperty", &Self::GetItemProperty, {"szItemCode", "nProperty", "nValue"});
    routines.Bind("ClearItemDetails", &Self::ClearItemDetails, {"nRow"});
    routines.Bind("ComputeDispatchValue", &Self::ComputeDispatchValue, {"nLastRow", "dValue"});
    routines.Bind("GetTotalBookStock", &Self::GetTotalBookStock, {"szItemCode"});
    routines.Bind("DispatchBatchDetails", &Self::DispatchBatchDetails,
                  {"szItemCode", "szBatch", "szPrice", "nBatchTrack", "nPriceOption", "nStoredRow", "szStoredBatch"});
    routines.Bind("LoadListWidths", [this](long nScreen) { LoadListWidths(nScreen, FrameAvailable, lstAvailable); },
                  {"nScreen"});
    routines.Bind("SetGridMode",
                  [this](long nPriceOption, long nBatchTrack, const std::string& szItemCode) {
                      SetGridMode(lstAvailable, nPriceOption, nBatchTrack, szItemCode);
                  },
                  {"nPriceOption", "nBatchTrack", "szItemCode"});
    routines.Bind("GetItemBatchFlags", &Self::GetItemBatchFlags, {"szItemCode", "nVirtualBatches"});
    routines.Bind("AddBatchInfo", &Self::AddBatchInfo, {"szBatch", "dQuantity", "dPrice", "nBatchCode"});
    routines.Bind("AddUnBatchQty", &Self::AddUnBatchQty, {"szBatchOption", "dPrice", "dQuantity", "nFree"});
    routines.Bind("AddUnBatchInfo", &Self::AddUnBatchInfo, {"dQuantity", "dPrice", "szExpiry", "szPKD", "szFreeText"});
    routines.Bind("TakeFromBatchEntry", &Self::TakeFromBatchEntry, {"nRow", "nCol"});
    routines.Bind("ShowBatchStockStatus", &Self::ShowBatchStockStatus, {"nRow", "nCol"});
}

}  // namespace screen
