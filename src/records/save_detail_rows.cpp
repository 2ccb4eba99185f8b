// The lines of a note going to the server inside the save's transaction. One grid
// row gives one detail row per unit it was keyed in: a single unit gives one, a
// quantity keyed as "2*0*5" gives one for each unit with a count. The detail
// procedures take the stock out of the batches and answer whether they could;
// the first refusal takes the whole note back and puts the user on the row.
//
// Runs inside SaveDispatch: a run-time error here is SaveDispatch's, whose handler
// rolls the note back.
#include <vector>

#include "grid/row_model/grid_columns.h"
#include "platform/convert.h"
#include "screen/procedure_results.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

namespace {
using platform::adtype::Date;
using platform::adtype::Double;
using platform::adtype::Integer;
using platform::adtype::VarChar;

constexpr long kRowNumbersOfSerials = 4;  // DoRowOperation: the serials of a list as grid rows
constexpr double kCustomerPriceOption = 1;
constexpr double kItemPriceOption = 0;
}  // namespace

struct Zuro_frmDispatch_Dispatch::DetailPass {
    long nDispatchID = 0;
    platform::Date dtDispatchDay{};
    long nDatedPosting = 0;
    long nUOM = 0;         // the unit of the pass
    double fUOMQty = 0;    // the quantity in that unit
    double fUOMPrice = 0;  // the price of that unit
    double fBaseQty = 0;   // the quantity in the item's base unit
};

bool Zuro_frmDispatch_Dispatch::SaveDetailRows(long nRows, long nDispatchID, platform::Date dtDispatchDay,
                                               long nDatedPosting) {
    auto& global = host_.global;
    auto& grid = DTFlexDispatch;
    auto number = [&](long r, int col) { return global.ToNumber(platform::Value(grid.GetCell(r, col))); };

    for (long r = 1; r <= nRows; ++r) {
        DetailPass pass;
        pass.nDispatchID = nDispatchID;
        pass.dtDispatchDay = dtDispatchDay;
        pass.nDatedPosting = nDatedPosting;
        const double fCellQty = number(r, grid::colQuantity);
        const std::string szItem0 = grid.GetCell(r, grid::colItemCode);
        pass.nUOM = static_cast<long>(platform::Int(platform::Val(grid.GetCell(r, grid::colUOMID))));

        if (pass.nUOM != 0) {
            // One pass, in the row's own unit at the row's price.
            pass.fUOMQty = fCellQty;
            pass.fUOMPrice = number(r, grid::colSalePrice);
            pass.fBaseQty = global.ConvertToBaseUOM(szItem0, pass.nUOM) * pass.fUOMQty;
            if (!SaveDetailPass(r, pass)) return false;
            continue;
        }

        // A count for each of the item's three units, the largest first, each priced
        // at its own rate of the original price.
        const std::vector<std::string> vParts =
            platform::Split(global.GetUOMInfo(grid.GetCell(r, grid::colQuantity)), "*");
        for (int nPass = 3; nPass >= 1; --nPass) {
            const double fRate = global.ConvertWithRate(szItem0, nPass, pass.nUOM);
            const std::size_t nPart = static_cast<std::size_t>(3 - nPass);
            if (nPart >= vParts.size()) throw platform::RuntimeError(platform::err::SubscriptOutOfRange);
            const double fPart = platform::Val(vParts[nPart]);
            if (fPart == 0) continue;
            pass.fUOMQty = fPart;
            pass.fUOMPrice = number(r, grid::colOriginalPrice) * fRate;
            pass.fBaseQty = fRate * fPart;
            if (!SaveDetailPass(r, pass)) return false;
        }
    }
    return true;
}

bool Zuro_frmDispatch_Dispatch::SaveDetailPass(long r, const DetailPass& pass) {
    auto& global = host_.global;
    auto& grid = DTFlexDispatch;
    auto cell = [&](int col) { return grid.GetCell(r, col); };
    auto number = [&](int col) { return global.ToNumber(platform::Value(cell(col))); };

    // A free item of another category group goes to the server as not free.
    const std::int16_t nFree = number(grid::colOCGItem) == 1 ? 0 : platform::CInt(number(grid::colFreeItem));
    if (!(pass.fBaseQty > 0)) return true;
    const double fPriceOption = number(grid::colPriceOption);
    const bool bCustomerPrice = fPriceOption == kCustomerPriceOption;
    if (!bCustomerPrice && fPriceOption != kItemPriceOption) return true;

    platform::ParameterList parameters{{pass.nDispatchID, Integer},
                                       {global.ToText(platform::Value(cell(grid::colItemCode))), VarChar},
                                       {global.ToText(platform::Value(cell(grid::colBatch))), VarChar},
                                       {number(grid::colOriginalPrice), Double},
                                       {pass.fBaseQty, Double},
                                       {number(grid::colBatchTrack), Integer},
                                       {platform::Val(cell(grid::colTrackInventory)), Integer}};
    if (bCustomerPrice) parameters.push_back({nCustomerCategory, Integer});
    const long nRowNumber = getRowNumber(static_cast<long>(platform::Int(number(grid::colSerialNo))));
    parameters.insert(parameters.end(), {{nFree, Integer},
                                         {number(grid::colFreeRow), Integer},
                                         {pass.dtDispatchDay, Date},
                                         {pass.nDatedPosting, Integer},
                                         {pass.nUOM, Integer},
                                         {pass.fUOMQty, Double},
                                         {pass.fUOMPrice, Double},
                                         {nRowNumber, Integer},
                                         {number(grid::colOCGItem), Integer}});
    const bool bOCG = global.GetOCGEnabled();
    if (bOCG) {
        // The scheme links go as the grid holds them: serials.
        parameters.insert(parameters.end(),
                          {{number(grid::colSchemeID), Integer}, {cell(grid::colItemCheck), VarChar}});
    } else {
        // The scheme links go as grid rows; the scheme lists twice, as the server takes them.
        const std::string szFreeOfRows =
            global.ToText(DoRowOperation(kRowNumbersOfSerials, cell(grid::colItemCheck), grid));
        const std::string szSchemeIDs = global.ToText(platform::Value(cell(grid::colSchemeID)));
        const std::string szSplCatSchemeIDs = global.ToText(platform::Value(cell(grid::colSplCatSchemeID)));
        const std::string szSplCatOfRows =
            global.ToText(DoRowOperation(kRowNumbersOfSerials, cell(grid::colSplCatSerial), grid));
        parameters.insert(parameters.end(),
                          {{0, Integer},
                           {szFreeOfRows, VarChar},
                           {szSchemeIDs, VarChar},
                           {szSplCatSchemeIDs, VarChar},
                           {number(grid::colSplCategoryScheme), Integer},
                           {szSplCatOfRows, VarChar},
                           {szSchemeIDs, VarChar},
                           {global.ToText(platform::Value(cell(grid::colMultiSchemeDetail))), VarChar},
                           {szSplCatSchemeIDs, VarChar},
                           {global.ToText(platform::Value(cell(grid::colMultiSpecialCatSchemeDetail))), VarChar}});
    }

    auto result = global.NextRecordset(global.RunProcedure(
        bCustomerPrice ? "sp_Save_dispatchDetail_csp_UOM_QAX" : "sp_Save_dispatchdetail_UOM_QAX", parameters));
    if (!HasRecordset(result)) {
        global.GetConnection().RollbackTrans();
        global.ShowStatus("Data error", 1);
        return false;
    }
    // An answer without a row has no field 0: the run-time error takes the note back.
    if (global.ToNumber(result->Fields(0)) == 0) {
        // Not enough stock: the note goes back and the user lands on the row's price.
        result->Close();
        global.GetConnection().RollbackTrans();
        if (bCustomerPrice) bQtyRefused = true;
        grid.SetGridRow(static_cast<int>(r));
        grid.SetGridCol(grid::colSalePrice);
        grid.SetCellEdit(1);
        global.SetFocusTo(grid);
        std::string szMessage;
        if (bOCG || number(grid::colFreeItem) == 0)
            szMessage = host_.messages.FormatMessage("Insufficient stock for {0}", {cell(grid::colItemName)});
        else
            szMessage = host_.messages.FormatMessage(
                GetPrimaryItemName(r, cell(grid::colItemCheck), cell(grid::colSplCatSerial)), {});
        global.ShowStatus(szMessage, 1);
        return false;
    }
    result->Close();
    return true;
}

std::string Zuro_frmDispatch_Dispatch::GetPrimaryItemName(long nRow, const std::string& szCol17,
                                                          const std::string& szCol32) {
    auto& global = host_.global;
    auto& grid = DTFlexDispatch;
    // The figure in the cell is taken as a row number as it stands.
    auto itemOfRow = [&](long n) {
        return global.ToText(platform::Value(grid.GetCell(static_cast<int>(n), grid::colItemCode)));
    };
    long n = static_cast<long>(platform::Int(global.ToNumber(platform::Value(szCol17))));
    if (n >= 1) return "Free SKU not available. You cannot sale this SKU - " + itemOfRow(n);
    n = static_cast<long>(platform::Int(global.ToNumber(platform::Value(szCol32))));
    if (n >= 1) return "Free SKU not available. You cannot sale this SKU - " + itemOfRow(n);
    if (!grid.GetCell(static_cast<int>(nRow), grid::colItemCheck).empty())
        return "Insufficient stock for - " + itemOfRow(nRow);
    return "Free SKU not available. You cannot save this Invoice.";
}

}  // namespace screen
