// The schemes' arithmetic: the slab count against the counting it stands for, and the
// look-ups and strings over the demo distributor's items and schemes.
#include <chrono>
#include <cmath>
#include <random>

#include "platform/convert.h"
#include "platform/runtime_error.h"
#include "schemes/scheme_arithmetic_quotient.h"
#include "screen_fixture.h"

namespace screen_test {
namespace {

using namespace grid;
using schemes::CountBySubtraction;
using schemes::SnapThroughText;

double LiteralCount(double dividend, double divider) {
    double quotient = 0;
    while (SnapThroughText(divider) <= SnapThroughText(dividend)) {
        dividend = SnapThroughText(dividend) - SnapThroughText(divider);
        quotient = SnapThroughText(quotient) + 1;
    }
    return quotient;
}

// A decimal of 1 to 15 significant digits, as a clerk's or a slab's figure.
double RandomDecimal(std::mt19937_64& random, int exponentFrom, int exponentTo) {
    const int digits = std::uniform_int_distribution<int>(1, 15)(random);
    std::string mantissa = std::to_string(std::uniform_int_distribution<int>(1, 9)(random));
    for (int i = 1; i < digits; ++i) mantissa += std::to_string(std::uniform_int_distribution<int>(0, 9)(random));
    const int exponent = std::uniform_int_distribution<int>(exponentFrom, exponentTo)(random);
    return std::stod(mantissa + "e" + std::to_string(exponent - digits + 1));
}

TEST(SlabCount, AgreesWithTheCountingOnRandomFigures) {
    std::mt19937_64 random(20261122);
    for (int i = 0; i < 4000; ++i) {
        const double divider = RandomDecimal(random, -6, 6);
        // A dividend near a whole number of dividers, or anywhere up to a few thousand
        // of them: both ends of every slab are met.
        const int fits = std::uniform_int_distribution<int>(0, 400)(random);
        double dividend;
        switch (i % 4) {
            case 0: dividend = SnapThroughText(divider * fits); break;
            case 1: dividend = divider * fits; break;  // unsnapped: the product's own noise
            case 2: dividend = RandomDecimal(random, -6, 6); break;
            default: dividend = SnapThroughText(divider * fits + RandomDecimal(random, -20, 0)); break;
        }
        if (dividend / divider > 1000) continue;
        ASSERT_EQ(CountBySubtraction(dividend, divider), LiteralCount(dividend, divider))
            << platform::NumberToText(dividend) << " / " << platform::NumberToText(divider);
    }
}

// A divider with more digits than the dividend's fifteen reach takes a rounded step
// each time: the long stride must round it the way the counting does.
TEST(SlabCount, AgreesWhereTheDividerIsFinerThanTheDividend) {
    std::mt19937_64 random(7);
    for (int i = 0; i < 30; ++i) {
        const double divider = RandomDecimal(random, 0, 0);   // 1 to 9.99..., up to 14 decimals
        const double dividend = RandomDecimal(random, 3, 4);  // 1000 to 99999, fewer decimals
        ASSERT_EQ(CountBySubtraction(dividend, divider), LiteralCount(dividend, divider))
            << platform::NumberToText(dividend) << " / " << platform::NumberToText(divider);
    }
    for (const auto& [dividend, divider] :
         {std::pair{123456.789012345, 1.00000000000001}, std::pair{99999.9999999999, 0.999999999999999},
          std::pair{20000.0, 1.00000000000005}}) {
        EXPECT_EQ(CountBySubtraction(dividend, divider), LiteralCount(dividend, divider))
            << platform::NumberToText(dividend) << " / " << platform::NumberToText(divider);
    }
}

TEST(SlabCount, TheFiguresTheSchemesDependOn) {
    // 0.3 into 0.9, three times where plain division of doubles gives 2, is the schemes session's.
    EXPECT_EQ(std::tuple(CountBySubtraction(5, 5), CountBySubtraction(4.99, 5), CountBySubtraction(0, 5),
                         CountBySubtraction(-10, 5)),
              std::tuple(1, 0, 0, 0));
    EXPECT_EQ(CountBySubtraction(-10, -5), 0);  // the divider does not fit at all
    EXPECT_EQ(std::tuple(CountBySubtraction(648, 500), CountBySubtraction(1000, 0.1)), std::tuple(1, 10000));
}

TEST(SlabCount, LargeCountsAnswerAtOnce) {
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(std::tuple(CountBySubtraction(1'000'000, 1), CountBySubtraction(1e9, 1),
                         CountBySubtraction(1e9 + 0.5, 0.1), CountBySubtraction(123456789012.345, 0.005)),
              std::tuple(1'000'000, 1e9, 10'000'000'005, 24691357802469));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(200));
}

TEST(SlabCount, ACountThatCouldNeverEndIsRefused) {
    for (const auto& [dividend, divider] : {std::pair{5.0, 0.0}, std::pair{5.0, -1.0}, std::pair{1e20, 1.0}}) {
        try {
            CountBySubtraction(dividend, divider);
            ADD_FAILURE() << "no refusal for " << dividend << " / " << divider;
        } catch (const platform::RuntimeError& error) {
            EXPECT_EQ(error.Number(), platform::err::InvalidCall);
        }
    }
}

class SchemeData : public ScreenTest {
protected:
    screen::Zuro_frmDispatch_Dispatch& f = Open(2);
};

TEST_F(SchemeData, ListsWithoutDuplicates) {
    // A match in any case, and a new entry cut on ",", are the schemes session's.
    EXPECT_EQ(f.AddStringwithCheck("A|B|", "C", "|"), "C|");
    // Cut on "," the list is one element, but the answer still ends in "|".
    EXPECT_EQ(f.AddStringwithCheck("A|B|", "A|B", ","), "");
    EXPECT_EQ(f.AddStringwithCheck("", "A", "|"), "A|");
}

TEST_F(SchemeData, AnItemsSaleTypeComesFromTheMasterAndIsTwoForAnUnknownItem) {
    database->ExecuteNative("UPDATE Items SET SaleID = 1 WHERE Product_Code = 'FD001'");
    EXPECT_EQ(std::tuple(f.GetSaleID("FD001"), f.GetSaleID("ZZ999")), std::tuple(1, 2));
}

TEST_F(SchemeData, FreeGoodsAreThereOnlyWhenTheSlabHasAnItemInStock) {
    // The free-drink choice in stock and the Toffee Jar without are in the schemes session.
    // The second is a slab of another scheme.
    EXPECT_EQ(std::tuple(f.chkFreeItemFound(201, 2011), f.chkFreeItemFound(206, 2011), f.chkFreeItemFound(999, 9999)),
              std::tuple(1, 0, 0));
}

TEST_F(SchemeData, UnitFactorsOfSlabsAndFreeGoods) {
    EXPECT_EQ(f.GetBaseUOMConv("FD001", 1), 1);
    EXPECT_EQ(f.GetBaseUOMConv("FD001", 2),
              std::stod(Scalar("SELECT UOM1_Conversion FROM Items WHERE Product_Code = 'FD001'")));
    EXPECT_EQ(f.GetBaseUOMConv("FD001", 3),
              std::stod(Scalar("SELECT UOM2_Conversion FROM Items WHERE Product_Code = 'FD001'")));
    EXPECT_EQ(std::tuple(f.GetBaseUOMConv("FD001", 0), f.GetBaseUOMConv("FD001", 5)), std::tuple(0, 0));
}

TEST_F(SchemeData, ApplicableQuantityCountsStepsOfTheSlabUnit) {
    expectedErrors = 1;
    EXPECT_EQ(std::tuple(f.GetApplicableQuantity(12, 3000, 2, 5), f.GetApplicableQuantity(12, 3000, 4, 1000),
                         f.GetApplicableQuantity(12, 3000, 7, 5)),
              std::tuple(2, 3, 0));
    // A step of 0 never reaches the count; one below 0 is refused and logged.
    EXPECT_EQ(f.getQuotient(10, -1), 0);
    EXPECT_TRUE(TranscriptHas("mdlGlobal : getQuotient - ")) << ErrorLines();
}

TEST_F(SchemeData, ARowAndTheGridInBaseUnits) {
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
}

TEST_F(SchemeData, DetailStringsAndTheSixteenBitScheme) {
    using Form = screen::Zuro_frmDispatch_Dispatch;
    EXPECT_EQ(std::tuple(Form::MultiSchemeDetail(201, 2011), Form::MultiSpecialCatSchemeDetail(301, 3011),
                         Form::MultiSchemeDetail(40000, 1)),
              std::tuple("201|2011|0|0", "301|3011|0|0", "40000|1|0|0"));
    try {
        Form::MultiSpecialCatSchemeDetail(40000, 1);
        ADD_FAILURE() << "a scheme above 16 bits was written";
    } catch (const platform::RuntimeError& error) {
        EXPECT_EQ(error.Number(), platform::err::Overflow);
    }
}

TEST_F(SchemeData, TheLeftOverAmounts) {
    expectedErrors = 1;
    EXPECT_EQ(screen::Zuro_frmDispatch_Dispatch::ComputeDiscount(1, 2, 3), 0);
    f.ComputeTotal(1, true);
    EXPECT_EQ(Errors(), 0);
    f.ComputeTotal(1, false);  // no grid is given: the inherited routine fails as it always did
    EXPECT_EQ(LastStatus(), "Error in computing amount");
    EXPECT_TRUE(TranscriptHas("Invoice : ComputeAmount - ")) << ErrorLines();
}

}  // namespace
}  // namespace screen_test
