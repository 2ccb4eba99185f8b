// The scheme procedures on a small database of their own: which schemes stand for a
// customer on a day, the slab a total reaches, the minimums of a special category
// scheme; then whether the demo's free goods can be had.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/convert.h"
#include "platform/database.h"
#include "server/database_files.h"
#include "server/schema.h"
#include "server_test_support.h"
#include "support/scratch_files.h"

namespace server {
namespace {

// A1 sells in pieces, dozens and gross (144). Schemes 1 to 6 are item schemes of A1,
// 101 to 104 special category schemes; all run through June 2030.
constexpr const char* kRows = R"SQL(
INSERT INTO UOM (UOM, Description) VALUES (1, 'PCS'), (2, 'DOZ'), (3, 'GROSS');
INSERT INTO ItemCategories (CategoryID, Category_Name) VALUES (1, 'Goods');
INSERT INTO Items (Product_Code, ProductName, CategoryID, UOM, UOM1, UOM1_Conversion, UOM2, UOM2_Conversion)
VALUES ('A1', 'Apple', 1, 1, 2, 12, 3, 144), ('B7', 'Bean', 1, 1, NULL, NULL, NULL, NULL);
INSERT INTO Customer (CustomerID, Company_Name) VALUES ('C1', 'One'), ('C2', 'Two');
INSERT INTO Schemes (SchemeID, SchemeName, SchemeType, SchemeScope, HasSlabs, AllCustomers, Active) VALUES
    (1, 'Gross Offer', 3, 1, 1, 1, 1), (2, 'Value Offer', 3, 1, 1, 1, 1), (3, 'Two Only', 3, 1, 1, 0, 1),
    (4, 'Switched Off', 3, 1, 1, 1, 0), (5, 'Load Time', 17, 1, 1, 1, 1), (6, 'Dozens', 3, 1, 0, 1, 1),
    (101, 'Combo', 3, 2, 1, 1, 1), (102, 'Value Combo', 3, 2, 1, 1, 1), (103, 'Gross Off', 1, 2, 1, 1, 1),
    (104, 'Two Combo', 3, 2, 1, 0, 1);
UPDATE Schemes SET ValidFrom = '2030-06-01 00:00:00', ValidTo = '2030-06-30 23:59:59',
    CreationDate = CASE WHEN AllCustomers = 0 THEN '2030-06-10 15:00:00' ELSE '2030-05-01 00:00:00' END;
INSERT INTO SchemeCustomers (SchemeID, CustomerID) VALUES (3, 'C2'), (104, 'C2');
INSERT INTO SchemeProducts (SchemeID, Product_Code, MinQty) SELECT SchemeID, 'A1', 0 FROM Schemes WHERE SchemeID < 104;
UPDATE SchemeProducts SET MinQty = 24 WHERE SchemeID = 101;
INSERT INTO SchemeProducts (SchemeID, Product_Code, MinQty) VALUES (101, 'B7', 6), (104, 'B7', 0);
INSERT INTO SchemeSlabs (SlabID, SchemeID, SlabStart, SlabEnd, SlabUnit, Onward, FreeQty, FreeUnit, DiscountPercent)
VALUES (11, 1, 2, 9, 3, 0, 1, 2, 0), (12, 1, 10, 999, 3, 1440, 2, 2, 0), (21, 2, 1000, 999999, 4, 1000, 1, 1, 0),
    (31, 3, 12, 99999, 1, 0, 1, 1, 0), (41, 4, 1, 99999, 1, 0, 1, 1, 0), (51, 5, 1, 99999, 1, 0, 1, 1, 0),
    (61, 6, 1, 1, 2, 12, 1, 1, 0), (1011, 101, 100, 499, 1, 0, 1, 2, 0), (1012, 101, 500, 99999, 1, 500, 2, 1, 0),
    (1021, 102, 0, 99999, 4, 0, 1, 1, 0), (1031, 103, 1, 10, 3, 0, 0, 1, 5), (1041, 104, 1, 999, 1, 0, 1, 1, 0);
)SQL";

constexpr const char* kMidJune = "2030-06-15 10:00:00";

// Parameters as the screen sends them: text, whole numbers and other numbers.
platform::Parameter P(const char* text) { return {text, platform::adtype::VarChar}; }
platform::Parameter P(int number) { return {number, platform::adtype::Integer}; }
platform::Parameter P(double number) { return {number, platform::adtype::Double}; }

class SchemeProcedures : public ::testing::Test {
protected:
    explicit SchemeProcedures(bool demo = false)
        : db_(demo ? CreateDatabase(test_support::ScratchPath("schemes", ".db"), true)
                   : CreateDatabaseFromScripts(test_support::ScratchPath("schemes", ".db"), {SchemaScript(), kRows})) {}

    // The rows of the one result, all columns or only those named, joined by "/".
    std::string Rows(const std::string& name, const platform::ParameterList& parameters,
                     const std::vector<int>& columns = {}) {
        const auto results = db_->CallProcedure(name, parameters);
        EXPECT_EQ(results.size(), 1u);
        if (columns.empty()) return testkit::RowsText(results.front());
        std::string out;
        for (const auto& row : results.front().rows) {
            out += out.empty() ? "" : ";";
            for (int c : columns) out += (c == columns.front() ? "" : "/") + platform::ToText(row[c]);
        }
        return out;
    }
    std::string Refusal(const std::string& name, const platform::ParameterList& parameters) {
        return testkit::Refusal([&] { db_->CallProcedure(name, parameters); });
    }
    std::string SKU(const char* item, const char* day, double quantity, double amount, const char* customer,
                    const char* madeBy = "") {
        return Rows("Zuro_sp_FindDispatch_SKUSchemeID_New",
                    {P(item), P(day), P(quantity), P(customer), P(amount), P(madeBy)}, {0, 4});
    }
    std::string SplSlab(int scheme, double base, double uom2, const char* customer = "C1", int type = 3) {
        return Rows("Zuro_sp_GetDispatch_SchSlabDetails",
                    {P(scheme), P(base), P(0.0), P(uom2), P(0.0), P(customer), P(type)});
    }

    std::shared_ptr<EmbeddedConnection> db_;
};

TEST_F(SchemeProcedures, AnItemsSchemesAreThoseStandingWhoseSlabItsTotalReaches) {
    const std::tuple<const char*, const char*, double, double, const char*, const char*, const char*> cases[] = {
        {"A1", kMidJune, 11, 0, "C1", "", ""},                   // scheme 6 counts dozens from one on
        {" a1 ", kMidJune, 288, 999.99, "C1", "", "1/11;6/61"},  // two gross
        {"A1", kMidJune, 1368, 1000, "C1", "", "2/21;6/61"},     // 9.5 gross, between the bands
        {"A1", kMidJune, 1440, 0, "C1", "", "1/12;6/61"},
        {"A1", kMidJune, 999 * 144 + 1, 0, "C1", "", "6/61"},  // above the last band
        {"A1", "2030-06-30 23:00:00", 12, 0, "c2 ", "", "3/31;6/61"},
        // An amendment is judged by its note's creation day: scheme 3 was made later
        // on the 10th, which still counts.
        {"A1", kMidJune, 12, 0, "C2", "10/06/2030", "3/31;6/61"},
        {"A1", kMidJune, 12, 0, "C2", "09/06/2030", "6/61"},
        {"A1", kMidJune, 12, 0, "C2", "1", ""},  // the old note was not found
    };
    for (const auto& [code, day, quantity, amount, customer, madeBy, expected] : cases)
        EXPECT_EQ(SKU(code, day, quantity, amount, customer, madeBy), expected) << quantity;
    EXPECT_EQ(Rows("Zuro_sp_FindDispatch_SKUSchemeID_New", {P("a1"), P(kMidJune), P(288.0), P("C1")}, {1, 2, 3}),
              "A1/Gross Offer/3;A1/Dozens/3");

    const auto slab = [&](int type, int slabID, const char* item) {
        return Rows("sp_get_SKUBased_SchItemsDetail", {P(1), P("A1"), P(type), P(slabID), P(item)});
    };
    EXPECT_EQ(
        std::tuple(slab(3, 12, "A1"), slab(3, 0, "a1"), slab(17, 12, "A1") + slab(3, 12, "B7") + slab(3, 21, "A1")),
        std::tuple("1|10r|999r|2r|NULL|3|2|1440r|12", "1|2r|9r|1r|NULL|3|2|0r|11;1|10r|999r|2r|NULL|3|2|1440r|12", ""));
}

TEST_F(SchemeProcedures, SpecialCategorySchemesTheirItemsAndMinimums) {
    const auto find = [&](const char* day, const char* customer, const char* madeBy) {
        return Rows("Zuro_sp_FindSplCatSchemeID_New", {P(day), P(customer), P(""), P(madeBy)}, {0});
    };
    EXPECT_EQ(Rows("Zuro_sp_FindSplCatSchemeID_New", {P(kMidJune), P("C1")}),
              "101|Combo|3;102|Value Combo|3;103|Gross Off|1");
    EXPECT_EQ(find(kMidJune, "C2", "") + " " + find(kMidJune, "C2", "09/06/2030"), "101;102;103;104 101;102;103");
    EXPECT_EQ(find("2030-07-01 00:00:00", "C2", ""), "");
    EXPECT_EQ(Rows("Zuro_sp_GetSplCategoryItems_New", {P(101)}), "A1|24r;B7|6r");
    EXPECT_EQ(Rows("Zuro_sp_GetSplCategoryItems_New", {P(1)}), "");

    using Case = std::tuple<int, const char*, const char*>;
    const Case cases[] = {
        {101, "A1,12,1|B7,6,1|A1,12,1", "1"},  // one item's rows add up
        {101, "a1,24,0|B7,6,0|ZZ,1,1|", "1"},
        {101, "A1,23.5,1|B7,6,1", "0"},
        {101, "A1,24,1", "0"},  // B7, not on the note, holds 0 of its 6
        {102, "", "1"},         // no item asks a minimum
        {1, "A1,1,1", "0"},     // an item scheme
    };
    for (const auto& [scheme, check, expected] : cases)
        EXPECT_EQ(Rows("Zuro_SP_isAllItemsexistsMinQty", {P(scheme), P(check)}), expected) << check;
    for (const char* bad : {"A1,24|B7,6,1", "A1,x,1", ",1,1", "A1,1,1,1"})
        EXPECT_THAT(Refusal("Zuro_SP_isAllItemsexistsMinQty", {P(101), P(bad)}),
                    ::testing::HasSubstr("is not of the form item,quantity,value"));
}

TEST_F(SchemeProcedures, TheSpecialCategorySlabIsTheHighestTheTotalOfItsUnitReaches) {
    for (auto [base, slab] : std::vector<std::pair<double, std::string>>{
             {99.99, ""}, {100 - 1e-12, "1011"}, {499, "1011"}, {499.5, ""}, {500, "1012"}, {100000, ""}}) {
        const std::string row = SplSlab(101, base, 0);
        EXPECT_EQ(row.empty() ? "" : platform::Split(row, "|")[6], slab) << base;
    }
    // The second sends the value 0 as the screen does.
    EXPECT_EQ(std::tuple(SplSlab(101, 500, 0), SplSlab(102, 0, 0), SplSlab(103, 0, 1, "C1", 0),
                         SplSlab(103, 0, 1, "C1", 3) + SplSlab(104, 5, 0, "C1") + SplSlab(1, 500, 0)),
              std::tuple("3|1|500r|99999r|1|500r|1012|2r|0r|0r", "3|4|0r|99999r|1|0r|1021|1r|0r|0r",
                         "1|3|1r|10r|1|0r|1031|0r|0r|5r", ""));
    EXPECT_NE(SplSlab(104, 5, 0, "C2"), "");
}

TEST_F(SchemeProcedures, ACustomersSchemesOfTheDayAreCounted) {
    const auto count = [&](const char* day, const char* customer) {
        return Rows("Zuro_sp_Check_SchExistsForCust", {P(day), P(customer)});
    };
    EXPECT_EQ(count(kMidJune, "C1") + count(kMidJune, "C2") + count("2030-07-01", "C2"), "790");
}

TEST_F(SchemeProcedures, MalformedArgumentsAreRefused) {
    const char* sku = "Zuro_sp_FindDispatch_SKUSchemeID_New";
    const char* badDate = "Conversion failed when converting date and/or time from character string.";
    EXPECT_EQ(Refusal(sku, {P("A1"), P("15 June"), P(12.0), P("C1")}), badDate);
    EXPECT_EQ(Refusal(sku, {P("A1"), P(kMidJune), P(12.0), P("C1"), P(0.0), P("soon")}), badDate);
    EXPECT_EQ(Refusal(sku, {P("A1"), P(kMidJune), P(12.0)}),
              "Procedure or function 'Zuro_sp_FindDispatch_SKUSchemeID_New' expects parameter '@CustomerID', which "
              "was not supplied.");
}

class DemoSchemes : public SchemeProcedures {
protected:
    DemoSchemes() : SchemeProcedures(true) {}
};

// Free goods on the demo data: none in stock (203, 306), off the master with stock
// left (209), in stock (201), keeping no stock (305).
TEST_F(DemoSchemes, FreeGoodsCountOnlyFromItemsInTheMasterWithLiveStockOrNoneKept) {
    for (auto [scheme, slab, answer] :
         {std::tuple{203, 2031, "0"}, {209, 2091, "0"}, {306, 3061, "0"}, {201, 2011, "1"}, {305, 3051, "1"}})
        EXPECT_EQ(Rows("Zuro_SP_ListFreeSKUCount", {P(scheme), P(slab)}), answer) << slab;
}

}  // namespace
}  // namespace server
