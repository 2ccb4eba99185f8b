#include <gtest/gtest.h>

#include "host_fixture.h"
#include "platform/controls.h"

namespace host_test {
namespace {

class UnitsTest : public HostTest {
protected:
    UnitsTest() {
        Sql(R"(
            INSERT INTO UOM (UOM, Description) VALUES (1, 'Piece'), (2, 'Box'), (3, 'Carton');
            INSERT INTO ItemCategories (CategoryID, Category_Name) VALUES (1, 'Soaps');
            INSERT INTO Items (Product_Code, ProductName, CategoryID, UOM, BaseUOM) VALUES
                ('ONE', 'Loose soap', 1, 1, 1),
                ('KID''S', 'Kid''s soap', 1, 1, 1);
            INSERT INTO Items (Product_Code, ProductName, CategoryID, UOM, BaseUOM, UOM1, UOM1_Conversion) VALUES
                ('TWO', 'Soap in boxes', 1, 2, 1, 2, 12);
            INSERT INTO Items (Product_Code, ProductName, CategoryID, UOM, BaseUOM, UOM1, UOM1_Conversion, UOM2,
                               UOM2_Conversion) VALUES
                ('THREE', 'Soap in cartons', 1, 3, 1, 2, 12, 3, 144);
        )");
    }

    // Validates and checks that a refusal leaves both out values at 0.
    bool Valid(const std::string& item, const std::string& quantity, double* base = nullptr) {
        int parts = -1;
        double baseQuantity = -1;
        bool valid = global().ValidateUOMQuantity(item, quantity, parts, baseQuantity);
        if (!valid) {
            EXPECT_EQ(parts, 0) << quantity;
            EXPECT_EQ(baseQuantity, 0) << quantity;
        }
        if (base) *base = baseQuantity;
        return valid;
    }
};

TEST_F(UnitsTest, RatesFollowTheLadderOfEachItem) {
    EXPECT_EQ(global().ConvertToBaseUOM("ONE", 1), 1);
    EXPECT_EQ(global().ConvertToBaseUOM("ONE", 2), 0);
    EXPECT_EQ(global().ConvertToBaseUOM("TWO", 1), 1);
    EXPECT_EQ(global().ConvertToBaseUOM("TWO", 2), 12);
    EXPECT_EQ(global().ConvertToBaseUOM("TWO", 3), 0);
    EXPECT_EQ(global().ConvertToBaseUOM("THREE", 3), 144);
    EXPECT_EQ(global().ConvertToBaseUOM("three", 2), 12);  // codes match without regard to case
    EXPECT_EQ(global().ConvertToBaseUOM("THREE", 0), 1);  // the multi-unit entry counts in base units
    EXPECT_EQ(global().ConvertToBaseUOM("NOSUCH", 1), 0);
    EXPECT_EQ(global().ConvertToBaseUOM("", 1), 0);
    EXPECT_EQ(global().ConvertToBaseUOM("KID'S", 1), 1);
}

TEST_F(UnitsTest, ExpressionsAlignToTheBaseUnitOnTheRight) {
    double base = 0;
    int parts = 0;
    EXPECT_TRUE(global().ValidateUOMQuantity("THREE", "2*0*5", parts, base));
    EXPECT_EQ(parts, 3);
    EXPECT_EQ(base, 2 * 144 + 5);
    EXPECT_TRUE(Valid("THREE", "3*4", &base));
    EXPECT_EQ(base, 3 * 12 + 4);
    EXPECT_TRUE(Valid("TWO", "3*4", &base));
    EXPECT_EQ(base, 40);
    EXPECT_TRUE(Valid("THREE", "7", &base));
    EXPECT_EQ(base, 7);
    EXPECT_TRUE(Valid("ONE", "7", &base));
    EXPECT_EQ(base, 7);
    EXPECT_TRUE(Valid("TWO", "1.5*0", &base));
    EXPECT_EQ(base, 18);
    EXPECT_TRUE(Valid("THREE", " 1 * 0 * 0 ", &base));
    EXPECT_EQ(base, 144);
    EXPECT_TRUE(Valid("THREE", "0*0*0", &base));
    EXPECT_EQ(base, 0);

    EXPECT_EQ(global().ConvertToDisplayUOM("THREE", "1*1*1"), 157);
    EXPECT_EQ(global().ConvertToDisplayUOM("THREE", "x"), 0);
}

TEST_F(UnitsTest, EveryOtherTextIsRefusedWithoutAnError) {
    for (const char* text : {"", "*", "2**5", "2*", "*5", "-1*2", "+1", "1*-0", "a*2", "2*b", "1e2", "2 3",
                             "1.2.3", ".", "0x1", "1*2*3*4"})
        EXPECT_FALSE(Valid("THREE", text)) << '"' << text << '"';
    EXPECT_FALSE(Valid("ONE", "1*2")) << "more counts than the item has units";
    EXPECT_FALSE(Valid("TWO", "1*2*3"));
    EXPECT_FALSE(Valid("NOSUCH", "5")) << "unknown item";
    EXPECT_EQ(transcript.ErrorCount(), 0);
}

TEST_F(UnitsTest, InfoNormalisesToThreeCounts) {
    EXPECT_EQ(global().GetUOMInfo("2*0*5"), "2*0*5");
    EXPECT_EQ(global().GetUOMInfo("3*4"), "0*3*4");
    EXPECT_EQ(global().GetUOMInfo("5"), "0*0*5");
    EXPECT_EQ(global().GetUOMInfo(""), "0*0*0");
}

TEST_F(UnitsTest, LevelsGiveTheirRateAndUnit) {
    long uom = -1;
    EXPECT_EQ(global().ConvertWithRate("THREE", 3, uom), 144);
    EXPECT_EQ(uom, 3);
    EXPECT_EQ(global().ConvertWithRate("THREE", 2, uom), 12);
    EXPECT_EQ(uom, 2);
    EXPECT_EQ(global().ConvertWithRate("THREE", 1, uom), 1);
    EXPECT_EQ(uom, 1);
    EXPECT_EQ(global().ConvertWithRate("TWO", 3, uom), 0);
    EXPECT_EQ(uom, 0);
    EXPECT_EQ(global().ConvertWithRate("TWO", 4, uom), 0);
    EXPECT_EQ(global().ConvertWithRate("NOSUCH", 1, uom), 0);
    EXPECT_EQ(uom, 0);
}

TEST_F(UnitsTest, DescriptionTakesTheSalesUnitWhenNoneIsGiven) {
    long uom = 0;
    EXPECT_EQ(global().GetUOMDescription("THREE", uom), "Carton");
    EXPECT_EQ(uom, 3);
    uom = 2;
    EXPECT_EQ(global().GetUOMDescription("THREE", uom), "Box");
    EXPECT_EQ(uom, 2);
    uom = 0;
    EXPECT_EQ(global().GetUOMDescription("NOSUCH", uom), "");
}

TEST_F(UnitsTest, IndexOfAUnitInAList) {
    TestForm form;
    platform::ListBox list(form, "lstUOM");
    list.AddItem("Multiple", 0);
    list.AddItem("Box", 2);
    list.AddItem("Carton", 3);
    EXPECT_EQ(global().ComputeUOMIndex(list, 3), 2);
    EXPECT_EQ(global().ComputeUOMIndex(list, 0), 0);
    EXPECT_EQ(global().ComputeUOMIndex(list, 7), -1);
}

}  // namespace
}  // namespace host_test
