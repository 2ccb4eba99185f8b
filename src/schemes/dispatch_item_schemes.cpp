// Item schemes on one line: the schemes of the line's item and quantity, each of
// them applied, each free row linked to that line alone. A free item that cannot be
// had marks the line and the next scheme still runs. The screen itself goes through
// the SKU schemes; these stay for a host holding the form.
#include "grid/row_model/grid_columns.h"
#include "platform/convert.h"
#include "platform/key_codes.h"
#include "schemes/scheme_records.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

using namespace grid;
using platform::adtype::Date;
using platform::adtype::Double;
using platform::adtype::Integer;
using platform::adtype::VarChar;

using namespace schemes;

void Zuro_frmDispatch_Dispatch::FindDispatchSchemes(const std::string& szItemCode, double nQuantity,
                                                    platform::Date DServerDate, long nRow,
                                                    const std::string& CreationDate) {
    platform::RunHandled(host_.global, "Dispatch: FindSchemes - ", [&] {
        auto& global = host_.global;
        auto& grid = DTFlexDispatch;
        const int nAt = static_cast<int>(nRow);
        grid.SetCell(nAt, colSchemeCustID, txtCustomer.Text());
        grid.SetCell(nAt, colSchemeInvDate, global.ToText(platform::Value(DTDispatchDate.Value)));

        auto rsSchemes = global.NextRecordset(
            global.RunProcedure("Zuro_sp_FindDispatch_SKUSchemeID_New", {{platform::Value(szItemCode), VarChar},
                                                                         {platform::Value(DServerDate), Date},
                                                                         {platform::Value(nQuantity), Double},
                                                                         {platform::Value(szCustomerCode), VarChar},
                                                                         {platform::Value(0), Integer},
                                                                         {platform::Value(CreationDate), VarChar}}));
        if (!rsSchemes || rsSchemes->Eof()) return;

        const std::string szRowItem = grid.GetCell(nAt, colItemCode);
        for (; !rsSchemes->Eof(); rsSchemes->MoveNext()) {
            const std::int16_t nSchemeID = platform::CInt(global.ToNumber(rsSchemes->Fields(kSchemeID)));
            const std::string szItemKey = global.ToText(rsSchemes->Fields(kItemKey));
            const long nSchemeType = platform::CLng(global.ToNumber(rsSchemes->Fields(kSchemeType)));
            const long nSlabID = platform::CLng(global.ToNumber(rsSchemes->Fields(kSlabID)));
            if (nSchemeID == 0) continue;

            auto rsSlab = global.NextRecordset(
                global.RunProcedure("sp_get_SKUBased_SchItemsDetail", {{platform::Value(nSchemeID), Integer},
                                                                       {platform::Value(szItemKey), VarChar},
                                                                       {platform::Value(nSchemeType), Integer},
                                                                       {platform::Value(nSlabID), Integer},
                                                                       {platform::Value(szRowItem), VarChar}}));
            if (!rsSlab || rsSlab->Eof()) continue;
            ApplyItemScheme(nSchemeType, grid, nRow, *rsSlab, "", nQuantity,
                            platform::CInt(global.ToNumber(rsSchemes->Fields(kSchemeID))),
                            global.ToText(rsSchemes->Fields(kSchemeName)),
                            platform::CLng(global.ToNumber(rsSchemes->Fields(kSlabID))));
        }
        rsSchemes->Close();
    });
}

// The slab is met from its start upwards: a quantity beyond its end still meets it.
// The slab is judged on the quantity given, the steps on the line itself.
void Zuro_frmDispatch_Dispatch::ApplyItemScheme(long nSchemeType, platform::DTFlex& DTFlexProducts, long nRowIndex,
                                                platform::Recordset& rsSlab, const std::string& szPromptMssg,
                                                double nQty, std::int16_t nSchemeID, const std::string& szSchName,
                                                long nSlabID) {
    const bool bDone = platform::RunHandled(host_.global, "Dispatch: AssignScheme - ", [&] {
        auto& global = host_.global;
        auto& grid = DTFlexProducts;
        const int nAt = static_cast<int>(nRowIndex);
        auto field = [&](int nPosition) { return global.ToNumber(rsSlab.Fields(nPosition)); };

        const bool bSlabMet = rsSlab.IsOpen() && !rsSlab.Eof() && nSchemeType == kFreeItemScheme &&
                              ((nQty >= field(kSlabStart) && nQty <= field(kSlabEnd)) || nQty >= field(kSlabStart));
        if (!bSlabMet) {
            grid.SetCell(nAt, colPromptMessage, szPromptMssg);
            bSchemeRunning = false;
            return;
        }

        const double dOnward = field(kOnward);
        const double nApplicable =
            GetActualQuantity(nRowIndex, static_cast<int>(platform::CLng(field(kSlabUnit))), dOnward, grid);
        if (nApplicable == 0) return;

        // No free goods: the line is marked, and the save refuses it.
        auto markIgnored = [&] {
            grid.SetCell(nAt, colFreeItmIgnored, "1");
            int nKey = platform::keys::Enter;
            DTFlexDispatch_KeyCode(nKey, 0);
            rsSlab.Close();
            grid.RefreshGrid();
            bSchemeRunning = false;
        };
        bSchemeRunning = true;
        if (chkFreeItemFound(nSchemeID, nSlabID) != 1) {
            markIgnored();
            return;
        }
        std::string szFreeCode;
        if (!host_.tools.SelectFreeItem(nSchemeID, szSchName, nSlabID, "", szFreeCode)) {
            markIgnored();
            return;
        }

        double fFree = field(kFreeQty) * GetBaseUOMConv(szFreeCode, static_cast<int>(field(kFreeUnit)));
        if (dOnward != 0) fFree *= nApplicable;
        if (fFree <= 0) {
            bSchemeRunning = false;
            return;
        }

        std::string szNewSerials;
        const int nFreeRow =
            static_cast<int>(MakeSchemeFreeRow(nRowIndex, nSchemeID, nSlabID, szFreeCode, fFree, szNewSerials));
        grid.SetCell(nAt, colSchemeCustID, txtCustomer.Text());
        grid.SetCell(nAt, colSchemeInvDate, global.ToText(platform::Value(DTDispatchDate.Value)));

        if (!szNewSerials.empty()) szNewSerials.pop_back();
        const std::string szOwnFree = grid.GetCell(nAt, colItemCheck);
        grid.SetCell(nAt, colItemCheck, szOwnFree.empty() ? szNewSerials : szOwnFree + "," + szNewSerials);

        const std::string szScheme = std::to_string(nSchemeID);
        grid.SetCell(
            nFreeRow, colSchemeID,
            grid.GetCell(nFreeRow, colSchemeID).empty() ? szScheme : szScheme + "," + grid.GetCell(nAt, colSchemeID));
        const std::string szPrimarySchemes = grid.GetCell(nAt, colSchemeID);
        grid.SetCell(nAt, colSchemeID, szPrimarySchemes.empty() ? szScheme : szScheme + "," + szPrimarySchemes);

        rsSlab.Close();
        grid.RefreshGrid();
        bSchemeRunning = false;
    });
    if (!bDone) bSchemeRunning = false;
}

}  // namespace screen
