// Rows that name only some columns: an item's base unit follows from its sales
// unit, and the application's own rows come with the schema.
#include <gtest/gtest.h>

#include "schema_test_db.h"
#include "server/schema.h"

namespace {

using schema_test::TestDb;

class SchemaRows : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(db.Exec(server::SchemaScript()), "");
        ASSERT_EQ(db.Exec("INSERT INTO UOM (UOM, Description) VALUES (1, 'PCS'), (2, 'BOX');"
                          "INSERT INTO ItemCategories (CategoryID) VALUES (1);"
                          "INSERT INTO Items (Product_Code, ProductName, CategoryID, UOM) VALUES ('A1', 'Item One', 1, 1);"),
                  "");
    }
    TestDb db;
};

TEST_F(SchemaRows, AnItemEnteredWithItsSalesUnitAloneSellsInItsBaseUnit) {
    EXPECT_EQ(db.Text("SELECT BaseUOM FROM Items WHERE Product_Code = 'A1'"), "1");
    ASSERT_EQ(db.Exec("INSERT INTO Items (Product_Code, ProductName, CategoryID, UOM, BaseUOM, UOM1, UOM1_Conversion)"
                      " VALUES ('A2', 'Item Two', 1, 2, 1, 2, 12);"), "");
    EXPECT_EQ(db.Text("SELECT BaseUOM FROM Items WHERE Product_Code = 'A2'"), "1");
    // A ladder needs its base named: a sales unit of the first level cannot be the base too.
    EXPECT_NE(db.Exec("INSERT INTO Items (Product_Code, ProductName, CategoryID, UOM, UOM1, UOM1_Conversion)"
                      " VALUES ('A3', 'Item Three', 1, 2, 2, 12);"), "");
    EXPECT_EQ(db.Text("SELECT COUNT(*) FROM Items WHERE Product_Code = 'A3'"), "0");
}

TEST(SchemaApplicationRows, TheApplicationsOwnRowsComeWithTheSchema) {
    TestDb db;
    ASSERT_EQ(db.Exec(server::SchemaScript()), "");
    // Every message number the screen raises has a text.
    for (int number : {1, 4, 6, 8, 10, 11, 13, 35, 55, 56, 58, 173})
        EXPECT_NE(db.Text("SELECT Message FROM ErrorMessages WHERE ErrorID = " + std::to_string(number)), "<no row>")
            << number;
    // 10 and 11 are asked with yes and no.
    EXPECT_EQ(db.Text("SELECT COUNT(*) FROM ErrorMessages WHERE ErrorID IN (10, 11) AND Message LIKE '%?'"), "2");
    EXPECT_EQ(db.Text("SELECT group_concat(TranID || '=' || Prefix, ';') FROM "
                      "(SELECT * FROM VoucherPrefix ORDER BY TranID)"),
              "DISPATCH=DN;RECEIVED PO=PO;SALE CONFIRMATION=SC");
    EXPECT_EQ(db.Text("SELECT Value FROM SchemaInfo WHERE Name = 'Application'"), "Dispatch");
    EXPECT_EQ(db.Text("SELECT Value FROM SchemaInfo WHERE Name = 'Version'"), "1");
    EXPECT_EQ(db.Text("SELECT LastNumber FROM DocumentNumbers WHERE DocType = 5"), "0");
    // Nothing else: the masters and documents start empty.
    for (const char* table : {"Customer", "Items", "DispatchAbstract", "TransactionDocNumber", "Labels"})
        EXPECT_EQ(db.Text(std::string("SELECT COUNT(*) FROM ") + table), "0") << table;
}

}  // namespace
