// What a row takes from the item master: its batch, price and inventory flags and,
// when the price does not come from a batch, the price of the customer's category.
#include "grid/item_entry_cells.h"
#include "grid/row_model/grid_columns.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

namespace {
// The customer's category picks the price: 1 stockist (PTS), 2 retailer (PTR), 3
// special (company price). Fields of the item query below.
constexpr int kFieldTrackBatches = 0, kFieldPriceOption = 2, kFieldTrackInventory = 3;
constexpr int kFieldPTS = 4, kFieldPTR = 5, kFieldCompanyPrice = 6;

platform::Value PriceOfCategory(const platform::Recordset& item, long nCategory) {
    switch (nCategory) {
        case 1: return item.Fields(kFieldPTS);
        case 2: return item.Fields(kFieldPTR);
        case 3: return item.Fields(kFieldCompanyPrice);
        default: return platform::Value::Null();  // no trade price: the row is priced 0
    }
}
}  // namespace

void Zuro_frmDispatch_Dispatch::GetItemPrice(const std::string& szItemCode, long nRow) {
    Handled("GetItemPrice", [&] {
        auto& global = host_.global;
        auto& grid = DTFlexDispatch;
        const int row = static_cast<int>(nRow);
        // Sale_Price is read with the rest but a dispatch never sells at it.
        auto item = global.GetConnection().Execute(
            "SELECT Track_Batches, Sale_Price, Price_Option, Track_Inventory, PTS, PTR, Company_Price FROM Items, "
            "ItemCategories WHERE Product_Code = N'" +
            szItemCode + "' AND ItemCategories.CategoryID = Items.CategoryID");
        if (item->Eof()) {
            item->Close();
            return;
        }
        LoadItemUOM(szItemCode, nRow);  // the row's unit and dUOMRate

        // With a price option of 1 the batch chosen brings the price.
        if (global.ToNumber(item->Fields(kFieldPriceOption)) == 0) {
            const std::string szPrice =
                platform::Format(PriceOfCategory(*item, nCustomerCategory), global.GetNumberFormat(0));
            grid::SetCellNumber(grid, row, grid::colSalePrice, platform::Val(szPrice) * dUOMRate);
            grid::SetCellNumber(grid, row, grid::colOriginalPrice, platform::Val(szPrice));
        }
        grid.SetCell(row, grid::colBatchTrack, global.ToText(item->Fields(kFieldTrackBatches)));
        grid.SetCell(row, grid::colPriceOption, global.ToText(item->Fields(kFieldPriceOption)));
        grid.SetCell(row, grid::colTrackInventory, global.ToText(item->Fields(kFieldTrackInventory)));
        nBatchTrack = static_cast<long>(global.ToNumber(item->Fields(kFieldTrackBatches)));
        item->Close();
    });
}

void Zuro_frmDispatch_Dispatch::GetItemProperty(const std::string& szItemCode, long nProperty, long& nValue) {
    nValue = 0;
    Handled("GetItemProperty", [&] {
        const char* field = nullptr;
        switch (nProperty) {
            case grid::colBatchTrack: field = "Track_Batches"; break;
            case grid::colPriceOption: field = "Price_Option"; break;
            case grid::colTrackInventory: field = "Track_Inventory"; break;
            default: return;
        }
        auto& global = host_.global;
        nValue = static_cast<long>(global.ToNumber(global.LookupValue(
            global.GetConnection(),
            std::string("SELECT ") + field + " FROM Items, ItemCategories WHERE Product_Code = N'" +
                global.EscapeQuotes(szItemCode) + "' AND ItemCategories.CategoryID = Items.CategoryID")));
    });
}

}  // namespace screen
