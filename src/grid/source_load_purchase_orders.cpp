// Filling the grid from received purchase orders. The order speaks the customer's
// item codes; the item master's alias turns them into ours, and an item with no
// alias falls out of the statement. Unlike a confirmation, an order takes no batch
// and no unit, leaves the price to a batch-priced item's batches, and meets its
// load-time schemes row by row.
#include "grid/row_model/grid_columns.h"
#include "platform/convert.h"
#include "screen/procedure_results.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

using namespace grid;
using platform::adtype::VarChar;

namespace {
// sp_get_receivedpoitems, by position; the three prices follow the customer's
// category from kFirstPrice on.
enum POItemField { kItemName = 0, kTrackBatches = 2, kPriceOption = 4, kTrackInventory = 5, kFirstPrice = 6 };
constexpr long kInvalidUseOfNull = 94;
}  // namespace

void Zuro_frmDispatch_Dispatch::LoadPOItems() {
    Handled("LoadPOItems", [&] {
        auto& global = host_.global;
        auto& grid = DTFlexDispatch;
        if (!szPONumbers.empty() && szPONumbers.front() == ',') szPONumbers.erase(0, 1);
        szRefNumbers.clear();
        GetRefNO();

        auto rsOrders = global.GetConnection().Execute(
            "Select Items.Product_Code, SUM(PODetailReceived.Quantity) "
            "From PODetailReceived, Items WHERE PODetailReceived.PONumber In ( " +
            szPONumbers +
            ") AND PODetailReceived.Product_Code = Items.Alias "
            "GROUP BY Items.Product_Code");

        grid.SetGridCol(colSalePrice);
        long nRow = 0;
        for (; HasRecordset(rsOrders) && !rsOrders->Eof(); rsOrders->MoveNext()) {
            ++nRow;
            if (nRow > grid.GridRows()) grid.SetGridRows(static_cast<int>(nRow));
            int nAt = static_cast<int>(nRow);
            grid.SetCell(nAt, 0, platform::NumberToText(static_cast<double>(nRow)));
            grid.SetCell(nAt, colItemCode, global.ToText(rsOrders->Fields(0)));
            grid.SetCell(nAt, colQuantity, platform::NumberToText(global.ToNumber(rsOrders->Fields(1))));

            auto rsItem =
                global.NextRecordset(global.RunProcedure("sp_get_receivedpoitems", {{rsOrders->Fields(0), VarChar}}));
            if (HasRecordset(rsItem) && !rsItem->Eof()) {
                grid.SetCell(nAt, colItemName, global.ToText(rsItem->Fields(kItemName)));
                if (global.ToNumber(rsItem->Fields(kPriceOption)) == 0) {
                    // A category outside 1 to 3 chooses no price at all.
                    if (nCustomerCategory < 1 || nCustomerCategory > 3)
                        throw platform::RuntimeError(kInvalidUseOfNull, "Invalid use of Null");
                    const double fPrice = global.ToNumber(rsItem->Fields(kFirstPrice + nCustomerCategory - 1));
                    grid.SetCell(nAt, colSalePrice, platform::NumberToText(fPrice));
                    grid.SetCell(nAt, colOriginalPrice, platform::NumberToText(fPrice));
                }
                grid.SetCell(nAt, colBatchTrack, global.ToText(rsItem->Fields(kTrackBatches)));
                grid.SetCell(nAt, colPriceOption, global.ToText(rsItem->Fields(kPriceOption)));
                grid.SetCell(nAt, colTrackInventory, global.ToText(rsItem->Fields(kTrackInventory)));
            }
            if (HasRecordset(rsItem)) rsItem->Close();

            FindSchemes(grid.GetCell(nAt, colItemCode),
                        global.ToNumber(platform::Value(grid.GetCell(nAt, colQuantity))), global.GetCurrentDate(0),
                        nRow);
        }
        if (HasRecordset(rsOrders)) rsOrders->Close();
    });
}

}  // namespace screen
