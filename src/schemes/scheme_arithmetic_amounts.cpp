// Amount routines inherited from the invoice screen. The dispatch keeps them because
// callers of the form object may still name them; the note itself never uses their
// results.
#include "grid/row_model/grid_columns.h"
#include "platform/convert.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

using namespace grid;

// The item's sale type; 2 for an item the master does not know. No handler of its
// own: a failure is the caller's.
long Zuro_frmDispatch_Dispatch::GetSaleID(const std::string& szItemCode) {
    auto recordset =
        host_.global.GetConnection().Execute("SELECT SaleID From Items WHERE Product_Code = N'" + szItemCode + "'");
    long nSaleID = 2;
    if (recordset && !recordset->Eof()) nSaleID = platform::CLng(host_.global.ToNumber(recordset->Fields(0)));
    if (recordset) recordset->Close();
    return nSaleID;
}

// Works the row's amount out and lets it go; a grid that was never given fails with
// error 91 like any unset object.
void Zuro_frmDispatch_Dispatch::ComputeAmount(long& nRow, platform::DTFlex* DTFlexProducts) {
    const bool bDone = platform::RunHandled(host_.global, "Invoice : ComputeAmount - ", [&] {
        if (DTFlexProducts == nullptr) throw platform::RuntimeError(platform::err::ObjectNotSet);
        auto& global = host_.global;
        if (DTFlexProducts->IsBlankRow(static_cast<int>(nRow))) --nRow;
        const int nAt = static_cast<int>(nRow);
        const std::string szItemCode = DTFlexProducts->GetCell(nAt, colItemCode);
        GetSaleID(szItemCode);
        const std::string szQuantity = DTFlexProducts->GetCell(nAt, colQuantity);
        const double dQuantity = global.ToNumber(DTFlexProducts->GetCell(nAt, colUOMID)) == 0
                                     ? global.ConvertToDisplayUOM(szItemCode, szQuantity)
                                     : global.ToNumber(szQuantity);
        [[maybe_unused]] const double dAmount = global.ToNumber(DTFlexProducts->GetCell(nAt, colSalePrice)) * dQuantity;
    });
    if (!bDone) host_.global.ShowStatus("Error in computing amount", 1);
}

void Zuro_frmDispatch_Dispatch::ComputeTotal(long nRow, bool bSkip) {
    if (!bSkip) ComputeAmount(nRow, nullptr);
}

double Zuro_frmDispatch_Dispatch::ComputeDiscount(double, double, double) { return 0; }

}  // namespace screen
