// The SKU schemes' view of the note: each item's totals over its lines, the lines
// that count, and undoing an item's free rows so that it can be worked out again.
#include <unordered_map>

#include "grid/row_model/grid_columns.h"
#include "platform/convert.h"
#include "schemes/scheme_grid.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

using namespace grid;
using schemes::CellNumber;
using schemes::LineCount;

namespace {
enum SkuField { kItem = 0, kQuantity = 1, kAmount = 2, kSerials = 3, kRows = 4, kSkuFields = 5 };
constexpr long kRemoveFreeRows = 1;

// What a scheme left on a primary row, back to a row no scheme touched.
void ClearSkuCells(platform::DTFlex& grid, int nRow) {
    grid.SetCell(nRow, colSchemeID, "0");
    grid.SetCell(nRow, colPromptMessage, "");
    grid.SetCell(nRow, colMultiSchemeDetail, "");
    grid.SetCell(nRow, colFreeItmIgnored, "0");
    grid.SetCell(nRow, colItemCheck, "");
}

// The number before the first comma of a list.
long FirstOfList(const std::string& szList) {
    return platform::CLng(platform::Val(szList.substr(0, szList.find(','))));
}
}  // namespace

// Per item, in the order the items first appear: base quantity, amount, and the
// serials and row numbers of its lines. Free rows and lines on free batches are
// left out.
Zuro_frmDispatch_Dispatch::SkuArray Zuro_frmDispatch_Dispatch::PopulateItemArray(long& nCount) {
    SkuArray arrItems;
    nCount = 0;
    platform::RunHandled(host_.global, "Invoice : PopulateItemArray - ", [&] {
        auto& global = host_.global;
        auto& grid = DTFlexDispatch;
        const int nRows = LineCount(grid);
        arrItems.reserve(static_cast<std::size_t>(std::max(nRows, 0)));
        // The items so far by their trimmed code, so that a long note does not search
        // its list for every line.
        std::unordered_map<std::string, std::size_t> mapIndex;
        for (int nRow = 1; nRow <= nRows; ++nRow) {
            if (CellNumber(grid, nRow, colFreeRow) != 0 || CellNumber(grid, nRow, colFreeItem) != 0) continue;
            const std::string szItem = grid.GetCell(nRow, colItemCode);
            const std::string szQuantity = grid.GetCell(nRow, colQuantity);
            const double dQuantity = global.ToNumber(szQuantity);
            const double dAmount = CellNumber(grid, nRow, colSalePrice) * dQuantity;
            const long nUOM = platform::CLng(CellNumber(grid, nRow, colUOMID));
            const double dBase = nUOM != 0 ? dQuantity * global.ConvertToBaseUOM(szItem, nUOM)
                                           : global.ConvertToDisplayUOM(szItem, szQuantity);
            const double dSerial = CellNumber(grid, nRow, colSerialNo);

            const auto [found, bNew] = mapIndex.try_emplace(platform::Trim(szItem), arrItems.size());
            if (bNew) {
                arrItems.push_back({platform::Value(szItem), platform::Value(dBase), platform::Value(dAmount),
                                    platform::Value(dSerial), platform::Value(static_cast<double>(nRow))});
                ++nCount;
                continue;
            }
            auto& item = arrItems[found->second];
            item[kQuantity] = platform::Value(platform::ToNumber(item[kQuantity]) + dBase);
            item[kAmount] = platform::Value(platform::ToNumber(item[kAmount]) + dAmount);
            item[kSerials] = platform::Value(platform::ToText(item[kSerials]) + "," + platform::NumberToText(dSerial));
            item[kRows] = platform::Value(platform::ToText(item[kRows]) + "," + platform::NumberToText(nRow));
        }
    });
    return arrItems;
}

// The lines that are not free: what the scheme button compares between its runs.
long Zuro_frmDispatch_Dispatch::GetGridRowCnt() {
    long nCount = 0;
    platform::RunHandled(host_.global, "Invoice : GetGridRowCnt - ", [&] {
        auto& grid = DTFlexDispatch;
        const int nRows = LineCount(grid);
        for (int nRow = 1; nRow <= nRows; ++nRow)
            if (CellNumber(grid, nRow, colFreeItem) == 0 && CellNumber(grid, nRow, colFreeRow) != 1) ++nCount;
    });
    return nCount;
}

// Every free row goes, whichever scheme gave it, and every line forgets its item
// schemes. The special category links that still point at the removed rows are
// rebuilt by the pass that always follows.
void Zuro_frmDispatch_Dispatch::RevertAllSkuSchemes(const SkuArray& /*arrUnused*/) {
    platform::RunHandled(host_.global, "Invoice : RevertAllSkuSchemes - ", [&] {
        auto& grid = DTFlexDispatch;
        for (int nRow = LineCount(grid); nRow >= 1; --nRow) {
            if (CellNumber(grid, nRow, colFreeItem) == 1)
                grid.RemoveRow(nRow);
            else
                ClearSkuCells(grid, nRow);
        }
    });
}

bool Zuro_frmDispatch_Dispatch::ApplyShemesForAllSKU() {
    bool bApplied = false;
    platform::RunHandled(host_.global, "Invoice : ApplyShemesForAllSKU - ", [&] {
        arrPrevSKU = PopulateItemArray(nPrevSKUCount);
        for (long i = 0; i < nPrevSKUCount; ++i) {
            const auto& item = arrPrevSKU[static_cast<std::size_t>(i)];
            if (!FindSKUSchemes(platform::ToText(item[kItem]), platform::ToNumber(item[kQuantity]),
                                platform::ToNumber(item[kAmount]), platform::ToText(item[kSerials]),
                                platform::ToText(item[kRows]), ""))
                return;
        }
        bApplied = true;
    });
    return bApplied;
}

// The item's free rows are those its first line points to: every line of the item
// carries the same list. A line standing last in a grid without a blank row keeps
// its marks; after the removals the list may point past the end.
void Zuro_frmDispatch_Dispatch::ReverSKUScheme(const std::string& /*szItemCode*/, const std::string& szRows) {
    platform::RunHandled(host_.global, "Invoice  - ReverSKUScheme - ", [&] {
        auto& grid = DTFlexDispatch;
        if (!szRows.empty()) {
            const std::string szFreeSerials = grid.GetCell(static_cast<int>(FirstOfList(szRows)), colItemCheck);
            DoRowOperation(kRemoveFreeRows, szFreeSerials, grid);
        }
        for (const auto& szRow : platform::Split(szRows, ",")) {
            const int nRow = static_cast<int>(platform::Val(szRow));
            if (nRow < grid.GridRows() && !grid.IsBlankRow(nRow)) ClearSkuCells(grid, nRow);
        }
    });
}

// False when a free row the item's first line points to has gone: the user deleted it.
bool Zuro_frmDispatch_Dispatch::FreeItemExits(const std::string& /*szItemCode*/, const std::string& szRows) {
    bool bAllThere = false;
    platform::RunHandled(host_.global, "Invoice : FreeItemExits - ", [&] {
        std::string szList;
        if (!szRows.empty()) szList = DTFlexDispatch.GetCell(static_cast<int>(FirstOfList(szRows)), colItemCheck);
        if (szList.empty()) {
            bAllThere = true;
            return;
        }
        if (szList.front() == ',') szList.erase(0, 1);
        bAllThere = true;
        for (const auto& szSerial : platform::Split(szList, ",")) {
            const double dSerial = platform::ToNumber(platform::Value(szSerial));
            if (dSerial > 0 && getRowNumber(platform::CLng(dSerial)) == 0) {
                bAllThere = false;
                return;
            }
        }
    });
    return bAllThere;
}

}  // namespace screen
