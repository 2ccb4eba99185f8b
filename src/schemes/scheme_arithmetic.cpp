// The small arithmetic every scheme generation shares: how many times a slab's step
// fits, how much of an item a row or the grid holds in base units, and the unit
// factors of slabs and free goods.
#include "grid/row_model/grid_columns.h"
#include "platform/convert.h"
#include "schemes/scheme_arithmetic_quotient.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

using namespace grid;

namespace {
// Slab units: 1 base, 2 UOM1, 3 UOM2 measure quantities; 4 measures value.
constexpr long kValueSlab = 4;
bool IsQuantitySlab(long nSlabUnit) { return nSlabUnit >= 1 && nSlabUnit <= 3; }
}  // namespace

double Zuro_frmDispatch_Dispatch::getQuotient(double nDividend, double nDivider) {
    double dQuotient = 0;
    platform::RunHandled(host_.global, "mdlGlobal : getQuotient - ",
                         [&] { dQuotient = schemes::CountBySubtraction(nDividend, nDivider); });
    return dQuotient;
}

double Zuro_frmDispatch_Dispatch::GetApplicableQuantity(double dQuantity, double dAmount, long nSlabUnit,
                                                        double dOnward) {
    double dApplicable = 0;
    platform::RunHandled(host_.global, "Invoice : GetApplicableQuantity - ", [&] {
        if (dOnward == 0) {
            dApplicable = dQuantity;
        } else if (IsQuantitySlab(nSlabUnit)) {
            dApplicable = getQuotient(dQuantity, dOnward);
        } else if (nSlabUnit == kValueSlab) {
            dApplicable = getQuotient(dAmount, dOnward);
        }
    });
    return dApplicable;
}

// One row measured in base units. Every quantity slab counts base units here, UOM1
// and UOM2 alike: the item schemes were always set up that way.
double Zuro_frmDispatch_Dispatch::GetActualQuantity(long nRow, int nSlabUnit, double dOnward,
                                                    platform::DTFlex& DTFlexProducts) {
    double dActual = 0;
    platform::RunHandled(host_.global, "Invoice : GetActualQuantity - ", [&] {
        auto& global = host_.global;
        const long nUOM = platform::CLng(global.ToNumber(DTFlexProducts.GetCell(nRow, colUOMID)));
        const std::string szItemCode = DTFlexProducts.GetCell(nRow, colItemCode);
        const std::string szQuantity = DTFlexProducts.GetCell(nRow, colQuantity);
        const double dBaseQty = nUOM != 0 ? global.ToNumber(szQuantity) * global.ConvertToBaseUOM(szItemCode, nUOM)
                                          : global.ConvertToDisplayUOM(szItemCode, szQuantity);
        if (dOnward == 0) {
            dActual = dBaseQty;
        } else if (IsQuantitySlab(nSlabUnit)) {
            dActual = getQuotient(dBaseQty, dOnward);
        } else if (nSlabUnit == kValueSlab) {
            const double dPrice = global.ToNumber(DTFlexProducts.GetCell(nRow, colOriginalPrice));
            dActual = getQuotient(dPrice * dBaseQty, dOnward);
        }
    });
    return dActual;
}

// Base units in one slab or free unit; 0 for a unit the schemes do not know, so that
// no free quantity comes of it.
double Zuro_frmDispatch_Dispatch::GetBaseUOMConv(const std::string& szItemCode, int nUnit) {
    double dConversion = 0;
    platform::RunHandled(host_.global, "Invoice - GetBaseUOMConv: ", [&] {
        auto& global = host_.global;
        switch (nUnit) {
            case 1: dConversion = 1; break;
            case 2:
                dConversion = global.ToNumber(
                    global.LookupValue(global.GetConnection(),
                                       "Select UOM1_Conversion From Items Where Product_Code = '" + szItemCode + "'"));
                break;
            case 3:
                dConversion = global.ToNumber(
                    global.LookupValue(global.GetConnection(),
                                       "Select UOM2_Conversion From Items Where Product_Code = '" + szItemCode + "'"));
                break;
            default: dConversion = 0;
        }
    });
    return dConversion;
}

// The item's quantity in the grid for the scheme view. A row entered as a multi-unit
// expression replaces what the rows before it gave and then counts twice; the scheme
// view has always shown it so.
double Zuro_frmDispatch_Dispatch::GetTotalQtyAmountForItem(const std::string& szItemCode) {
    double dTotal = 0;
    platform::RunHandled(host_.global, "Invoice : GetTotalQtyAmountForItem- ", [&] {
        auto& global = host_.global;
        const int nRows = DTFlexDispatch.GridRows();
        for (int nRow = 1; nRow <= nRows; ++nRow) {
            if (DTFlexDispatch.GetCell(nRow, colItemCode) != szItemCode) continue;
            if (global.ToNumber(DTFlexDispatch.GetCell(nRow, colFreeRow)) != 0) continue;
            const long nUOM = platform::CLng(global.ToNumber(DTFlexDispatch.GetCell(nRow, colUOMID)));
            const std::string szQuantity = DTFlexDispatch.GetCell(nRow, colQuantity);
            if (nUOM != 0) {
                dTotal += global.ConvertToBaseUOM(szItemCode, nUOM) * global.ToNumber(szQuantity);
            } else {
                dTotal = global.ConvertToDisplayUOM(szItemCode, szQuantity);
                dTotal += global.ConvertToDisplayUOM(szItemCode, szQuantity);
            }
        }
    });
    return dTotal;
}

}  // namespace screen
