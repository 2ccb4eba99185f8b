// The item's saleable stock in base units, for the status line and the rows of
// items without batches.
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

double Zuro_frmDispatch_Dispatch::GetTotalBookStock(const std::string& szItemCode) {
    double dTotal = 0;
    Handled("GetTotalBookStock", [&] {
        auto& global = host_.global;
        auto stock = global.NextRecordset(
            global.RunProcedure("spr_get_total_bookstock", {{platform::Value(szItemCode), platform::adtype::VarChar}}));
        if (stock && stock->IsOpen() && !stock->Eof()) dTotal = global.ToNumber(stock->Fields(0));
        if (stock && stock->IsOpen()) stock->Close();
    });
    return dTotal;
}

}  // namespace screen
