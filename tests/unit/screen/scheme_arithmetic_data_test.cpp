// The schemes' look-ups and strings over the demo distributor's items and schemes.
#include "grid/row_model/grid_columns.h"
#include "platform/runtime_error.h"
#include "screen_fixture.h"

namespace screen_test {
namespace {

using namespace grid;

class SchemeData : public ScreenTest {};

TEST_F(SchemeData, ListsWithoutDuplicates) {
    auto& f = Open(2);
    EXPECT_EQ(f.AddStringwithCheck("A|B|", "b", "|"), "");
    EXPECT_EQ(f.AddStringwithCheck("A|B|", "C", "|"), "C|");
    // Cut on "," the list is one element, but the answer still ends in "|".
    EXPECT_EQ(f.AddStringwithCheck("A|B|", "C", ","), "C|");
    EXPECT_EQ(f.AddStringwithCheck("A|B|", "A|B", ","), "");
    EXPECT_EQ(f.AddStringwithCheck("", "A", "|"), "A|");
}

TEST_F(SchemeData, AnItemsSaleTypeComesFromTheMasterAndIsTwoForAnUnknownItem) {
    auto& f = Open(2);
    database->ExecuteNative("UPDATE Items SET SaleID = 1 WHERE Product_Code = 'FD001'");
    EXPECT_EQ(f.GetSaleID("FD001"), 1);
    EXPECT_EQ(f.GetSaleID("ZZ999"), 2);
}

TEST_F(SchemeData, FreeGoodsAreThereOnlyWhenTheSlabHasAnItemInStock) {
    auto& f = Open(2);
    EXPECT_EQ(f.chkFreeItemFound(206, 2061), 1);  // two free drinks to choose from, in stock
    EXPECT_EQ(f.chkFreeItemFound(201, 2011), 1);
    EXPECT_EQ(f.chkFreeItemFound(203, 2031), 0);  // Toffee Jar has no stock
    EXPECT_EQ(f.chkFreeItemFound(206, 2011), 0);  // a slab of another scheme
    EXPECT_EQ(f.chkFreeItemFound(999, 9999), 0);
    EXPECT_EQ(Errors(), 0) << ErrorLines();
}

TEST_F(SchemeData, UnitFactorsOfSlabsAndFreeGoods) {
    auto& f = Open(2);
    EXPECT_EQ(f.GetBaseUOMConv("FD001", 1), 1);
    EXPECT_EQ(f.GetBaseUOMConv("FD001", 2),
              std::stod(Scalar("SELECT UOM1_Conversion FROM Items WHERE Product_Code = 'FD001'")));
    EXPECT_EQ(f.GetBaseUOMConv("FD001", 3),
              std::stod(Scalar("SELECT UOM2_Conversion FROM Items WHERE Product_Code = 'FD001'")));
    EXPECT_EQ(f.GetBaseUOMConv("FD001", 0), 0);
    EXPECT_EQ(f.GetBaseUOMConv("FD001", 5), 0);
}

TEST_F(SchemeData, ApplicableQuantityCountsStepsOfTheSlabUnit) {
    auto& f = Open(2);
    EXPECT_EQ(f.GetApplicableQuantity(12, 3000, 4, 0), 12);  // no step: the quantity, even by value
    EXPECT_EQ(f.GetApplicableQuantity(12, 3000, 2, 5), 2);
    EXPECT_EQ(f.GetApplicableQuantity(12, 3000, 4, 1000), 3);
    EXPECT_EQ(f.GetApplicableQuantity(12, 3000, 7, 5), 0);
    // A step of 0 never reaches the count; one below 0 is refused and logged.
    EXPECT_EQ(f.getQuotient(10, -1), 0);
    EXPECT_TRUE(TranscriptHas("mdlGlobal : getQuotient - ")) << ErrorLines();
}

TEST_F(SchemeData, ARowAndTheGridInBaseUnits) {
    auto& f = Open(2);
    auto& grid = f.DTFlexDispatch;
    const double caseRate = std::stod(Scalar("SELECT UOM2_Conversion FROM Items WHERE Product_Code = 'FD001'"));
    grid.SetGridRows(3);
    for (int row : {1, 2}) {
        grid.SetCell(row, colItemCode, "FD001");
        grid.SetCell(row, colOriginalPrice, "2");
    }
    grid.SetCell(1, colUOMID, Scalar("SELECT UOM2 FROM Items WHERE Product_Code = 'FD001'"));
    grid.SetCell(1, colQuantity, "2");
    grid.SetCell(2, colUOMID, "0");
    grid.SetCell(2, colQuantity, "0*0*5");
    EXPECT_EQ(f.GetActualQuantity(1, 1, 0, grid), 2 * caseRate);
    EXPECT_EQ(f.GetActualQuantity(1, 3, caseRate, grid), 2);      // a case step counts cases
    EXPECT_EQ(f.GetActualQuantity(1, 4, 2 * caseRate, grid), 2);  // value: price 2 a piece
    EXPECT_EQ(f.GetActualQuantity(2, 1, 0, grid), 5);
    // A multi-unit row replaces what came before it and counts twice.
    EXPECT_EQ(f.GetTotalQtyAmountForItem("FD001"), 10);
    grid.SetCell(2, colFreeRow, "1");
    EXPECT_EQ(f.GetTotalQtyAmountForItem("FD001"), 2 * caseRate);
    EXPECT_EQ(Errors(), 0) << ErrorLines();
}

TEST_F(SchemeData, DetailStringsAndTheSixteenBitScheme) {
    using Form = screen::Zuro_frmDispatch_Dispatch;
    EXPECT_EQ(Form::MultiSchemeDetail(201, 2011), "201|2011|0|0");
    EXPECT_EQ(Form::MultiSpecialCatSchemeDetail(301, 3011), "301|3011|0|0");
    EXPECT_EQ(Form::MultiSchemeDetail(40000, 1), "40000|1|0|0");
    try {
        Form::MultiSpecialCatSchemeDetail(40000, 1);
        ADD_FAILURE() << "a scheme above 16 bits was written";
    } catch (const platform::RuntimeError& error) {
        EXPECT_EQ(error.Number(), platform::err::Overflow);
    }
}

TEST_F(SchemeData, SaleTypeAndTheLeftOverAmounts) {
    auto& f = Open(2);
    EXPECT_EQ(f.GetSaleID("NO-SUCH-ITEM"), 2);
    EXPECT_EQ(f.GetSaleID("FD001"),
              std::stol(Scalar("SELECT IFNULL(SaleID, 0) FROM Items WHERE Product_Code = 'FD001'")));
    EXPECT_EQ(screen::Zuro_frmDispatch_Dispatch::ComputeDiscount(1, 2, 3), 0);
    f.ComputeTotal(1, true);
    EXPECT_EQ(Errors(), 0);
    f.ComputeTotal(1, false);  // no grid is given: the inherited routine fails as it always did
    EXPECT_EQ(LastStatus(), "Error in computing amount");
    EXPECT_TRUE(TranscriptHas("Invoice : ComputeAmount - ")) << ErrorLines();
}

}  // namespace
}  // namespace screen_test
