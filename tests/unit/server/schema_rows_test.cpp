// Rows as the screen and its procedures write them: naming only the columns they
// have values for, the rest taking their defaults; and the updates the screen runs
// on stored rows.
#include <gtest/gtest.h>

#include "schema_test_db.h"
#include "server/schema.h"

namespace {

using schema_test::TestDb;

class SchemaRows : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(db.Exec(server::SchemaScript()), "");
        ASSERT_EQ(db.Exec(R"SQL(
            INSERT INTO UOM (UOM, Description) VALUES (1, 'PCS'), (2, 'BOX');
            INSERT INTO ItemCategories (CategoryID, Price_Option, Track_Inventory) VALUES (1, 0, 1);
            INSERT INTO Items (Product_Code, ProductName, Alias, CategoryID, Track_Batches, Sale_Price, PTS, PTR,
                               Company_Price, Virtual_Track_Batches, TrackPKD, UOM, UOM1_Conversion, UOM2_Conversion,
                               SaleID, ASL)
                VALUES ('A1', 'Item One', '', 1, 1, 10, 9, 10, 8, 1, 0, 1, NULL, NULL, 1, 0);
            INSERT INTO Customer (CustomerID, Company_Name, BillingAddress, ShippingAddress, CustomerCategory,
                                  CreditLimit, DLNumber, DLNumber21, TIN_Number)
                VALUES ('C1', 'Customer One', 'Bill', 'Ship', 2, -1, '', '', '');
            INSERT INTO Salesman (SalesmanID, Salesman_Name) VALUES (1, 'Sales One');
            INSERT INTO Beat (BeatID, Description) VALUES (1, 'Beat One');
            INSERT INTO Batch_Products (Batch_Code, Product_Code, Batch_Number, Expiry, PKD, Quantity, Free, PTS, PTR,
                                        ECP, Company_Price, TaxSuffered, ApplicableOn, PartofPercentage)
                VALUES (7, 'A1', 'B1', '2030-01-31 00:00:00', NULL, 100, 0, 9, 10, 11, 8, 5, 1, 0);
        )SQL"), "");
    }
    TestDb db;
};

TEST_F(SchemaRows, MasterRowsNamingOnlyTheScreensColumnsTakeTheirDefaults) {
    // The fixture's rows named nothing else; what they left out is there all the same.
    EXPECT_EQ(db.Text("SELECT Category_Name || '|' || Active FROM ItemCategories WHERE CategoryID = 1"), "|1");
    EXPECT_EQ(db.Text("SELECT DSTypeID IS NULL AND Active = 1 FROM Salesman WHERE SalesmanID = 1"), "1");
    EXPECT_EQ(db.Exec("INSERT INTO Schemes (SchemeID, SchemeType, HasSlabs) VALUES (1, 3, 1);"
                      "INSERT INTO SchemeSlabs (SlabID, SchemeID, SlabStart, SlabEnd, FreeQty, FreeItem, SlabUnit,"
                      "                         FreeUnit, Onward) VALUES (1, 1, 10, 20, 1, NULL, 1, 1, 0);"
                      "INSERT INTO ProductCategoryGroupAbstract (GroupID, GroupName) VALUES (1, 'Foods');"
                      "INSERT INTO formatinfo (formatid, colwidth) VALUES (10, 1200);"
                      "INSERT INTO tbl_Zuro_ConfigAbstract (ScreenCode, Flag) VALUES ('ValidateHealthCareItem', 0);"
                      "INSERT INTO Labels (BaseText, Caption) VALUES ('PTS', 'PTS');"),
              "");
    EXPECT_EQ(db.Text("SELECT SchemeScope || '|' || Active || '|' || AllCustomers || '|' || ValidTo FROM Schemes"),
              "1|1|1|9999-12-31 23:59:59");
    EXPECT_EQ(db.Text("SELECT LabelKind FROM Labels"), "Label");
}

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

TEST_F(SchemaRows, TheAbstractTakesWhatTheSaveProcedureHands) {
    ASSERT_EQ(db.Exec(R"SQL(
        INSERT INTO DispatchAbstract (RefNumber, DispatchDate, CustomerID, BillingAddress, ShippingAddress, Status,
                                      NewRefNumber, Memo1, Memo2, Memo3, DocReference, SalesmanID, BeatID)
            VALUES ('12', '2024-03-01 10:30:00', 'C1', 'Bill', 'Ship', 1, 'SC112', '', '', '', 'DN7', 0, 0);
        INSERT INTO DispatchAbstract (RefNumber, OriginalReference, DispatchDate, CustomerID, BillingAddress,
                                      ShippingAddress, Status, NewRefNumber, Memo1, Memo2, Memo3, DocReference,
                                      SalesmanID, BeatID, GroupID)
            VALUES ('x', '7', '2024-03-01 00:00:00', 'C1', '', '', 1, 'x', 'm1', 'm2', 'm3', 'DN8', 1, 1, '1,3');
    )SQL"), "");
    EXPECT_EQ(db.Text("SELECT DispatchID || '|' || DocumentID || '|' || GroupID || '|' || Remarks || '|' || "
                      "DocumentType || '|' || IFNULL(CancelDate, 'none') FROM DispatchAbstract WHERE DispatchID = 1"),
              "1|0|-1|||none");
    EXPECT_EQ(db.Text("SELECT GroupID FROM DispatchAbstract WHERE DispatchID = 2"), "1,3");
    EXPECT_EQ(db.Text("SELECT CreationTime GLOB '[0-9][0-9][0-9][0-9]-*' FROM DispatchAbstract WHERE DispatchID = 1"), "1");
}

TEST_F(SchemaRows, DetailRowsTakeBothParameterListsOfTheDetailProcedures) {
    ASSERT_EQ(db.Exec("INSERT INTO DispatchAbstract (DispatchDate, CustomerID, Status) VALUES ('2024-03-01 00:00:00', 'C1', 2);"), "");
    // The short list (other-category-group items switched on).
    ASSERT_EQ(db.Exec(R"SQL(
        INSERT INTO DispatchDetail (DispatchID, Product_Code, Batch_Number, SalePrice, Quantity, Track_Batches,
                                    Track_Inventory, FreeItem, Free, UOM, UOMQty, UOMPrice, Serial, OtherCG_Item,
                                    SchemeID, FreeSerial, Batch_Code)
            VALUES (1, 'A1', 'B1', 10, 12, 1, 1, 0, 0, 2, 1, 120, 1, 0, 0, '', 7);
    )SQL"), "");
    // The long list adds the scheme texts.
    ASSERT_EQ(db.Exec(R"SQL(
        INSERT INTO DispatchDetail (DispatchID, Product_Code, Batch_Number, SalePrice, Quantity, Track_Batches,
                                    Track_Inventory, Price_Option, FreeItem, Free, UOM, UOMQty, UOMPrice, Serial,
                                    OtherCG_Item, SchemeID, FreeSerial, CSchemeID, SPLCATSCHEMEID,
                                    SpecialCategoryScheme, SPLCATSERIAL, MultipleSchemeID, MultipleSchemeDetails,
                                    MultipleSplCategorySchemeID, MultipleSplCategorySchDetail, Batch_Code)
            VALUES (1, 'A1', 'B1', 0, 1, 1, 1, 0, 1, 1, 1, 1, 0, 2, 0, 0, '1', '', '301', 1, '1,', '', '201|2011|0|0',
                    '301', '301|3011|0|0', 7);
    )SQL"), "");
    EXPECT_EQ(db.Text("SELECT COUNT(*) FROM DispatchDetail WHERE DispatchID = 1"), "2");
    EXPECT_EQ(db.Text("SELECT Price_Option || '|' || CSchemeID || '|' || SPLCATSERIAL FROM DispatchDetail WHERE DetailID = 1"), "0||");
}

TEST_F(SchemaRows, TheScreensOwnUpdatesGoThrough) {
    ASSERT_EQ(db.Exec(R"SQL(
        INSERT INTO DispatchAbstract (DispatchDate, CustomerID, Status) VALUES ('2024-03-01 00:00:00', 'C1', 1);
        INSERT INTO DispatchAbstract (DispatchDate, CustomerID, Status) VALUES ('2024-03-01 00:00:00', 'C1', 2);
        INSERT INTO POAbstractReceived (PONumber, PODate, CustomerID, Value, POReference, DocumentID, BillingAddress, ShippingAddress, Status)
            VALUES (1, '2024-02-20 00:00:00', 'C1', 100, 'P-1', 11, '', '', 0);
        INSERT INTO PODetailReceived (PONumber, Product_Code, Quantity) VALUES (1, 'XX-9', 4);
    )SQL"), "");
    ASSERT_EQ(db.Exec(R"SQL(
        UPDATE DispatchAbstract SET Status = Status | 384, Remarks = 'changed' WHERE DispatchID = 1;
        UPDATE DispatchAbstract SET Status = Status | 192, Remarks = 'it''s cancelled', CancelUserName = 'admin',
               CancelDate = strftime('%Y-%m-%d %H:%M:%S', 'now') WHERE DispatchID = 2;
        UPDATE Batch_Products SET Quantity = Quantity + 24 WHERE Batch_Code = 7;
        UPDATE POAbstractReceived SET Status = Status | 128 WHERE PONumber IN (1);
        UPDATE DocumentNumbers SET LastNumber = LastNumber + 1 WHERE DocType = 5;
    )SQL"), "");
    EXPECT_EQ(db.Text("SELECT group_concat(Status) FROM DispatchAbstract"), "385,194");
    EXPECT_EQ(db.Text("SELECT Quantity FROM Batch_Products WHERE Batch_Code = 7"), "124.0");
    EXPECT_EQ(db.Text("SELECT Status FROM POAbstractReceived"), "128");
    EXPECT_EQ(db.Text("SELECT LastNumber FROM DocumentNumbers WHERE DocType = 5"), "1");
}

TEST_F(SchemaRows, AccountsRowsTakeTheirDefaults) {
    ASSERT_EQ(db.Exec(R"SQL(
        INSERT INTO JournalPostings (Counter, DocumentID, PostingDate, Account)
            VALUES (2, 1, '2024-03-01 00:00:00', 'Stock In Transit');
        INSERT INTO InvoiceAbstract (InvoiceDate, CustomerID, NetValue) VALUES ('2024-03-01 00:00:00', 'C1', 500);
        INSERT INTO Collections (DocumentDate, CustomerID, Value) VALUES ('2024-03-01 00:00:00', 'C1', 500);
    )SQL"), "");
    EXPECT_EQ(db.Text("SELECT Debit || '|' || Credit || '|' || Narration FROM JournalPostings"), "0.0|0.0|");
    EXPECT_EQ(db.Text("SELECT Balance || '|' || FormsRequired || '|' || CFormNo FROM InvoiceAbstract"), "0.0|0|");
    EXPECT_EQ(db.Text("SELECT PaymentMode || '|' || Deposited FROM Collections"), "0|0");
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
