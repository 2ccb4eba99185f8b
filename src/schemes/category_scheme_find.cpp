// Special category schemes: a scheme defined on a group of items, judged on the
// totals of all the note's lines of those items, its free goods shared by all of
// them. Each scheme the customer has on the day is tried in turn; a free item that
// cannot be had stops the pass, leaving the schemes before it applied.
#include <optional>
#include <utility>

#include "grid/row_model/grid_columns.h"
#include "platform/convert.h"
#include "schemes/scheme_grid.h"
#include "schemes/scheme_records.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

using namespace grid;
using platform::adtype::Date;
using platform::adtype::Double;
using platform::adtype::Integer;
using platform::adtype::VarChar;

namespace {
using schemes::kFreeItemScheme;
// Positions of the slab record.
enum SlabField {
    kSchemeType = 0,
    kQtyOrValueSlab = 1,
    kFreeUnit = 4,
    kFactor = 5,
    kSlabID = 6,
    kFreeQty = 7,
    kDiscountAmount = 8
};
const std::string kFreeItemSeparator(1, '\x0f');

// What the lines of one scheme add up to.
struct SchemeTotals {
    double nTotQty = 0, nUOM1Qty = 0, nUOM2Qty = 0, nTotAmount = 0;
};
}  // namespace

bool Zuro_frmDispatch_Dispatch::FindSpecialCategoryScheme(platform::DTFlex& DTFlexProducts, bool& bResult) {
    bResult = false;
    platform::RunHandled(host_.global, " : FindSpecialCategoryScheme - ", [&] {
        auto& global = host_.global;
        auto& grid = DTFlexProducts;
        bSplCatRefused = false;
        const int nRows = schemes::LineCount(grid);

        auto rsSchemes = global.NextRecordset(
            nMode == mode::Amendment
                ? global.RunProcedure("Zuro_sp_FindSplCatSchemeID_New", {{platform::Value(dtOldDispatchDate), Date},
                                                                         {platform::Value(szCustomerCode), VarChar},
                                                                         {platform::Value(""), VarChar},
                                                                         {platform::Value(szOldCreationDate), VarChar}})
                : global.RunProcedure("Zuro_sp_FindSplCatSchemeID_New", {{platform::Value(DTDispatchDate.Value), Date},
                                                                         {platform::Value(szCustomerCode), VarChar}}));
        if (!rsSchemes || rsSchemes->Eof()) {
            bResult = true;
            return;
        }

        // The lines' trimmed upper-case codes, read once for every scheme and item.
        std::vector<std::string> vLineItems(static_cast<std::size_t>(nRows) + 1);
        for (int nRow = 1; nRow <= nRows; ++nRow)
            if (!schemes::IsSchemeMark(grid, nRow, colFreeItem) && !schemes::IsSchemeMark(grid, nRow, colFreeRow))
                vLineItems[static_cast<std::size_t>(nRow)] =
                    platform::UCase(platform::Trim(grid.GetCell(nRow, colItemCode)));

        // Once any scheme has met one of its items, later schemes count as met too.
        bool bFound = false;
        double nApplicable = 0;
        std::string szFreeItemText;
        for (; !rsSchemes->Eof(); rsSchemes->MoveNext()) {
            SchemeTotals totals;
            std::string szItemList, szCheck;
            long nSchemeID = platform::CLng(global.ToNumber(rsSchemes->Fields(0)));

            auto rsItems = global.NextRecordset(
                global.RunProcedure("Zuro_sp_GetSplCategoryItems_New", {{platform::Value(nSchemeID), Integer}}));
            for (; rsItems && !rsItems->Eof(); rsItems->MoveNext()) {
                const std::string szItem = global.ToText(rsItems->Fields(0));
                const std::string szWanted = platform::UCase(szItem);
                // The item's unit factors, looked up at its first line.
                std::optional<std::pair<double, double>> conversions;
                for (int nRow = 1; nRow <= nRows; ++nRow) {
                    if (vLineItems[static_cast<std::size_t>(nRow)].empty() ||
                        vLineItems[static_cast<std::size_t>(nRow)] != szWanted)
                        continue;
                    bFound = true;
                    const std::string szQuantity = grid.GetCell(nRow, colQuantity);
                    const long nUOM = platform::CLng(schemes::CellNumber(grid, nRow, colUOMID));
                    const double fQty = nUOM != 0 ? global.ToNumber(szQuantity) * global.ConvertToBaseUOM(szItem, nUOM)
                                                  : global.ConvertToDisplayUOM(szItem, szQuantity);
                    if (!conversions) {
                        auto lookup = [&](const char* column) {
                            return global.ToNumber(global.LookupValue(
                                global.GetConnection(), std::string("Select IsNull(") + column +
                                                            ",1) From Items Where Product_code =N'" + szItem + "'"));
                        };
                        conversions = std::pair{lookup("UOM1_Conversion"), lookup("UOM2_Conversion")};
                    }
                    totals.nTotQty += fQty;
                    totals.nUOM1Qty += fQty / conversions->first;
                    totals.nUOM2Qty += fQty / conversions->second;
                    totals.nTotAmount += global.ToNumber(szQuantity) * schemes::CellNumber(grid, nRow, colSalePrice);
                    szItemList += AddStringwithCheck(szItemList, szItem, "|");
                    szCheck += (szCheck.empty() ? "" : "|") + szItem + "," + platform::NumberToText(fQty) + "," +
                               platform::NumberToText(totals.nTotAmount);
                    // Each element carries its own line's value, so the value total
                    // handed to the slab look-up is always 0.
                    totals.nTotAmount = 0;
                }
            }
            if (rsItems) rsItems->Close();

            auto rsMinimum = global.NextRecordset(
                global.RunProcedure("Zuro_SP_isAllItemsexistsMinQty",
                                    {{platform::Value(nSchemeID), Integer}, {platform::Value(szCheck), VarChar}}));
            const bool bMinimumMet = rsMinimum && !rsMinimum->Eof() && global.ToNumber(rsMinimum->Fields(0)) == 1;
            if (rsMinimum) rsMinimum->Close();
            if (!bFound || !bMinimumMet) continue;

            auto rsSlab = global.NextRecordset(global.RunProcedure(
                "Zuro_sp_GetDispatch_SchSlabDetails",
                {{platform::Value(nSchemeID), Integer},
                 {platform::Value(totals.nTotQty), Double},
                 {platform::Value(totals.nUOM1Qty), Double},
                 {platform::Value(totals.nUOM2Qty), Double},
                 {platform::Value(totals.nTotAmount), Double},
                 {platform::Value(szCustomerCode), VarChar},
                 {platform::Value(static_cast<long>(global.ToNumber(rsSchemes->Fields(2)))), Integer}}));
            if (!rsSlab || rsSlab->Eof()) continue;

            std::vector<std::string> vSplit1 = platform::Split(global.GetSplitSource(szItemList), "|");
            long nSchemeType = platform::CLng(global.ToNumber(rsSlab->Fields(kSchemeType)));
            long nQtyOrValueSlab = 0, nSlabID = 0;
            double nFactor = 0, dDiscountAmount = 0;
            if (nSchemeType == kFreeItemScheme) {
                nQtyOrValueSlab = platform::CLng(global.ToNumber(rsSlab->Fields(kQtyOrValueSlab)));
                const std::int16_t nFreeUnit = platform::CInt(global.ToNumber(rsSlab->Fields(kFreeUnit)));
                nFactor = global.ToNumber(rsSlab->Fields(kFactor));
                nSlabID = platform::CLng(global.ToNumber(rsSlab->Fields(kSlabID)));
                double dFreeQty = global.ToNumber(rsSlab->Fields(kFreeQty));
                dDiscountAmount = global.ToNumber(rsSlab->Fields(kDiscountAmount));

                if (nFactor == 0) {
                    nApplicable = 1;
                } else {
                    switch (nQtyOrValueSlab) {
                        case 1: nApplicable = getQuotient(totals.nTotQty, nFactor); break;
                        case 2: nApplicable = getQuotient(totals.nUOM1Qty, nFactor); break;
                        case 3: nApplicable = getQuotient(totals.nUOM2Qty, nFactor); break;
                        case 4: nApplicable = getQuotient(totals.nTotAmount, nFactor); break;
                        default: break;  // the step the scheme before left stands
                    }
                }
                if (nApplicable == 0) {
                    rsSlab->Close();
                    continue;
                }

                auto refuse = [&] {
                    bSplCatRefused = true;
                    bResult = false;
                    rsSlab->Close();
                };
                if (chkFreeItemFound(nSchemeID, nSlabID) != 1) {
                    global.ShowStatus("Free SKU is not available/Selected. You cannot save this Dispatch.", 1);
                    refuse();
                    return;
                }
                std::string szFreeCode;
                if (!host_.tools.SelectFreeItem(nSchemeID, global.ToText(rsSchemes->Fields(1)), nSlabID, "",
                                                szFreeCode)) {
                    global.ShowStatus("Free Item Not selected", 1);
                    refuse();
                    return;
                }
                dFreeQty *= GetBaseUOMConv(szFreeCode, nFreeUnit);
                szFreeItemText = platform::NumberToText(dFreeQty) + kFreeItemSeparator + szFreeCode + ",";
            }

            rsSlab->Close();
            std::vector<std::string> vFreeItems = platform::Split(global.GetSplitSource(szFreeItemText), ",");
            ApplySpecialCategoryScheme(vSplit1, vFreeItems, nSchemeID, totals.nTotQty, totals.nUOM1Qty, totals.nUOM2Qty,
                                       totals.nTotAmount, nQtyOrValueSlab, nFactor, nSchemeType, dDiscountAmount, grid,
                                       nSlabID, nApplicable);
        }
        rsSchemes->Close();
        bResult = true;
    });
    return bResult;
}

}  // namespace screen
