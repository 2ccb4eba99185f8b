// What the scheme generations share of the grid: the detail strings of the free
// rows, the list builder without duplicates, the free-goods check, undoing a row's
// schemes, and the document's memory of the last scheme run.
#include "grid/row_model/grid_columns.h"
#include "platform/convert.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

using namespace grid;

namespace {
constexpr const char* kDetailTail = "|0|0";

std::string WholeNumberText(long n) { return std::to_string(n); }
}  // namespace

std::string Zuro_frmDispatch_Dispatch::MultiSchemeDetail(long nSchemeID, long nSlabID) {
    return WholeNumberText(nSchemeID) + "|" + WholeNumberText(nSlabID) + kDetailTail;
}

// The special category string has always held its scheme as a 16-bit integer.
std::string Zuro_frmDispatch_Dispatch::MultiSpecialCatSchemeDetail(long nSchemeID, long nSlabID) {
    const std::int16_t nNarrowed = platform::CInt(static_cast<double>(nSchemeID));
    return WholeNumberText(nNarrowed) + "|" + WholeNumberText(nSlabID) + kDetailTail;
}

// 1, and only 1, means the slab's free goods can be had.
long Zuro_frmDispatch_Dispatch::chkFreeItemFound(long nSchID, long nSlab) {
    long nFound = 0;
    platform::RunHandled(host_.global, "Dispatch : chkFreeItemFound - ", [&] {
        auto& global = host_.global;
        auto recordset =
            global.RunProcedure("Zuro_SP_ListFreeSKUCount", {{platform::Value(nSchID), platform::adtype::Integer},
                                                             {platform::Value(nSlab), platform::adtype::Integer}});
        recordset = global.NextRecordset(recordset);
        // No result at all counts as an empty one.
        if (!recordset) return;
        if (!recordset->Eof()) nFound = platform::CLng(global.ToNumber(recordset->Fields(0)));
        recordset->Close();
    });
    return nFound;
}

// What to append to a "|" list so that szAddString is in it once: the text and a
// "|", or nothing when the list (cut on szDelimit) already holds it in any case.
std::string Zuro_frmDispatch_Dispatch::AddStringwithCheck(const std::string& szString, const std::string& szAddString,
                                                          const std::string& szDelimit) {
    std::string szResult;
    platform::RunHandled(host_.global, "Invoice : AddStringwithCheck : ", [&] {
        const std::string szWanted = platform::UCase(szAddString);
        for (const auto& szElement : platform::Split(host_.global.GetSplitSource(szString), szDelimit))
            if (platform::UCase(szElement) == szWanted) return;
        szResult = szAddString + "|";
    });
    return szResult;
}

// Undoes the schemes a row earned: the special category free rows it takes part in
// and, when the row goes, its own free rows.
void Zuro_frmDispatch_Dispatch::CheckScheme(long nRow, bool isRowDeleted, platform::DTFlex& DTFlexProducts) {
    platform::RunHandled(host_.global, "Invoice : CheckScheme : - ", [&] {
        bSplCatApplied = false;
        if (nRow < 1 || nRow > DTFlexProducts.GridRows()) return;
        const int nAt = static_cast<int>(nRow);
        if (DTFlexProducts.IsBlankRow(nAt)) return;

        std::string szSerials;
        if (host_.global.ToNumber(DTFlexProducts.GetCell(nAt, colSplCategoryScheme)) != 0) {
            szSerials = DTFlexProducts.GetCell(nAt, colSplCatSerial);
            DTFlexProducts.SetCell(nAt, colSplCatSerial, "");
        }
        const std::string szOwnFree = DTFlexProducts.GetCell(nAt, colItemCheck);
        if (!szOwnFree.empty() && isRowDeleted) {
            szSerials += (szSerials.empty() ? "" : ",") + szOwnFree;
            DTFlexProducts.SetCell(nAt, colItemCheck, "");
        }
        constexpr long kRemoveFreeRows = 1;
        DoRowOperation(kRemoveFreeRows, szSerials, DTFlexProducts);
    });
}

// After the last line has gone nothing of the earlier scheme runs may linger.
void Zuro_frmDispatch_Dispatch::ResetSchemeMemory() {
    arrPrevSKU.clear();
    arrCurrSKU.clear();
    nPrevSKUCount = 0;
    nCurrSKUCount = 0;
    nPrimaryRowCount = 0;
    bSplCatRefused = false;
    bSplCatFreeMissing = false;
}

}  // namespace screen
