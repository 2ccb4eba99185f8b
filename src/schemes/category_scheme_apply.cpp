// A special category scheme's free rows: one for each free item, shared by every
// line of the scheme's items, each line linked to all of them by serial. Unlike the
// item schemes' free row, this one carries no link back in colItemCheck, which is
// how the clearing of this pass tells its rows from the others.
#include "grid/row_model/grid_columns.h"
#include "platform/convert.h"
#include "platform/key_codes.h"
#include "schemes/scheme_records.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

using namespace grid;

namespace {
using schemes::kFreeItemScheme;
constexpr char kFreeItemSeparator = '\x0f';

std::string CutTrailingComma(std::string szList) {
    if (!szList.empty() && szList.back() == ',') szList.pop_back();
    return szList;
}
}  // namespace

void Zuro_frmDispatch_Dispatch::ApplySpecialCategoryScheme(
    std::vector<std::string>& vSplit1, std::vector<std::string>& vFreeItems, long& nSchemeID, double& nTotQty,
    double& nUOM1Qty, double& nUOM2Qty, double& nTotAmount, long& nQtyOrValueSlab, double& nFactor, long& nSchemeType,
    double& /*dDiscountAmount*/, platform::DTFlex& DTFlexProducts, long& nSlabID, double& /*nApplicableQty*/) {
    platform::RunHandled(host_.global, "Invoice : ApplySpecialCategoryScheme : ", [&] {
        auto& global = host_.global;
        auto& grid = DTFlexProducts;
        auto number = [&](int nRow, int nCol) { return global.ToNumber(grid.GetCell(nRow, nCol)); };

        // A blank row to write into, even for a scheme that gives nothing.
        if (!grid.IsBlankRow(grid.GridRows())) grid.SetGridRows(grid.GridRows() + 1);
        if (nSchemeType != kFreeItemScheme) return;
        int nFreeRow = grid.GridRows();

        std::string szPrimaryRows, szPrimarySerial;
        for (const auto& szItem : vSplit1) {
            const std::string szWanted = platform::UCase(szItem);
            for (int nRow = 1; nRow <= nFreeRow; ++nRow) {
                if (platform::UCase(grid.GetCell(nRow, colItemCode)) != szWanted) continue;
                if (number(nRow, colFreeRow) == 1 || number(nRow, colFreeItem) == 1) continue;
                szPrimaryRows += std::to_string(nRow) + ",";
                szPrimarySerial += grid.GetCell(nRow, colSerialNo) + ",";
            }
        }
        szPrimaryRows = CutTrailingComma(szPrimaryRows);
        szPrimarySerial = CutTrailingComma(szPrimarySerial);

        if (objItemList) objItemList->SetEnabled(true);
        std::string szNewSerials;
        for (const auto& szFree : vFreeItems) {
            const auto vParts = platform::Split(szFree, std::string(1, kFreeItemSeparator));
            double dFreeQty = platform::Val(vParts.empty() ? "" : vParts[0]);
            const std::string szFreeCode = vParts.size() > 1 ? vParts[1] : "";
            if (nFactor != 0) {
                switch (nQtyOrValueSlab) {
                    case 1: dFreeQty *= getQuotient(nTotQty, nFactor); break;
                    case 2: dFreeQty *= getQuotient(nUOM1Qty, nFactor); break;
                    case 3: dFreeQty *= getQuotient(nUOM2Qty, nFactor); break;
                    case 4: dFreeQty *= getQuotient(nTotAmount, nFactor); break;
                    default: break;
                }
            }
            // The rows made so far stay; the lines are not linked to them.
            if (dFreeQty <= 0) return;

            grid.SetCell(nFreeRow, 0, std::to_string(nFreeRow));
            grid.SetCell(nFreeRow, colFreeItem, "1");
            grid.SetCell(nFreeRow, colItemCode, szFreeCode);
            grid.SetCell(nFreeRow, colItemName, global.LookupName("Items", "Product_Code", "ProductName", szFreeCode));
            fUOMRate = 1;
            long nUOM = 0;
            const std::string szDescription = global.GetUOMDescription(szFreeCode, nUOM);
            dFreeQty /= global.ConvertToBaseUOM(szFreeCode, nUOM);

            grid.SetCell(nFreeRow, colUOMID, std::to_string(nUOM));
            grid.SetCell(nFreeRow, colUOM, szDescription);
            grid.SetCell(nFreeRow, colQuantity, platform::NumberToText(dFreeQty));
            grid.SetCell(nFreeRow, colFreeRow, "1");
            grid.SetCell(nFreeRow, colSalePrice, "0");
            WriteItemPropertyCells(nFreeRow, szFreeCode);
            grid.SetCell(nFreeRow, colSplCatSchemeID, std::to_string(nSchemeID));
            grid.SetCell(nFreeRow, colSplCatSchemeIndicator, std::to_string(nSchemeType));
            grid.SetCell(nFreeRow, colSplCategoryScheme, "1");
            grid.SetCell(nFreeRow, colSplCatSerial, szPrimarySerial);
            grid.SetCell(nFreeRow, colMultiSpecialCatSchemeDetail, MultiSpecialCatSchemeDetail(nSchemeID, nSlabID));

            long nSerialRow = nFreeRow;
            std::int16_t iResetAll = 0, bToSet = 0;
            Add_Unique_Serial(nSerialRow, iResetAll, bToSet);
            // The quantity goes through the quantity step like a typed one, which
            // allocates its batches.
            bool bCancel = false;
            DTFlexDispatch_AfterColUpdate(nFreeRow, colQuantity, bCancel);
            grid.SetGridRow(nFreeRow);
            grid.SetGridCol(colQuantity);
            int nKey = platform::keys::Enter;
            DTFlexDispatch_KeyCode(nKey, 0);

            szNewSerials += grid.GetCell(nFreeRow, colSerialNo) + ",";
            ++nFreeRow;
            grid.SetGridRows(grid.GridRows() + 1);
            grid.SetCell(grid.GridRows(), 0, std::to_string(nFreeRow));
        }
        szNewSerials = CutTrailingComma(szNewSerials);

        // The oldest scheme stands first in colSplCatSchemeID, the newest free rows
        // first in colSplCatSerial.
        for (const auto& szRow : platform::Split(szPrimaryRows, ",")) {
            const int nRow = static_cast<int>(platform::Val(szRow));
            const std::string szSchemes = grid.GetCell(nRow, colSplCatSchemeID);
            grid.SetCell(nRow, colSplCatSchemeID,
                         szSchemes.empty() ? std::to_string(nSchemeID) : szSchemes + "," + std::to_string(nSchemeID));
            grid.SetCell(nRow, colSplCatSchemeIndicator, std::to_string(nSchemeType));
            grid.SetCell(nRow, colSplCatSerial, szNewSerials + "," + grid.GetCell(nRow, colSplCatSerial));
            grid.SetCell(nRow, colSplCategoryScheme, "1");
        }
        bSplCatApplied = true;
        bSplCatReverted = false;
        if (objItemList) objItemList->SetEnabled(false);
    });
}

}  // namespace screen
