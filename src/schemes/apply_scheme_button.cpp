// The scheme button: the SKU schemes of every item whose totals changed since the
// last run (all of them the first time, or when the lines, the customer or the date
// changed), then, when anything changed, the special category schemes from nothing.
// A run that finds nothing changed writes nothing and asks nothing.
#include "grid/row_model/grid_columns.h"
#include "platform/convert.h"
#include "schemes/scheme_grid.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

using namespace grid;
using schemes::CellNumber;
using schemes::LineCount;

namespace {
enum SkuField { kItem = 0, kQuantity = 1, kAmount = 2, kSerials = 3, kRows = 4 };

std::string Text(const Zuro_frmDispatch_Dispatch::SkuArray& arr, long i, SkuField field) {
    return platform::ToText(arr[static_cast<std::size_t>(i)][field]);
}
double Number(const Zuro_frmDispatch_Dispatch::SkuArray& arr, long i, SkuField field) {
    return platform::ToNumber(arr[static_cast<std::size_t>(i)][field]);
}

// The same item with the same totals on the same lines; the order of the lines in
// the lists does not count.
bool SameItem(const Zuro_frmDispatch_Dispatch::SkuArray& now, const Zuro_frmDispatch_Dispatch::SkuArray& before,
              long i) {
    using Form = Zuro_frmDispatch_Dispatch;
    return Number(now, i, kQuantity) == Number(before, i, kQuantity) &&
           Number(now, i, kAmount) == Number(before, i, kAmount) && Text(now, i, kItem) == Text(before, i, kItem) &&
           Form::GetSerialInAscOrder(Text(now, i, kSerials)) == Form::GetSerialInAscOrder(Text(before, i, kSerials)) &&
           Form::GetSerialInAscOrder(Text(now, i, kRows)) == Form::GetSerialInAscOrder(Text(before, i, kRows));
}
}  // namespace

void Zuro_frmDispatch_Dispatch::cmdApplyScheme_Click() {
    platform::RunHandled(host_.global, "Invoice : cmdApplyScheme_Click - ", [&] {
        auto& global = host_.global;
        auto& grid = DTFlexDispatch;
        bool bChanged = false;
        if (LineCount(grid) == 0) return;

        auto storeCustomerAndDate = [&] {
            szSchemeCustomer = txtCustomer.Tag;
            dtSchemeDate = DTDispatchDate.Value;
        };
        // The SKU pass rerun for one item: its old free rows go, its new ones come.
        auto rerunItem = [&](long i) {
            ReverSKUScheme(Text(arrPrevSKU, i, kItem), Text(arrPrevSKU, i, kRows));
            return FindSKUSchemes(Text(arrCurrSKU, i, kItem), Number(arrCurrSKU, i, kQuantity),
                                  Number(arrCurrSKU, i, kAmount), Text(arrCurrSKU, i, kSerials),
                                  Text(arrCurrSKU, i, kRows), "");
        };

        if (arrPrevSKU.empty() || nPrevSKUCount == 0) {
            nPrimaryRowCount = GetGridRowCnt();
            storeCustomerAndDate();
            bChanged = true;
            if (!ApplyShemesForAllSKU()) {
                global.SetFocusTo(cmdApplyScheme);
                return;
            }
        } else {
            // Lines added or removed: every item afresh.
            nCurrPrimaryRowCount = GetGridRowCnt();
            if (nCurrPrimaryRowCount != nPrimaryRowCount) {
                storeCustomerAndDate();
                RevertAllSkuSchemes(arrPrevSKU);
                bChanged = true;
                if (!ApplyShemesForAllSKU()) {
                    global.SetFocusTo(cmdApplyScheme);
                    return;
                }
                nPrimaryRowCount = nCurrPrimaryRowCount;
            }

            // Another customer or another day: every item afresh, whatever comes of it.
            const std::string szDateFormat = global.GetDateFormat();
            if (platform::Trim(szSchemeCustomer) != platform::Trim(txtCustomer.Tag) ||
                platform::Format(platform::Value(dtSchemeDate), szDateFormat) !=
                    platform::Format(platform::Value(DTDispatchDate.Value), szDateFormat)) {
                RevertAllSkuSchemes(arrPrevSKU);
                ApplyShemesForAllSKU();
                storeCustomerAndDate();
                bChanged = true;
            }

            arrCurrSKU = PopulateItemArray(nCurrSKUCount);
            if (nCurrSKUCount != nPrevSKUCount) {
                RevertAllSkuSchemes(arrPrevSKU);
                if (!ApplyShemesForAllSKU()) {
                    global.SetFocusTo(cmdApplyScheme);
                    return;
                }
                bChanged = true;
            } else {
                for (long i = 0; i < nCurrSKUCount; ++i) {
                    if (!SameItem(arrCurrSKU, arrPrevSKU, i)) {
                        if (!rerunItem(i)) return;
                        bFlushRow = true;
                        bChanged = true;
                    } else if (!FreeItemExits(Text(arrPrevSKU, i, kItem), Text(arrPrevSKU, i, kRows))) {
                        // The user deleted one of the item's free rows.
                        if (!rerunItem(i)) return;
                        bChanged = true;
                    }
                }
            }

            arrPrevSKU = arrCurrSKU;
            nPrevSKUCount = nCurrSKUCount;

            // The item that failed last time, and every item after it, once more.
            if (!szFailedSKU.empty()) {
                long nFrom = 0;
                for (long i = 0; i < nPrevSKUCount; ++i)
                    if (Text(arrPrevSKU, i, kItem) == szFailedSKU) {
                        nFrom = i;
                        break;
                    }
                for (long i = nFrom; i < nPrevSKUCount; ++i) {
                    bChanged = true;
                    if (!rerunItem(i)) return;
                }
            }
        }

        bool bMissing = false;
        bSplCatFreeMissing = SplCatFreeItemDeleted(bMissing);
        if (bChanged || bSplCatRefused || bSplCatFreeMissing) {
            ClearDispatchFreeItemSch();
            RevertAllSpecialCatScheme(grid);
            bool bAllApplied = false;
            if (!FindSpecialCategoryScheme(grid, bAllApplied)) {
                global.SetFocusTo(cmdSave);
                return;
            }
        }

        bSchemesApplied = true;

        bool bAnyScheme = false;
        const int nRows = LineCount(grid);
        for (int nRow = 1; nRow <= nRows && !bAnyScheme; ++nRow)
            bAnyScheme = CellNumber(grid, nRow, colSchemeID) != 0 || CellNumber(grid, nRow, colSplCatSchemeID) != 0;
        if (!bAnyScheme) global.ShowStatus("Schemes not available", 0);

        if (nMode == mode::FromSalesConfirmation || nMode == mode::NewDispatch || nMode == mode::Amendment)
            global.SetFocusTo(cmdSave);
    });
}

}  // namespace screen
