// The scheme button, and the scheme routines a host holding the form may call by
// name. Routines that take the form's grid or a record set get it from the form.
#include "grid/row_model/grid_columns.h"
#include "platform/convert.h"
#include "screen/routine_binder.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

void Zuro_frmDispatch_Dispatch::WireSchemes() {
    cmdApplyScheme.Click.Connect([this] { cmdApplyScheme_Click(); });

    // The scheme memory a host may read back after a run.
    for (auto [name, field] :
         {std::pair{"szFailedSKU", &szFailedSKU}, std::pair{"szSchemeCustomer", &szSchemeCustomer}})
        fields_[name] = [field] { return *field; };
    for (auto [name, field] :
         {std::pair{"bSchemesApplied", &bSchemesApplied}, std::pair{"bSplCatRefused", &bSplCatRefused},
          std::pair{"bSplCatFreeMissing", &bSplCatFreeMissing}, std::pair{"bFreeItemMissing", &bFreeItemMissing},
          std::pair{"bSchemeRunning", &bSchemeRunning}})
        fields_[name] = [field] { return platform::ToText(platform::Value(*field)); };
    for (auto [name, field] :
         {std::pair{"nPrevSKUCount", &nPrevSKUCount}, std::pair{"nPrimaryRowCount", &nPrimaryRowCount}})
        fields_[name] = [field] { return platform::ToText(platform::Value(*field)); };

    using Self = Zuro_frmDispatch_Dispatch;
    RoutineBinder routines(routines_, *this);
    routines.Bind("cmdApplyScheme_Click", &Self::cmdApplyScheme_Click, {});
    routines.Bind("PopulateItemArray", [this](long& nCount) { arrCurrSKU = PopulateItemArray(nCount); }, {"nCount"});
    routines.Bind("GetGridRowCnt", &Self::GetGridRowCnt, {});
    routines.Bind("RevertAllSkuSchemes", [this] { RevertAllSkuSchemes(arrPrevSKU); }, {});
    routines.Bind("ApplyShemesForAllSKU", &Self::ApplyShemesForAllSKU, {});
    routines.Bind("ReverSKUScheme", &Self::ReverSKUScheme, {"szItemCode", "szRows"});
    routines.Bind("FreeItemExits", &Self::FreeItemExits, {"szItemCode", "szRows"});
    routines.Bind("FindSKUSchemes", &Self::FindSKUSchemes,
                  {"szItemCode", "nQuantity", "nAmount", "szPrimarySerial", "szPrimaryRowNos", "CreationDate"});
    routines.Bind("CheckSchemeExistsForCustomer", &Self::CheckSchemeExistsForCustomer, {});
    routines.Bind("GetCustomerKey", &Self::GetCustomerKey, {});

    routines.Bind("FindDispatchSchemes", &Self::FindDispatchSchemes,
                  {"szItemCode", "nQuantity", "DServerDate", "nRow", "CreationDate"});
    // The slab record is the one the scheme's slab gives the line's item, read the
    // way FindDispatchSchemes reads it; the scheme list's item key names it.
    routines.Bind(
        "ApplyItemScheme",
        [this](long nSchemeType, long nRowIndex, const std::string& szItemKey, const std::string& szPromptMssg,
               double nQty, std::int16_t nSchemeID, const std::string& szSchName, long nSlabID) {
            using namespace platform::adtype;
            auto& global = host_.global;
            auto rsSlab = global.NextRecordset(global.RunProcedure(
                "sp_get_SKUBased_SchItemsDetail",
                {{platform::Value(nSchemeID), Integer},
                 {platform::Value(szItemKey), VarChar},
                 {platform::Value(nSchemeType), Integer},
                 {platform::Value(nSlabID), Integer},
                 {platform::Value(DTFlexDispatch.GetCell(static_cast<int>(nRowIndex), grid::colItemCode)), VarChar}}));
            platform::Recordset rsNone;
            ApplyItemScheme(nSchemeType, DTFlexDispatch, nRowIndex, rsSlab ? *rsSlab : rsNone, szPromptMssg, nQty,
                            nSchemeID, szSchName, nSlabID);
        },
        {"nSchemeType", "nRowIndex", "szItemKey", "szPromptMssg", "nQty", "nSchemeID", "szSchName", "nSlabID"});

    routines.Bind("FindSpecialCategoryScheme",
                  [this](bool& bResult) { return FindSpecialCategoryScheme(DTFlexDispatch, bResult); }, {"bResult"});
    routines.Bind("RevertAllSpecialCatScheme", [this] { RevertAllSpecialCatScheme(DTFlexDispatch); }, {});
    routines.Bind("RevertSplCatScheme",
                  [this](long nSchemeID, long nSchemeType, long nSplCatCode, const std::string& szAlternateMessage) {
                      RevertSplCatScheme(nSchemeID, nSchemeType, nSplCatCode, szAlternateMessage, DTFlexDispatch);
                  },
                  {"nSchemeID", "nSchemeType", "nSplCatCode", Optional("szAlternateMessage", "")});
    routines.Bind("IsAppliedSplScheme",
                  [this](long nSplSchemeID, long nSplCatCode) {
                      return IsAppliedSplScheme(nSplSchemeID, nSplCatCode, DTFlexDispatch);
                  },
                  {"nSplSchemeID", "nSplCatCode"});
    routines.Bind("SplCatFreeItemDeleted", &Self::SplCatFreeItemDeleted, {"bResult"});
    routines.Bind("ClearDispatchFreeItemSch", &Self::ClearDispatchFreeItemSch, {});
}

}  // namespace screen
