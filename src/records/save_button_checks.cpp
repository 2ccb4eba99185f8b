// The checks of the save button that read the database: the health care items a
// customer without a drug licence may not take, every line's quantity and name, the
// day-close, and whether the salesman, beat, customer and lines belong together.
#include "grid/row_model/grid_columns.h"
#include "platform/convert.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

using namespace grid;
using platform::adtype::Integer;
using platform::adtype::VarChar;

bool Zuro_frmDispatch_Dispatch::ValidateHealthCareItems(const std::string& szCustomerCode) {
    auto& global = host_.global;
    auto& grid = DTFlexDispatch;
    if (grid.GridRows() == 0) return true;

    std::vector<std::string> vHealthCare;
    for (int r = 1; r <= grid.GridRows(); ++r) {
        const std::string szItem = grid.GetCell(r, colItemCode);
        if (szItem.empty()) continue;
        // Free rows carry no price and are passed over.
        if (!(global.ToNumber(grid.GetCell(r, colSalePrice)) > 0 && global.ToNumber(grid.GetCell(r, colQuantity)) > 0))
            continue;
        const auto vASL = global.LookupValue(global.GetConnection(),
                                             "Select isnull(ASL,0) from items where product_code='" + szItem + "'");
        if (global.ToNumber(vASL) == 1) vHealthCare.push_back(szItem);
    }
    if (vHealthCare.empty()) return true;

    const std::string szDL = platform::ToText(global.LookupValue(
        global.GetConnection(),
        "Select isnull(rtrim(ltrim(DLNumber)),'') from customer where CustomerID= '" + szCustomerCode + "'"));
    const std::string szDL21 = platform::ToText(global.LookupValue(
        global.GetConnection(),
        "Select isnull(rtrim(ltrim(DLNumber21)),'') from customer where CustomerID= '" + szCustomerCode + "'"));
    if (!szDL.empty() || !szDL21.empty()) return true;
    host_.messages.AskMessage(
        "Customer do not have the DL Number, delete the Healthcare Items for saving the Transaction", 64, "Kelvo");
    return false;
}

bool Zuro_frmDispatch_Dispatch::ValidateQty(long nRows) {
    auto& global = host_.global;
    auto& grid = DTFlexDispatch;
    for (int r = 1; r <= nRows; ++r) {
        const std::string szItem = grid.GetCell(r, colItemCode);
        const double fQty = global.ToNumber(grid.GetCell(r, colUOMID)) != 0
                                ? global.ToNumber(grid.GetCell(r, colQuantity))
                                : global.ConvertToDisplayUOM(szItem, grid.GetCell(r, colQuantity));
        if (!(fQty > 0)) {
            grid.SetFocus();
            global.ShowStatus("Invalid quantity", 1);
            return false;
        }
        const std::string szName = global.LookupName("Items", "Product_Code", "ProductName", szItem);
        if (szName.empty() || platform::LCase(szName) != platform::LCase(grid.GetCell(r, colItemName))) {
            grid.SetGridRow(r);
            grid.SetGridCol(colItemName);
            grid.SetFocus();
            global.ShowStatus("Invalid ItemCode / ItemName ", 1);
            return false;
        }
    }
    return true;
}

// An amendment of a note of an earlier day asks about that day; every other note about
// the day it carries. The host says why when it refuses.
bool Zuro_frmDispatch_Dispatch::DayMayStillBePosted() {
    auto& global = host_.global;
    auto askTheHost = [&](platform::Date dtDay) {
        if (!objHostContext_) throw platform::RuntimeError(platform::err::ObjectNotSet);
        objHostContext_->GetClosedayChecking();
        const int nClose = global.GetCloseDayMode();
        return host_.tools.CheckCloseDay(dtDay, nClose == 1 ? -1 : 0);
    };
    if (nMode == mode::Amendment) {
        const platform::Date dtToday = global.GetCurrentDate(0);
        if (global.ToDateOnly(dtOriginalDispatchDate).serial < global.ToDateOnly(dtToday).serial)
            return askTheHost(dtOriginalDispatchDate);
    }
    return askTheHost(DTDispatchDate.Value);
}

// The salesman and beat as the customer is mapped to them; a result without a row says
// nothing against them.
bool Zuro_frmDispatch_Dispatch::SalesmanBeatAndCustomerMapped() {
    auto& global = host_.global;
    const double dSalesman = global.ToNumber(platform::Value(txtSalesman.Tag));
    const double dBeat = global.ToNumber(platform::Value(txtBeat.Tag));
    if (!(dSalesman > 0 && dBeat > 0)) return true;
    const bool bFromDocuments = nMode == mode::FromSalesConfirmation || nMode == mode::FromAlert;
    const std::string szCustomer = bFromDocuments ? lblCustomerId.Tag : txtCustomerID.Text();
    auto result = global.NextRecordset(
        global.RunProcedure("sp_CheckForMapping_QAX", {{static_cast<long>(platform::Int(dSalesman)), Integer},
                                                       {static_cast<long>(platform::Int(dBeat)), Integer},
                                                       {szCustomer, VarChar}}));
    if (!result || result->Eof()) return true;
    const bool bMapped = global.ToNumber(result->Fields(0)) != 0;
    result->Close();
    return bMapped;
}

// Every line that is not a free row must be an item the note's group or the
// salesman's DS type sells; a result without a row counts as sold.
bool Zuro_frmDispatch_Dispatch::LinesSoldByTheGroup() {
    auto& global = host_.global;
    auto& grid = DTFlexDispatch;
    const std::string szGroup = txtCategory.Tag;
    if (szGroup.empty()) return true;
    szCurrentGroupID = szGroup;
    long nGroup = 0;
    DSTypeCatMapped(GetSalesmanID(), nGroup);
    nDSTypeGroup = static_cast<std::int32_t>(nGroup);
    for (int r = 1; r <= grid.GridRows(); ++r) {
        if (global.ToNumber(grid.GetCell(r, colFreeItem)) != 0 || grid.IsBlankRow(r)) continue;
        const std::string szItem = grid.GetCell(r, colItemCode);
        auto result = global.NextRecordset(
            nDSTypeGroup < 1
                ? global.RunProcedure("sp_CheckItemExists_QAX", {{szCurrentGroupID, VarChar}, {szItem, VarChar}})
                : global.RunProcedure("sp_CheckItemExists_DSType",
                                      {{static_cast<long>(nDSTypeGroup), Integer}, {szItem, VarChar}}));
        // The result of the line that failed is left open, as it always was.
        if (result && !result->Eof() && global.ToNumber(result->Fields(0)) == 0) return false;
        if (result) result->Close();
    }
    return true;
}

}  // namespace screen
