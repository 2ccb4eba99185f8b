// The load-time schemes of received purchase orders, offered each item row as the
// grid is filled: type 17 gives more of the same item, type 18 another item named
// by the slab. Free rows are written straight below the grid's last row; there is
// no free item dialog, no batch and no check of the cells.
#include "grid/row_model/grid_columns.h"
#include "platform/convert.h"
#include "screen/procedure_results.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

using namespace grid;
using platform::adtype::Date;
using platform::adtype::Double;
using platform::adtype::Integer;
using platform::adtype::VarChar;

namespace {
constexpr long kSameItemFree = 17;
constexpr long kOtherItemFree = 18;
// The scheme record of sp_get_schemeIDDispatch_MUOM's second result.
enum SchemeField { kSchemeID = 0, kSchemeType = 2, kShowPrompt = 3, kPromptMessage = 4 };
// The slab record of sp_get_SchemeItemsDetail_MUOM; the scheme is read by name.
enum SlabField { kSlabStart = 1, kSlabEnd = 2, kFreeQty = 3, kFreeItem = 4 };
}  // namespace

void Zuro_frmDispatch_Dispatch::FindSchemes(const std::string& szItemCode, double nQuantity, platform::Date DServerDate,
                                            long& nRow) {
    Handled("FindSchemes", [&] {
        auto& global = host_.global;
        auto& grid = DTFlexDispatch;
        auto rsSchemes = global.NextRecordset(
            global.RunProcedure("sp_get_schemeIDDispatch_MUOM", {{platform::Value(szItemCode), VarChar},
                                                                 {platform::Value(DServerDate), Date},
                                                                 {platform::Value(nQuantity), Double},
                                                                 {platform::Value(kSameItemFree), Integer},
                                                                 {platform::Value(kOtherItemFree), Integer},
                                                                 {platform::Value(szCustomerCode), VarChar}}));
        if (!HasRecordset(rsSchemes) || rsSchemes->FieldCount() == 0 || rsSchemes->Eof()) return;

        long nSchemeID = 0, nSchemeType = 0;
        std::string szPrompt;
        if (global.ToNumber(rsSchemes->Fields(0)) == 1) {
            if (!rsSchemes->NextRecordset() || rsSchemes->Eof()) return;
            const int nLast = grid.GridRows();
            if (grid.IsBlankRow(nLast)) grid.SetGridRows(nLast - 1);
            const bool bChosen = host_.tools.SelectScheme(rsSchemes, nSchemeID, nSchemeType, szPrompt, szItemCode);
            if (!bChosen || nSchemeID == 0) {
                grid.RefreshGrid();
                grid.SetGridRow(static_cast<int>(nRow));
                nRow = grid.GridRows();
                return;
            }
        } else {
            rsSchemes->NextRecordset();
            nSchemeID = platform::CInt(global.ToNumber(rsSchemes->Fields(kSchemeID)));
            nSchemeType = platform::CLng(global.ToNumber(rsSchemes->Fields(kSchemeType)));
            if (global.ToNumber(rsSchemes->Fields(kShowPrompt)) == 1)
                szPrompt = global.ToText(rsSchemes->Fields(kPromptMessage));
        }

        const int nAt = static_cast<int>(nRow);
        grid.SetCell(nAt, colPrevQty,
                     platform::NumberToText(global.ToNumber(platform::Value(grid.GetCell(nAt, colQuantity)))));
        const long nHasSlabs = platform::CLng(global.ToNumber(global.LookupValue(
            global.GetConnection(),
            "SELECT ISNULL(HasSlabs, 0) FROM Schemes WHERE SchemeID = " + std::to_string(nSchemeID))));

        auto rsSlab = global.NextRecordset(global.RunProcedure(
            "sp_get_SchemeItemsDetail_MUOM",
            {{platform::Value(nSchemeID), Integer}, {platform::Value(grid.GetCell(nAt, colItemCode)), VarChar}}));
        if (HasRecordset(rsSlab) && !rsSlab->Eof()) {
            AssignScheme(nSchemeType, grid, nRow, *rsSlab, szPrompt, nQuantity, nHasSlabs);
            nRow = grid.GridRows();
            grid.RefreshGrid();
        }
    });
}

void Zuro_frmDispatch_Dispatch::AssignScheme(long nSchemeType, platform::DTFlex& DTFlexProducts, long nRowIndex,
                                             platform::Recordset& rsSlab, const std::string& szPromptMssg, double nQty,
                                             long nHasSlabs) {
    Handled("AssignScheme", [&] {
        auto& global = host_.global;
        auto& grid = DTFlexProducts;
        const int nPrimary = static_cast<int>(nRowIndex);
        if (nSchemeType == kSameItemFree || nSchemeType == kOtherItemFree) {
            std::string szSerials;
            for (; !rsSlab.Eof(); rsSlab.MoveNext()) {
                const double Q = nQty;
                const double dStart = global.ToNumber(rsSlab.Fields(kSlabStart));
                const bool bMet =
                    (Q >= dStart && Q <= global.ToNumber(rsSlab.Fields(kSlabEnd))) || (nHasSlabs == 0 && Q >= dStart);
                if (!bMet) continue;

                if (!grid.IsBlankRow(grid.GridRows())) grid.SetGridRows(grid.GridRows() + 1);
                long nFree = grid.GridRows();
                const int nAt = static_cast<int>(nFree);
                std::int16_t iResetAll = 0, bToSet = 0;
                Add_Unique_Serial(nFree, iResetAll, bToSet);
                grid.SetCell(nAt, colItemCheck, grid.GetCell(nPrimary, colSerialNo));
                grid.SetCell(nAt, colFreeRow, "1");
                grid.SetCell(nAt, 0, platform::NumberToText(grid.GridRows()));
                grid.SetCell(nAt, colFreeItem, "1");

                if (nSchemeType == kOtherItemFree) {
                    const std::string szFreeItem = global.ToText(rsSlab.Fields(kFreeItem));
                    grid.SetCell(nAt, colItemCode, szFreeItem);
                    grid.SetCell(nAt, colItemName,
                                 global.LookupName("Items", "Product_Code", "ProductName", szFreeItem));
                } else {
                    grid.SetCell(nAt, colItemCode, grid.GetCell(nPrimary, colItemCode));
                    grid.SetCell(nAt, colItemName, grid.GetCell(nPrimary, colItemName));
                }
                // A second scheme on the row takes the place of the first.
                const std::string szScheme = global.ToText(rsSlab.Fields("SchemeID"));
                grid.SetCell(nPrimary, colSchemeID, szScheme);
                grid.SetCell(nAt, colSchemeID, szScheme);

                double F = global.ToNumber(rsSlab.Fields(kFreeQty));
                if (nHasSlabs == 0) F = platform::Fix(platform::Fix(Q / dStart) * F);

                const std::string szItem = grid.GetCell(nAt, colItemCode);
                long nUOM = platform::CLng(global.ToNumber(global.LookupValue(
                    global.GetConnection(), "Select UOM From Items Where Product_Code = N'" + szItem + "'")));
                const std::string szUOMDesc = global.GetUOMDescription(szItem, nUOM);
                F = F / global.ConvertToBaseUOM(szItem, nUOM);

                grid.SetCell(nAt, colUOMID, platform::NumberToText(nUOM));
                grid.SetCell(nAt, colUOMDesc, szUOMDesc);
                grid.SetCell(nAt, colUOM, szUOMDesc);
                grid.SetCell(nAt, colQuantity, platform::NumberToText(F));
                grid.SetCell(nAt, colSalePrice, "0");
                for (int nProperty : {colBatchTrack, colPriceOption, colTrackInventory}) {
                    long nValue = 0;
                    GetItemProperty(szItem, nProperty, nValue);
                    grid.SetCell(nAt, nProperty, platform::NumberToText(nValue));
                }
                grid.SetCell(nAt, colPrimaryItemCode, grid.GetCell(nPrimary, colItemCode));
                if (nSchemeType == kSameItemFree) grid.SetCell(nPrimary, colPromptMessage, szPromptMssg);
                szSerials += grid.GetCell(nAt, colSerialNo) + ",";
            }

            long nLast = grid.GridRows();
            std::int16_t iResetAll = 0, bToSet = 0;
            Add_Unique_Serial(nLast, iResetAll, bToSet);
            // Of several free rows of the same item, the primary row names the last alone.
            if (nSchemeType == kOtherItemFree) {
                if (!szSerials.empty()) szSerials.pop_back();
                grid.SetCell(nPrimary, colItemCheck, szSerials);
            } else {
                grid.SetCell(nPrimary, colItemCheck, grid.GetCell(grid.GridRows(), colSerialNo));
            }
        }
        grid.SetCell(nPrimary, colPromptMessage, szPromptMssg);
    });
}

}  // namespace screen
