// The scheme procedures on a small database of their own: which schemes stand for a
// customer on a day, the slab a total reaches, the minimums of a special category
// scheme, and whether free goods can be had.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/convert.h"
#include "platform/database.h"
#include "server/database_files.h"
#include "server/schema.h"
#include "server_test_support.h"

namespace server {
namespace {

using platform::adtype::Date;
using platform::adtype::Double;
using platform::adtype::Integer;
using platform::adtype::VarChar;

// A1 sells in pieces, dozens (UOM1, 12) and gross (UOM2, 144); F1 to F3 and P1 are
// free goods: F1 in stock, F2 with nothing live, F3 switched off in the master with
// stock left, P1 of a category that keeps no stock. Every scheme runs through June
// 2030 unless told otherwise.
constexpr const char* kRows = R"SQL(
INSERT INTO UOM (UOM, Description) VALUES (1, 'PCS'), (2, 'DOZ'), (3, 'GROSS');
INSERT INTO ItemCategories (CategoryID, Category_Name, Track_Inventory) VALUES (1, 'Goods', 1), (2, 'Stands', 0);
INSERT INTO Items (Product_Code, ProductName, CategoryID, UOM, BaseUOM, UOM1, UOM1_Conversion, UOM2, UOM2_Conversion,
                   Active) VALUES
    ('A1', 'Apple', 1, 1, 1, 2, 12, 3, 144, 1), ('B7', 'Bean', 1, 1, 1, NULL, NULL, NULL, NULL, 1),
    ('F1', 'Fig', 1, 1, 1, NULL, NULL, NULL, NULL, 1), ('F2', 'Fennel', 1, 1, 1, NULL, NULL, NULL, NULL, 1),
    ('F3', 'Flax', 1, 1, 1, NULL, NULL, NULL, NULL, 0), ('P1', 'Stand', 2, 1, 1, NULL, NULL, NULL, NULL, 1);
INSERT INTO Batch_Products (Batch_Code, Product_Code, Expiry, Quantity) VALUES
    (1, 'F1', '2999-01-01 00:00:00', 10), (2, 'F2', '2999-01-01 00:00:00', 0), (3, 'F2', '2000-01-01 00:00:00', 40),
    (4, 'F3', NULL, 50);
INSERT INTO Customer (CustomerID, Company_Name) VALUES ('C1', 'One'), ('C2', 'Two');

INSERT INTO Schemes (SchemeID, SchemeName, SchemeType, SchemeScope, HasSlabs, AllCustomers, Active, CreationDate)
VALUES (1, 'Gross Offer', 3, 1, 1, 1, 1, '2030-05-01 00:00:00'), (2, 'Value Offer', 3, 1, 1, 1, 1, '2030-05-01 00:00:00'),
       (3, 'Two Only', 3, 1, 1, 0, 1, '2030-06-10 15:00:00'), (4, 'Switched Off', 3, 1, 1, 1, 0, '2030-05-01 00:00:00'),
       (5, 'Load Time', 17, 1, 1, 1, 1, '2030-05-01 00:00:00'), (6, 'Dozens', 3, 1, 0, 1, 1, '2030-05-01 00:00:00'),
       (101, 'Combo', 3, 2, 1, 1, 1, '2030-05-01 00:00:00'), (102, 'Value Combo', 3, 2, 1, 1, 1, '2030-05-01 00:00:00'),
       (103, 'Gross Off', 1, 2, 1, 1, 1, '2030-05-01 00:00:00'), (104, 'Two Combo', 3, 2, 1, 0, 1, '2030-06-10 15:00:00');
UPDATE Schemes SET ValidFrom = '2030-06-01 00:00:00', ValidTo = '2030-06-30 23:59:59';
INSERT INTO SchemeCustomers (SchemeID, CustomerID) VALUES (3, 'C2'), (104, 'C2');
INSERT INTO SchemeProducts (SchemeID, Product_Code, MinQty) VALUES
    (1, 'A1', 0), (2, 'A1', 0), (3, 'A1', 0), (4, 'A1', 0), (5, 'A1', 0), (6, 'A1', 0),
    (101, 'A1', 24), (101, 'B7', 6), (101, 'F1', 0), (102, 'A1', 0), (103, 'A1', 0), (104, 'B7', 0);
INSERT INTO SchemeSlabs (SlabID, SchemeID, SlabStart, SlabEnd, SlabUnit, Onward, FreeQty, FreeUnit, DiscountPercent) VALUES
    (11, 1, 2, 9, 3, 0, 1, 2, 0), (12, 1, 10, 999, 3, 1440, 2, 2, 0), (21, 2, 1000, 999999, 4, 1000, 1, 1, 0),
    (31, 3, 12, 99999, 1, 0, 1, 1, 0), (41, 4, 1, 99999, 1, 0, 1, 1, 0), (51, 5, 1, 99999, 1, 0, 1, 1, 0),
    (61, 6, 1, 1, 2, 12, 1, 1, 0),
    (1011, 101, 100, 499, 1, 0, 1, 2, 0), (1012, 101, 500, 99999, 1, 500, 2, 1, 0),
    (1021, 102, 0, 99999, 4, 0, 1, 1, 0), (1031, 103, 1, 10, 3, 0, 0, 1, 5), (1041, 104, 1, 999, 1, 0, 1, 1, 0);
INSERT INTO SchemeFreeItems (SlabID, Free_Item_Code) VALUES
    (11, 'F1'), (12, 'F2'), (21, 'F3'), (31, 'P1'), (61, 'F3'), (61, 'F1');
)SQL";

class SchemeProcedures : public ::testing::Test {
protected:
    SchemeProcedures() : db_(CreateDatabaseFromScripts(folder_.File("schemes.db"), {SchemaScript(), kRows})) {}

    std::string Rows(const std::string& name, const platform::ParameterList& parameters) {
        const auto results = db_->CallProcedure(name, parameters);
        EXPECT_EQ(results.size(), 1u) << name;
        return results.empty() ? "" : testkit::RowsText(results.front());
    }
    std::string Refusal(const std::string& name, const platform::ParameterList& parameters) {
        return testkit::Refusal([&] { db_->CallProcedure(name, parameters); });
    }

    // The SKU list as the screen asks it, the day given as the database writes it.
    std::string SKUSchemes(const std::string& item, const std::string& day, double quantity, double amount,
                           const std::string& customer = "C1", const std::string& madeBy = "") {
        return Rows("Zuro_sp_FindDispatch_SKUSchemeID_New", {{item, VarChar},
                                                             {day, VarChar},
                                                             {quantity, Double},
                                                             {customer, VarChar},
                                                             {amount, Double},
                                                             {madeBy, VarChar}});
    }
    std::string SplCatSlab(long long scheme, double base, double uom1, double uom2, double value,
                           const std::string& customer = "C1", long long type = 3) {
        return Rows("Zuro_sp_GetDispatch_SchSlabDetails", {{scheme, Integer},
                                                           {base, Double},
                                                           {uom1, Double},
                                                           {uom2, Double},
                                                           {value, Double},
                                                           {customer, VarChar},
                                                           {type, Integer}});
    }
    std::string MinQtyMet(long long scheme, const std::string& check) {
        return Rows("Zuro_SP_isAllItemsexistsMinQty", {{scheme, Integer}, {check, VarChar}});
    }

    testkit::ScratchFolder folder_;
    std::shared_ptr<EmbeddedConnection> db_;
};

constexpr const char* kMidJune = "2030-06-15 10:00:00";

TEST_F(SchemeProcedures, AnItemsSchemesAreThoseWhoseSlabTheTotalReachesInTheSlabsUnit) {
    struct Case {
        double quantity, amount;
        const char* expected;
    };
    // Scheme 1 counts gross (144), scheme 6 dozens from one on, scheme 2 value.
    const Case cases[] = {
        {11, 0, ""},
        {12, 0, "6|A1|Dozens|3|61"},
        {287, 0, "6|A1|Dozens|3|61"},
        {288, 0, "1|A1|Gross Offer|3|11;6|A1|Dozens|3|61"},
        {1296, 999.99, "1|A1|Gross Offer|3|11;6|A1|Dozens|3|61"},
        {1368, 1000, "2|A1|Value Offer|3|21;6|A1|Dozens|3|61"},  // 9.5 gross falls between the bands
        {1440, 0, "1|A1|Gross Offer|3|12;6|A1|Dozens|3|61"},
        {999 * 144 + 1, 0, "6|A1|Dozens|3|61"},  // above the last band's end
    };
    for (const Case& c : cases)
        EXPECT_EQ(SKUSchemes("A1", kMidJune, c.quantity, c.amount), c.expected) << c.quantity << " " << c.amount;
    // The item's code as typed, in another case and with blanks.
    EXPECT_EQ(SKUSchemes(" a1 ", kMidJune, 288, 0), "1|A1|Gross Offer|3|11;6|A1|Dozens|3|61");
    EXPECT_EQ(SKUSchemes("B7", kMidJune, 288, 5000), "");
}

TEST_F(SchemeProcedures, AnItemsSchemesStandOnTheirDaysForTheirCustomersAsMadeByTheCreationDay) {
    struct Case {
        const char *day, *customer, *madeBy, *expected;
    };
    const Case cases[] = {
        {"2030-06-01 00:00:00", "C1", "", "6"},
        {"2030-06-30 23:00:00", "C1", "", "6"},
        {"2030-05-31 23:59:59", "C1", "", ""},
        {"2030-07-01 00:00:00", "C1", "", ""},
        {kMidJune, "C2", "", "3;6"},
        {kMidJune, "c2 ", "", "3;6"},
        // An amendment judged by its note's creation day: a scheme made later that
        // day still counts, one made the day after does not.
        {kMidJune, "C2", "10/06/2030", "3;6"},
        {kMidJune, "C2", "2030-06-10", "3;6"},
        {kMidJune, "C2", "09/06/2030", "6"},
        {kMidJune, "C2", "1", ""},  // the old note was not found
    };
    for (const Case& c : cases) {
        std::string ids;
        const std::string rows = SKUSchemes("A1", c.day, 12, 0, c.customer, c.madeBy);
        for (const auto& row : platform::Split(rows, ";"))
            ids += (ids.empty() ? "" : ";") + platform::Split(row, "|")[0];
        EXPECT_EQ(ids, c.expected) << c.day << " " << c.customer << " " << c.madeBy;
    }
}

TEST_F(SchemeProcedures, TheSlabOfAnItemsSchemeIsThatOfItsTypeAndItem) {
    const auto slab = [&](long long scheme, const char* key, long long type, long long slabID, const char* item) {
        return Rows("sp_get_SKUBased_SchItemsDetail",
                    {{scheme, Integer}, {key, VarChar}, {type, Integer}, {slabID, Integer}, {item, VarChar}});
    };
    EXPECT_EQ(slab(1, "A1", 3, 12, "A1"), "1|10r|999r|2r|NULL|3|2|1440r|12");
    EXPECT_EQ(slab(1, "a1", 3, 0, "A1"), "1|2r|9r|1r|NULL|3|2|0r|11;1|10r|999r|2r|NULL|3|2|1440r|12");
    EXPECT_EQ(slab(1, "A1", 17, 12, "A1"), "");     // another type
    EXPECT_EQ(slab(1, "A1", 3, 12, "B7"), "");      // another item than the key
    EXPECT_EQ(slab(1, "A1", 3, 21, "A1"), "");      // a slab of another scheme
    EXPECT_EQ(slab(101, "A1", 3, 1011, "A1"), "");  // a special category scheme
}

TEST_F(SchemeProcedures, SpecialCategorySchemesAndTheirItems) {
    const auto find = [&](const char* day, const char* customer, const char* madeBy) {
        return Rows("Zuro_sp_FindSplCatSchemeID_New",
                    {{day, VarChar}, {customer, VarChar}, {"", VarChar}, {madeBy, VarChar}});
    };
    EXPECT_EQ(Rows("Zuro_sp_FindSplCatSchemeID_New", {{kMidJune, VarChar}, {"C1", VarChar}}),
              "101|Combo|3;102|Value Combo|3;103|Gross Off|1");
    EXPECT_EQ(find(kMidJune, "C2", ""), "101|Combo|3;102|Value Combo|3;103|Gross Off|1;104|Two Combo|3");
    EXPECT_EQ(find(kMidJune, "C2", "09/06/2030"), "101|Combo|3;102|Value Combo|3;103|Gross Off|1");
    EXPECT_EQ(find("2030-07-01 00:00:00", "C2", ""), "");

    EXPECT_EQ(Rows("Zuro_sp_GetSplCategoryItems_New", {{101, Integer}}), "A1|24r;B7|6r;F1|0r");
    EXPECT_EQ(Rows("Zuro_sp_GetSplCategoryItems_New", {{1, Integer}}), "");  // an item scheme
}

TEST_F(SchemeProcedures, EveryItemWithAMinimumMustReachItAcrossItsRows) {
    struct Case {
        long long scheme;
        const char *check, *expected;
    };
    const Case cases[] = {
        {101, "A1,24,100|B7,6,50", "1"},
        {101, "A1,12,1|B7,6,1|A1,12,1", "1"},
        {101, "a1,24,0|B7,6,0|ZZ,1,1|", "1"},  // case, an item of no concern, a trailing separator
        {101, "A1,23.5,1|B7,6,1", "0"},
        {101, "A1,24,1", "0"},  // B7 not on the note holds 0 of its 6
        {101, "", "0"},
        {102, "", "1"},        // no item asks a minimum
        {999, "A1,1,1", "0"},  // no such scheme
        {1, "A1,1,1", "0"},    // an item scheme
    };
    for (const Case& c : cases) EXPECT_EQ(MinQtyMet(c.scheme, c.check), c.expected) << c.scheme << " " << c.check;

    for (const char* bad : {"A1,24|B7,6,1", "A1,x,1", ",1,1", "A1,1,1,1"})
        EXPECT_THAT(Refusal("Zuro_SP_isAllItemsexistsMinQty", {{101, Integer}, {bad, VarChar}}),
                    ::testing::HasSubstr("is not of the form item,quantity,value"))
            << bad;
}

TEST_F(SchemeProcedures, TheSpecialCategorySlabIsTheOneTheTotalOfItsUnitReaches) {
    struct Case {
        double base;
        const char* slab;
    };
    const Case bands[] = {{99.99, ""},   {100, "1011"},   {499, "1011"}, {499.5, ""},
                          {500, "1012"}, {99999, "1012"}, {100000, ""}};
    for (const Case& c : bands) {
        const std::string row = SplCatSlab(101, c.base, 0, 0, 0);
        EXPECT_EQ(row.empty() ? "" : platform::Split(row, "|")[6], c.slab) << c.base;
    }
    // A total summed from fractions of units that comes out a hair below the start
    // still stands on it.
    EXPECT_NE(SplCatSlab(101, 100 - 1e-12, 0, 0, 0), "");

    EXPECT_EQ(SplCatSlab(101, 500, 0, 0, 0), "3|1|500r|99999r|1|500r|1012|2r|0r|0r");
    // The screen sends a total value of 0, which reaches a value slab from 0.
    EXPECT_EQ(SplCatSlab(102, 0, 0, 0, 0), "3|4|0r|99999r|1|0r|1021|1r|0r|0r");
    EXPECT_EQ(SplCatSlab(103, 0, 0, 1, 0, "C1", 1), "1|3|1r|10r|1|0r|1031|0r|0r|5r");
    EXPECT_EQ(SplCatSlab(103, 0, 0, 1, 0, "C1", 0), "1|3|1r|10r|1|0r|1031|0r|0r|5r");
    EXPECT_EQ(SplCatSlab(103, 0, 0, 1, 0, "C1", 3), "");  // not of the type the list named
    EXPECT_EQ(SplCatSlab(104, 5, 0, 0, 0, "C1"), "");
    EXPECT_NE(SplCatSlab(104, 5, 0, 0, 0, "C2"), "");
    EXPECT_EQ(SplCatSlab(1, 500, 0, 0, 0), "");  // an item scheme
}

TEST_F(SchemeProcedures, ACustomersSchemesOfTheDayAreCounted) {
    const auto count = [&](const char* day, const char* customer) {
        return Rows("Zuro_sp_Check_SchExistsForCust", {{day, VarChar}, {customer, VarChar}});
    };
    EXPECT_EQ(count(kMidJune, "C1"), "7");  // all but the switched-off one and those of C2 alone
    EXPECT_EQ(count(kMidJune, "C2"), "9");
    EXPECT_EQ(count("2030-07-01 00:00:00", "C2"), "0");
}

TEST_F(SchemeProcedures, FreeGoodsCountOnlyFromTheMasterWithLiveStockOrNoneKept) {
    struct Case {
        long long scheme, slab;
        const char* expected;
    };
    const Case cases[] = {
        {1, 11, "1"},  // F1 in stock
        {1, 12, "0"},  // F2: nothing left, and an expired batch
        {2, 21, "0"},  // F3 has left the master with stock
        {3, 31, "1"},  // P1 keeps no stock
        {6, 61, "1"},  // F3 out, F1 in
        {2, 11, "0"},  // a slab of another scheme
    };
    for (const Case& c : cases)
        EXPECT_EQ(Rows("Zuro_SP_ListFreeSKUCount", {{c.scheme, Integer}, {c.slab, Integer}}), c.expected)
            << c.scheme << "/" << c.slab;
}

TEST_F(SchemeProcedures, MalformedArgumentsAreRefused) {
    const platform::ParameterList good{{"A1", VarChar}, {kMidJune, VarChar}, {12, Double},
                                       {"C1", VarChar}, {0, Double},         {"", VarChar}};
    const auto with = [&](std::size_t at, platform::Parameter parameter) {
        platform::ParameterList list = good;
        list[at] = parameter;
        return Refusal("Zuro_sp_FindDispatch_SKUSchemeID_New", list);
    };
    EXPECT_EQ(with(1, {"15 June", VarChar}),
              "Conversion failed when converting date and/or time from character string.");
    EXPECT_EQ(with(2, {"a dozen", VarChar}), "Error converting data type varchar to float.");
    EXPECT_EQ(with(5, {"soon", VarChar}), "Conversion failed when converting date and/or time from character string.");
    EXPECT_EQ(Refusal("Zuro_sp_FindDispatch_SKUSchemeID_New", {good.begin(), good.begin() + 3}),
              "Procedure or function 'Zuro_sp_FindDispatch_SKUSchemeID_New' expects parameter '@CustomerID', which "
              "was not supplied.");
    platform::ParameterList tooMany = good;
    tooMany.push_back({1, Integer});
    EXPECT_EQ(Refusal("Zuro_sp_FindDispatch_SKUSchemeID_New", tooMany),
              "Procedure or function Zuro_sp_FindDispatch_SKUSchemeID_New has too many arguments.");
    EXPECT_EQ(Refusal("sp_get_SKUBased_SchItemsDetail",
                      {{"one", VarChar}, {"A1", VarChar}, {3, Integer}, {0, Integer}, {"A1", VarChar}}),
              "Conversion failed when converting the varchar value 'one' to data type int.");
    EXPECT_EQ(Refusal("Zuro_sp_GetDispatch_SchSlabDetails", {{101, Integer}, {1, Double}}),
              "Procedure or function 'Zuro_sp_GetDispatch_SchSlabDetails' expects parameter '@TotalUOM1Qty', which "
              "was not supplied.");
    EXPECT_EQ(Refusal("Zuro_sp_FindSplCatSchemeID_New", {{"C1", VarChar}, {kMidJune, VarChar}}),
              "Conversion failed when converting date and/or time from character string.");
}

// The demo note's paths as docs/demo-data.md tells them.
TEST(DemoSchemes, TheDocumentedQuantitiesCrossTheirSlabsAndTheRefusedFreeGoodsCannotBeHad) {
    testkit::ScratchFolder folder;
    const auto db = CreateDatabase(folder.File("demo.db"), true);
    const platform::Value today = testkit::LocalNow();
    const auto reached = [&](const char* item, double quantity, double amount, const char* customer) {
        const auto results = db->CallProcedure(
            "Zuro_sp_FindDispatch_SKUSchemeID_New",
            {{item, VarChar}, {today, Date}, {quantity, Double}, {customer, VarChar}, {amount, Double}, {"", VarChar}});
        std::string out;
        for (const auto& row : results.front().rows)
            out += (out.empty() ? "" : ";") + platform::ToText(row[0]) + "/" + platform::ToText(row[4]);
        return out;
    };
    struct Case {
        const char* item;
        double quantity, amount;
        const char *customer, *expected;
    };
    const Case cases[] = {
        {"FD001", 456, 0, "C005", ""},
        {"FD001", 480, 0, "C005", "201/2011"},
        {"FD001", 2280, 0, "C005", ""},
        {"FD001", 2400, 0, "C005", "201/2012"},
        {"BV001", 72, 1080, "C005", "202/2021"},
        {"FD002", 120, 0, "C005", "203/2031"},
        {"FD004", 12, 0, "C005", "204/2041"},
        {"HC001", 50, 0, "C003", "205/2051"},
        {"HC001", 50, 0, "C005", ""},
        {"BV002", 12, 0, "C005", "206/2061"},
        {"PC003", 6, 0, "C005", "209/2091"},
        {"PC003", 500, 0, "C005", "209/2091"},  // 208 is off
    };
    for (const Case& c : cases)
        EXPECT_EQ(reached(c.item, c.quantity, c.amount, c.customer), c.expected) << c.item << " " << c.quantity;

    const auto slab = [&](long long scheme, double base, double uom1) {
        const auto rows = db->CallProcedure("Zuro_sp_GetDispatch_SchSlabDetails", {{scheme, Integer},
                                                                                   {base, Double},
                                                                                   {uom1, Double},
                                                                                   {0, Double},
                                                                                   {0, Double},
                                                                                   {"C005", VarChar},
                                                                                   {3, Integer}})
                              .front()
                              .rows;
        return rows.empty() ? std::string() : platform::ToText(rows.front()[6]);
    };
    EXPECT_EQ(slab(301, 504, 0), "3011");
    EXPECT_EQ(slab(305, 30, 0), "3051");
    EXPECT_EQ(slab(306, 50, 0), "3061");
    EXPECT_EQ(slab(306, 49, 0), "");

    const auto available = [&](long long scheme, long long slabID) {
        return platform::ToText(
            db->CallProcedure("Zuro_SP_ListFreeSKUCount", {{scheme, Integer}, {slabID, Integer}}).front().rows[0][0]);
    };
    for (auto [scheme, slabID] : {std::pair{203, 2031}, std::pair{209, 2091}, std::pair{306, 3061}})
        EXPECT_EQ(available(scheme, slabID), "0") << scheme;
    for (auto [scheme, slabID] : {std::pair{201, 2011}, std::pair{206, 2061}, std::pair{305, 3051}})
        EXPECT_EQ(available(scheme, slabID), "1") << scheme;
}

}  // namespace
}  // namespace server
