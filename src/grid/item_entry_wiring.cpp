// The grid's cell updates, and the routines of item entry, pricing and batches a
// host may call by name.
#include "platform/convert.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

namespace {
const std::string& Argument(const RoutineCall& call, std::size_t index) {
    if (index >= call.arguments.size())
        throw platform::RuntimeError(450, "Wrong number of arguments or invalid property assignment");
    return call.arguments[index];
}
long LongArgument(const RoutineCall& call, std::size_t index) { return platform::CLng(platform::Val(Argument(call, index))); }
double DoubleArgument(const RoutineCall& call, std::size_t index) { return platform::Val(Argument(call, index)); }
}  // namespace

void Zuro_frmDispatch_Dispatch::WireItemEntryAndBatches() {
    if (bItemEntryWired) return;  // an event connected twice would run its handler twice
    bItemEntryWired = true;
    DTFlexDispatch.AfterColUpdate.Connect(
        [this](int nRow, int nCol, bool& bCancel) { DTFlexDispatch_AfterColUpdate(nRow, nCol, bCancel); });

    routines_.Add("GetItemPrice", [this](RoutineCall& call) { GetItemPrice(Argument(call, 0), LongArgument(call, 1)); });
    routines_.Add("GetItemProperty", [this](RoutineCall& call) {
        long nValue = 0;
        GetItemProperty(Argument(call, 0), LongArgument(call, 1), nValue);
        call.outs.emplace_back("nValue", platform::Value(nValue));
    });
    routines_.Add("ClearItemDetails", [this](RoutineCall& call) { ClearItemDetails(LongArgument(call, 0)); });
    routines_.Add("ComputeDispatchValue", [this](RoutineCall& call) {
        double dValue = 0;
        ComputeDispatchValue(LongArgument(call, 0), dValue);
        call.outs.emplace_back("dValue", platform::Value(dValue));
    });
    routines_.Add("GetTotalBookStock",
                  [this](RoutineCall& call) { call.result = platform::Value(GetTotalBookStock(Argument(call, 0))); });
    routines_.Add("DispatchBatchDetails", [this](RoutineCall& call) {
        DispatchBatchDetails(Argument(call, 0), Argument(call, 1), Argument(call, 2), LongArgument(call, 3),
                             LongArgument(call, 4), LongArgument(call, 5), Argument(call, 6));
    });
    routines_.Add("LoadListWidths",
                  [this](RoutineCall& call) { LoadListWidths(LongArgument(call, 0), FrameAvailable, lstAvailable); });
    routines_.Add("SetGridMode", [this](RoutineCall& call) {
        SetGridMode(lstAvailable, LongArgument(call, 0), LongArgument(call, 1), Argument(call, 2));
    });
    routines_.Add("GetItemBatchFlags", [this](RoutineCall& call) {
        long nVirtualBatches = 0;
        call.result = platform::Value(GetItemBatchFlags(Argument(call, 0), nVirtualBatches));
        call.outs.emplace_back("nVirtualBatches", platform::Value(nVirtualBatches));
    });
    routines_.Add("AddBatchInfo", [this](RoutineCall& call) {
        AddBatchInfo(Argument(call, 0), DoubleArgument(call, 1), DoubleArgument(call, 2), LongArgument(call, 3));
    });
    routines_.Add("AddUnBatchQty", [this](RoutineCall& call) {
        AddUnBatchQty(Argument(call, 0), DoubleArgument(call, 1), DoubleArgument(call, 2), LongArgument(call, 3));
    });
    routines_.Add("AddUnBatchInfo", [this](RoutineCall& call) {
        AddUnBatchInfo(DoubleArgument(call, 0), DoubleArgument(call, 1), Argument(call, 2), Argument(call, 3),
                       Argument(call, 4));
    });
    routines_.Add("TakeFromBatchEntry",
                  [this](RoutineCall& call) { TakeFromBatchEntry(LongArgument(call, 0), LongArgument(call, 1)); });
    routines_.Add("ShowBatchStockStatus",
                  [this](RoutineCall& call) { ShowBatchStockStatus(LongArgument(call, 0), LongArgument(call, 1)); });
}

}  // namespace screen
