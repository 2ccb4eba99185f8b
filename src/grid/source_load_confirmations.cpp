// Filling the grid from sales confirmations: one row a pending line, the item's
// properties from the master, and the batch, stock figure and price the line finds
// in stock now. No scheme runs here; the scheme button and the save see to that.
#include "grid/row_model/grid_columns.h"
#include "platform/convert.h"
#include "screen/procedure_results.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

using namespace grid;
using platform::adtype::Integer;
using platform::adtype::VarChar;

namespace {
// The item statement's fields.
enum ItemField { kPriceOption = 0, kProductName = 1, kTrackBatches = 2, kTrackInventory = 3 };
// The document's fields, by position.
enum DocumentField { kItemCode = 0, kBatchNumber = 1, kSalePrice = 2, kPendingQty = 3 };
// The stock procedures' fields, by position.
enum StockField { kAvailable = 0, kStockBatch = 1, kOriginalPrice = 2, kAskedQty = 3 };

constexpr int kExclamation = 48;
}  // namespace

void Zuro_frmDispatch_Dispatch::LoadItemDetails() {
    const bool bLoaded = Handled("LoadItemDetails", [&] {
        auto& global = host_.global;
        auto& grid = DTFlexDispatch;
        const bool bCopying = !platform::Trim(szCopySONumber).empty();

        szRefNumbers.clear();
        GetRefNO();

        const std::string szDocuments = bCopying ? szCopySONumber : szRefNumbers;
        auto rsDocument = global.NextRecordset(
            global.RunProcedure("SP_Get_SODetailForDispatch", {{platform::Value(szDocuments), VarChar}}));

        long nRow = 0;
        if (HasRecordset(rsDocument) && !rsDocument->Eof()) {
            grid.SetGridCol(colBatch);
            for (; !rsDocument->Eof(); rsDocument->MoveNext()) {
                auto field = [&](int nPosition) -> const platform::Value& { return rsDocument->Fields(nPosition); };
                if (!bCopying && global.ToText(field(kPendingQty)).empty()) continue;

                ++nRow;
                const int nAt = static_cast<int>(nRow);
                grid.SetGridRows(nAt);
                grid.SetGridRow(nAt);
                std::int16_t iResetAll = 0, bToSet = 0;
                Add_Unique_Serial(nRow, iResetAll, bToSet);
                grid.SetCell(nAt, 0, platform::NumberToText(static_cast<double>(nRow)));

                const std::string szItem = global.ToText(field(kItemCode));
                grid.SetCell(nAt, colItemCode, szItem);
                // A copied document brings its items without quantities.
                if (bCopying && nMode == mode::NewDispatch) {
                    grid.SetCell(nAt, colQuantity, "0");
                } else {
                    grid.SetCell(nAt, colQuantity,
                                 platform::NumberToText(global.ToNumber(rsDocument->Fields("UOMQty"))));
                    grid.SetCell(nAt, colStoredQty,
                                 platform::NumberToText(global.ToNumber(rsDocument->Fields("Quantity"))));
                }

                auto rsItem = global.GetConnection().Execute(
                    "SELECT ItemCategories.Price_Option,Items.Productname,items.Track_batches, "
                    "ItemCategories.Track_Inventory"
                    " FROM ItemCategories,Items where Items.CategoryID = ItemCategories.CategoryID and "
                    "(((Items.Product_Code)= N'" +
                    szItem + "'));");
                // An item that has left the master leaves no gap: the next line takes its row.
                if (!HasRecordset(rsItem) || rsItem->Eof() || global.ToText(rsItem->Fields(kProductName)).empty()) {
                    --nRow;
                    continue;
                }
                const platform::Value vTrackBatches = rsItem->Fields(kTrackBatches);
                const double nPriceOption = global.ToNumber(rsItem->Fields(kPriceOption));
                grid.SetCell(nAt, colItemName, global.ToText(rsItem->Fields(kProductName)));
                grid.SetCell(nAt, colBatchTrack, global.ToText(vTrackBatches));
                grid.SetCell(nAt, colPriceOption, global.ToText(rsItem->Fields(kPriceOption)));
                grid.SetCell(nAt, colTrackInventory, global.ToText(rsItem->Fields(kTrackInventory)));
                grid.SetCell(nAt, colUOM, global.ToText(rsDocument->Fields("UOMDesc")));
                grid.SetCell(nAt, colUOMID, global.ToText(rsDocument->Fields("UOMID")));
                rsItem->Close();

                // The price goes to the batch-priced procedure alone, and a quantity
                // in ladder form reaches both through ToNumber.
                const bool bByPrice = nPriceOption == 1;
                platform::RecordsetPtr rsStock;
                if (bByPrice) {
                    rsStock = global.NextRecordset(global.RunProcedure(
                        "sp_get_stock_csp", {{platform::Value(global.ToText(field(kItemCode))), VarChar},
                                             {platform::Value(global.ToText(field(kBatchNumber))), VarChar},
                                             {platform::Value(global.ToNumber(field(kSalePrice))), Integer},
                                             {platform::Value(global.ToNumber(field(kPendingQty))), Integer},
                                             {vTrackBatches, Integer},
                                             {platform::Value(nCustomerCategory), Integer}}));
                } else {
                    rsStock = global.NextRecordset(global.RunProcedure(
                        "sp_get_stock", {{platform::Value(global.ToText(field(kItemCode))), VarChar},
                                         {platform::Value(global.ToText(field(kBatchNumber))), VarChar},
                                         {platform::Value(global.ToNumber(field(kPendingQty))), Integer},
                                         {vTrackBatches, Integer}}));
                }
                if (HasRecordset(rsStock) && !rsStock->Eof()) {
                    const double dAvailable = global.ToNumber(rsStock->Fields(kAvailable));
                    const double dAsked = global.ToNumber(rsStock->Fields(kAskedQty));
                    const bool bShort = bByPrice ? dAvailable < dAsked : dAvailable <= dAsked;
                    grid.SetCell(nAt, colBatchRequired, bShort ? "1" : "0");
                    grid.SetCell(nAt, colBatch, global.ToText(rsStock->Fields(kStockBatch)));
                    grid.SetCell(nAt, colSalePrice,
                                 platform::NumberToText(global.ToNumber(rsStock->Fields("UOMPrice"))));
                    grid.SetCell(nAt, colOriginalPrice, global.ToText(rsStock->Fields(kOriginalPrice)));
                    rsStock->Close();
                }
            }
            grid.SetGridRow(1);
        }

        if (HasRecordset(rsDocument)) rsDocument->Close();
        if (nRow < 1) {
            global.ShowStatus("No details to display", 1);
            SetFrame(1);
        }
        bAskOnExit = true;
        global.ShowStatus(global.GetReadyMessage(), 0);
    });
    if (!bLoaded) host_.messages.AskMessage("Error in Loading item Information ", kExclamation);
}

}  // namespace screen
