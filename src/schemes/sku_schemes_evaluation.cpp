// One item's SKU schemes: the schemes the item's totals reach for the customer on
// the note's date, each giving its free row, shared by all the item's lines. A free
// item that cannot be had stops the item and names it, so that the next run of the
// scheme button starts again from there.
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

using namespace schemes;

std::string Zuro_frmDispatch_Dispatch::GetCustomerKey() {
    return host_.global.ToText(
        platform::Value(nMode == mode::FromSalesConfirmation ? lblCustomerId.Caption : txtCustomer.Tag));
}

bool Zuro_frmDispatch_Dispatch::FindSKUSchemes(const std::string& szItemCode, double nQuantity, double nAmount,
                                               const std::string& szPrimarySerial, const std::string& szPrimaryRowNos,
                                               const std::string& CreationDate) {
    bool bResult = true;
    platform::RunHandled(host_.global, "Invoice : FindSKUSchemes - ", [&] {
        auto& global = host_.global;
        // An amendment is judged by the schemes that stood when its note was made.
        const std::string szCreation = nMode == mode::Amendment ? szOldCreationDate : CreationDate;
        auto rsSchemes = global.NextRecordset(
            global.RunProcedure("Zuro_sp_FindDispatch_SKUSchemeID_New", {{platform::Value(szItemCode), VarChar},
                                                                         {platform::Value(DTDispatchDate.Value), Date},
                                                                         {platform::Value(nQuantity), Double},
                                                                         {platform::Value(GetCustomerKey()), VarChar},
                                                                         {platform::Value(nAmount), Double},
                                                                         {platform::Value(szCreation), VarChar}}));
        if (!rsSchemes || rsSchemes->Eof()) return;

        for (; !rsSchemes->Eof(); rsSchemes->MoveNext()) {
            const std::int16_t nSchemeID = platform::CInt(global.ToNumber(rsSchemes->Fields(kSchemeID)));
            const std::string szItemKey = global.ToText(rsSchemes->Fields(kItemKey));
            const long nSchemeType = platform::CLng(global.ToNumber(rsSchemes->Fields(kSchemeType)));
            const long nSlabID = platform::CLng(global.ToNumber(rsSchemes->Fields(kSlabID)));
            const std::string szSchName = global.ToText(rsSchemes->Fields(kSchemeName));
            if (nSchemeID == 0) continue;

            auto rsSlab = global.NextRecordset(
                global.RunProcedure("sp_get_SKUBased_SchItemsDetail", {{platform::Value(nSchemeID), Integer},
                                                                       {platform::Value(szItemKey), VarChar},
                                                                       {platform::Value(nSchemeType), Integer},
                                                                       {platform::Value(nSlabID), Integer},
                                                                       {platform::Value(szItemCode), VarChar}}));
            if (!rsSlab || rsSlab->Eof()) continue;
            if (!ApplySKUScheme(nSchemeType, DTFlexDispatch, szPrimaryRowNos, *rsSlab, nSchemeID, szSchName, nSlabID,
                                szItemCode, nQuantity, nAmount, szPrimarySerial)) {
                bResult = false;
                break;
            }
        }
        rsSchemes->Close();
    });
    return bResult;
}

// The procedure has chosen the slab already: no slab test here. The free row goes
// under the lines with a blank row after it, and every line of the item links to it.
bool Zuro_frmDispatch_Dispatch::ApplySKUScheme(long nSchemeType, platform::DTFlex& DTFlexProducts,
                                               const std::string& szPrimaryRows, platform::Recordset& rsSlab,
                                               long nSchemeID, const std::string& szSchName, long nSlabID,
                                               const std::string& szPrimaryItemCode, double dTotPrimaryQty,
                                               double dTotPrimaryAmount, const std::string& szPrimarySerail) {
    bool bResult = true;
    const bool bDone = platform::RunHandled(host_.global, "Invoice : ApplyItemScheme - ", [&] {
        auto& global = host_.global;
        auto& grid = DTFlexProducts;
        szFailedSKU = "";
        if (nSchemeType != kFreeItemScheme) return;

        const long nSlabUnit = platform::CLng(global.ToNumber(rsSlab.Fields(kSlabUnit)));
        const double dOnward = global.ToNumber(rsSlab.Fields(kOnward));
        const double nApplicable = GetApplicableQuantity(dTotPrimaryQty, dTotPrimaryAmount, nSlabUnit, dOnward);
        if (nApplicable == 0) return;

        auto refuse = [&](const std::string& szWords) {
            bResult = false;
            szFailedSKU = szPrimaryItemCode;
            bFreeItemMissing = true;
            global.ShowStatus(szWords + szPrimaryItemCode, 1);
            rsSlab.Close();
            bSchemeRunning = false;
        };
        bSchemeRunning = true;
        if (chkFreeItemFound(nSchemeID, nSlabID) != 1) {
            refuse("Free SKU is not available/Selected For the Primary Item - ");
            return;
        }
        std::string szFreeCode;
        if (!host_.tools.SelectFreeItem(nSchemeID, szSchName, nSlabID, szPrimaryItemCode, szFreeCode)) {
            refuse("Free Item Not selected For The Primary Item -  ");
            return;
        }

        double fFree = global.ToNumber(rsSlab.Fields(kFreeQty)) *
                       GetBaseUOMConv(szFreeCode, static_cast<int>(global.ToNumber(rsSlab.Fields(kFreeUnit))));
        if (dOnward != 0) fFree *= nApplicable;
        if (fFree <= 0) {
            bSchemeRunning = false;
            return;
        }

        // The routine's own row is still 0 here: the free row's primary item and the
        // customer and date land on the heading row. The lines get theirs below.
        std::string szNewSerials;
        const SkuFreeRow sku{szPrimarySerail};
        MakeSchemeFreeRow(0, nSchemeID, nSlabID, szFreeCode, fFree, szNewSerials, &sku);
        const std::string szDateText = global.ToText(platform::Value(DTDispatchDate.Value));
        grid.SetCell(0, colSchemeCustID, txtCustomer.Text());
        grid.SetCell(0, colSchemeInvDate, szDateText);

        if (!szNewSerials.empty()) szNewSerials.pop_back();
        if (!szNewSerials.empty()) {
            for (const auto& szRow : platform::Split(szPrimaryRows, ",")) {
                const int nRow = static_cast<int>(platform::Val(szRow));
                grid.SetCell(nRow, colItemCheck, grid.GetCell(nRow, colItemCheck) + "," + szNewSerials);
                const std::string szOld = grid.GetCell(nRow, colSchemeID);
                grid.SetCell(nRow, colSchemeID,
                             szOld.empty() || global.ToNumber(szOld) == 0 ? std::to_string(nSchemeID)
                                                                          : std::to_string(nSchemeID) + "," + szOld);
                grid.SetCell(nRow, colSchemeInvDate, szDateText);
                grid.SetCell(nRow, colSchemeCustID, txtCustomer.Text());
                grid.SetCell(nRow, colFreeItmIgnored, "0");
            }
        }

        rsSlab.Close();
        grid.SetGridRows(grid.GridRows() + 1);
        grid.SetCell(grid.GridRows(), 0, std::to_string(grid.GridRows()));
        grid.SetGridRow(grid.GridRows());
        grid.SetGridCol(colItemName);
        bSchemeRunning = false;
    });
    if (!bDone) bSchemeRunning = false;
    return bResult;
}

// Whether the customer has any scheme on the note's date; the host asks, the
// screen never does.
void Zuro_frmDispatch_Dispatch::CheckSchemeExistsForCustomer() {
    platform::RunHandled(host_.global, "Invoice :CheckSchemeExistsForCustomer - ", [&] {
        auto& global = host_.global;
        bCustomerHasScheme = false;
        auto rs = global.NextRecordset(global.RunProcedure(
            "Zuro_sp_Check_SchExistsForCust",
            {{platform::Value(DTDispatchDate.Value), Date}, {platform::Value(GetCustomerKey()), VarChar}}));
        if (!rs) return;
        if (!rs->Eof()) bCustomerHasScheme = global.ToNumber(rs->Fields(0)) >= 1;
        rs->Close();
    });
}

}  // namespace screen
