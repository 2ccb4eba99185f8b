// The grid's key and row events, and the scheme and row routines a host holding the
// form may call by name.
#include "screen/routine_binder.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

void Zuro_frmDispatch_Dispatch::WireGridKeysAndRows() {
    auto& grid = DTFlexDispatch;
    grid.KeyCode.Connect([this](int& KeyCode, int Shift) { DTFlexDispatch_KeyCode(KeyCode, Shift); });
    grid.RowColChange.Connect([this](int nRow, int nCol) { DTFlexDispatch_RowColChange(nRow, nCol); });
    grid.Change.Connect([this](int nCol) { DTFlexDispatch_Change(nCol); });
    grid.BeforeDelete.Connect([this](int& nRow, bool& bCancel) { DTFlexDispatch_BeforeDelete(nRow, bCancel); });
    grid.AfterDelete.Connect([this] { DTFlexDispatch_AfterDelete(); });
    grid.AtLastRow.Connect([this] { DTFlexDispatch_AtLastRow(); });
    grid.AtFirstRow.Connect([this] { DTFlexDispatch_AtFirstRow(); });

    using Self = Zuro_frmDispatch_Dispatch;
    RoutineBinder routines(routines_, *this);
    routines.Bind("getQuotient", &Self::getQuotient, {"nDividend", "nDivider"});
    routines.Bind("GetApplicableQuantity", &Self::GetApplicableQuantity,
                  {"dQuantity", "dAmount", "nSlabUnit", "dOnward"});
    routines.Bind("GetActualQuantity",
                  [this](long nRow, int nSlabUnit, double dOnward) {
                      return GetActualQuantity(nRow, nSlabUnit, dOnward, DTFlexDispatch);
                  },
                  {"nRow", "nSlabUnit", "dOnward"});
    routines.Bind("GetBaseUOMConv", &Self::GetBaseUOMConv, {"szItemCode", "nUnit"});
    routines.Bind("chkFreeItemFound", &Self::chkFreeItemFound, {"nSchID", "nSlab"});
    routines.Bind("AddStringwithCheck", &Self::AddStringwithCheck, {"szString", "szAddString", "szDelimit"});
    routines.Bind("CheckScheme",
                  [this](long nRow, bool isRowDeleted) { CheckScheme(nRow, isRowDeleted, DTFlexDispatch); },
                  {"nRow", "isRowDeleted"});
    routines.Bind("GetSaleID", &Self::GetSaleID, {"szItemCode"});
    routines.Bind("ComputeTotal", &Self::ComputeTotal, {"nRow", "bSkip"});
    routines.Bind("ComputeDiscount", &Self::ComputeDiscount, {"dValue1", "dValue2", "dValue3"});
    routines.Bind("GetTotalQtyAmountForItem", &Self::GetTotalQtyAmountForItem, {"szItemCode"});
    routines.Bind("GetMaxSchemeGridID", &Self::GetMaxSchemeGridID, {"nNext"});
    routines.Bind("AdjustRow", &Self::AdjustRow, {"nRemoved"});
    routines.Bind("GetCustomerForScheme", &Self::GetCustomerForScheme, {});
    routines.Bind("ResetSchemeMemory", &Self::ResetSchemeMemory, {});
    routines.Bind("DTFlexDispatch_RowColChange", &Self::DTFlexDispatch_RowColChange, {"nRow", "nCol"});
    routines.Bind("DTFlexDispatch_Change", &Self::DTFlexDispatch_Change, {"nCol"});
    routines.Bind("DTFlexDispatch_AfterDelete", &Self::DTFlexDispatch_AfterDelete, {});
    routines.Bind("DTFlexDispatch_AtLastRow", &Self::DTFlexDispatch_AtLastRow, {});
    routines.Bind("DTFlexDispatch_AtFirstRow", &Self::DTFlexDispatch_AtFirstRow, {});
}

}  // namespace screen
