// One operation on every row a list of serials names. The walk merges the sorted
// list against the grid, which relies on serials rising down the grid: a row that
// stands out of order is passed over and its serial is not found.
#include "grid/row_model/grid_columns.h"
#include "platform/convert.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

namespace {
constexpr long kRemoveFreeRows = 1;
constexpr long kSumQuantities = 2;
constexpr long kListRowNumbers = 4;

double CellNumber(const platform::DTFlex& flex, int row, int col) {
    return platform::ToNumber(platform::Value(flex.GetCell(row, col)));
}
}  // namespace

platform::Value Zuro_frmDispatch_Dispatch::DoRowOperation(long lOperation, const std::string& szRows,
                                                          platform::DTFlex& DTFlexProducts) {
    platform::Value vResult;
    if (szRows.empty()) return vResult;
    platform::RunHandled(host_.global, "Invoice : DoRowOperation : ", [&] {
        // The result is kept current row by row, so that an error leaves it as it stood.
        double dSum = 0;
        std::string szRowNumbers;
        if (lOperation == kRemoveFreeRows) vResult = platform::Value(false);
        if (lOperation == kSumQuantities) vResult = platform::Value(0.0);
        if (lOperation == kListRowNumbers) vResult = platform::Value(std::string());

        std::string szList = platform::Trim(szRows);
        if (!szList.empty() && szList.front() == ',') szList.erase(0, 1);
        const std::vector<std::string> vSerials = platform::Split(GetSerialInAscOrder(szList), ",");

        std::size_t i = 0;
        int nRow = 1;
        while (nRow <= DTFlexProducts.GridRows() && i < vSerials.size()) {
            const double dSerial = CellNumber(DTFlexProducts, nRow, grid::colSerialNo);
            const double dWanted = platform::Val(vSerials[i]);
            if (dSerial > dWanted) {
                ++i;
                continue;
            }
            if (dSerial < dWanted) {
                ++nRow;
                continue;
            }
            switch (lOperation) {
                case kRemoveFreeRows:
                    if (CellNumber(DTFlexProducts, nRow, grid::colFreeItem) == 1) {
                        DTFlexProducts.RemoveRow(nRow);
                        --nRow;
                        vResult = platform::Value(true);
                    }
                    break;
                case kSumQuantities: {
                    const std::string szQuantity = DTFlexProducts.GetCell(nRow, grid::colQuantity);
                    if (CellNumber(DTFlexProducts, nRow, grid::colUOMID) == 0)
                        dSum += host_.global.ConvertToDisplayUOM(DTFlexProducts.GetCell(nRow, grid::colItemCode),
                                                                 szQuantity);
                    else
                        dSum += platform::ToNumber(platform::Value(szQuantity));
                    vResult = platform::Value(dSum);
                    break;
                }
                case kListRowNumbers:
                    szRowNumbers += platform::NumberToText(nRow) + ",";
                    vResult = platform::Value(szRowNumbers.substr(0, szRowNumbers.size() - 1));
                    break;
                default: break;
            }
            ++i;
            ++nRow;
        }
    });
    return vResult;
}

}  // namespace screen
