// The demo's masters and stock hold what docs/demo-data.md promises: customers of
// every category and credit standing, the party mappings, unit ladders and stock of
// every kind.
#include "demo_fixture_test.h"

namespace {

using DemoMasters = schema_test::DemoDatabase;

TEST_F(DemoMasters, LoadsWithEveryLinkInPlace) {
    EXPECT_EQ(db().Text("PRAGMA integrity_check"), "ok");
    EXPECT_TRUE(db().ForeignKeyViolations().empty());
    long long rows = 0;
    for (const auto& table : db().Rows("SELECT name FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite_%'"))
        rows += Count(table.at(0));
    EXPECT_GT(rows, 200);
    EXPECT_LT(rows, 700);
}

TEST_F(DemoMasters, HasCustomersOfAllFiveCategoriesWithEveryCreditStanding) {
    EXPECT_EQ(db().Text("SELECT group_concat(CustomerCategory) FROM "
                        "(SELECT DISTINCT CustomerCategory FROM Customer ORDER BY 1)"),
              "1,2,3,4,5");
    EXPECT_EQ(db().Text("SELECT CreditLimit FROM Customer WHERE CustomerID = 'C002'"), "-1.0");

    const std::string outstanding =
        "(SELECT IFNULL(SUM(Balance), 0) FROM InvoiceAbstract i WHERE i.CustomerID = c.CustomerID AND i.Status & 192 <> 192)"
        " - (SELECT IFNULL(SUM(Balance), 0) FROM Collections k WHERE k.CustomerID = c.CustomerID AND k.Cancelled = 0)";
    // Deepam Supermarket owes more than its limit; Nila Enterprises has paid ahead.
    EXPECT_EQ(db().Text("SELECT group_concat(CustomerID) FROM Customer c WHERE CreditLimit >= 0 AND " + outstanding +
                        " > CreditLimit"),
              "C004");
    EXPECT_EQ(db().Text("SELECT group_concat(CustomerID) FROM Customer c WHERE " + outstanding + " < 0"), "C011");
    // Sakthi Agencies alone has bills past their due date.
    EXPECT_EQ(db().Text("SELECT group_concat(DISTINCT CustomerID) FROM InvoiceAbstract WHERE Balance > 0 AND PaymentDate < " +
                        Day(0)),
              "C006");
    EXPECT_EQ(db().Text("SELECT OverdueDaysAllowed FROM CustomerCreditTerm WHERE CustomerID = 'C006' AND GroupID = 1"), "0");
    // Sundar & Sons holds two cheques not yet deposited; a cancelled cheque is in no one's hand.
    EXPECT_EQ(db().Text("SELECT group_concat(CustomerID || '=' || Total) FROM (SELECT CustomerID, SUM(Value) AS Total "
                        "FROM Collections WHERE PaymentMode = 1 AND Deposited = 0 AND Cancelled = 0 GROUP BY CustomerID)"),
              "C014=3500.0");
}

TEST_F(DemoMasters, MapsSalesmenBeatsAndCustomersAsDocumented) {
    const std::string activePairs =
        "SELECT sb.SalesmanID, sb.BeatID FROM BeatCustomer bc JOIN SalesmanBeat sb ON sb.BeatID = bc.BeatID "
        "JOIN Beat b ON b.BeatID = bc.BeatID JOIN Salesman s ON s.SalesmanID = sb.SalesmanID "
        "WHERE b.Active = 1 AND s.Active = 1 AND bc.CustomerID = ";
    // Ravi Stores: one beat of one salesman. Anand Stores: two beats of one salesman.
    // Bharat Traders: one beat served by two salesmen.
    EXPECT_EQ(db().Rows(activePairs + "(SELECT CustomerID FROM Customer WHERE Company_Name = 'Ravi Stores')").size(), 1u);
    EXPECT_EQ(db().Rows(activePairs + "'C001'").size(), 2u);
    EXPECT_EQ(db().Rows(activePairs + "'C002'").size(), 2u);
    // Deepam Supermarket is still mapped to the closed beat, which the mapping must hide.
    EXPECT_EQ(db().Rows(activePairs + "'C004'").size(), 1u);
    EXPECT_EQ(Count("BeatCustomer bc JOIN Beat b ON b.BeatID = bc.BeatID WHERE b.Active = 0"), 1);
    // Customers the screen never offers, and one on no beat at all, stand outside the mapping.
    EXPECT_EQ(Count("BeatCustomer WHERE CustomerID IN ('C007', 'C008', 'C012')"), 0);
    // Arun Kumar serves several beats; Ezhil Mani none.
    EXPECT_GE(Count("SalesmanBeat sb JOIN Beat b ON b.BeatID = sb.BeatID WHERE b.Active = 1 AND SalesmanID = 1"), 3);
    EXPECT_EQ(Count("SalesmanBeat WHERE SalesmanID = 5"), 0);
}

TEST_F(DemoMasters, GivesOneSalesmanEveryCategoryGroupAndOneACategoryMappedType) {
    // Dinesh Raj's DS type sells every active group.
    EXPECT_EQ(Count("ProductCategoryGroupAbstract g WHERE g.Active = 1 AND NOT EXISTS (SELECT 1 FROM DSTypeCategoryGroup m "
                    "JOIN Salesman s ON s.DSTypeID = m.DSTypeID WHERE s.SalesmanID = 4 AND m.GroupID = g.GroupID)"),
              0);
    EXPECT_GT(Count("ProductCategoryGroupAbstract g WHERE NOT EXISTS (SELECT 1 FROM DSTypeCategoryGroup m "
                    "JOIN Salesman s ON s.DSTypeID = m.DSTypeID WHERE s.SalesmanID = 1 AND m.GroupID = g.GroupID)"),
              0);
    EXPECT_EQ(db().Text("SELECT t.CategoryMapped FROM Salesman s JOIN DSType t ON t.DSTypeID = s.DSTypeID WHERE SalesmanID = 3"), "1");
    EXPECT_GT(Count("DSTypeCategory WHERE DSTypeID = 3"), 0);
    EXPECT_EQ(Count("ProductCategoryGroupAbstract WHERE Active = 0"), 1);
}

TEST_F(DemoMasters, HasLaddersOfOneTwoAndThreeLevels) {
    EXPECT_GT(Count("Items WHERE UOM1 IS NULL"), 0);
    EXPECT_GT(Count("Items WHERE UOM1 IS NOT NULL AND UOM2 IS NULL"), 0);
    EXPECT_GT(Count("Items WHERE UOM2 IS NOT NULL"), 0);
    EXPECT_EQ(db().Text("SELECT UOM1_Conversion || '/' || UOM2_Conversion FROM Items WHERE Product_Code = 'FD001'"), "24.0/240.0");
    // A sales unit above the base unit, and one that is the base unit.
    EXPECT_GT(Count("Items WHERE UOM <> BaseUOM"), 0);
    EXPECT_GT(Count("Items WHERE UOM = BaseUOM AND UOM1 IS NOT NULL"), 0);
}

TEST_F(DemoMasters, HasCategoriesOfEveryKind) {
    EXPECT_EQ(db().Text("SELECT group_concat(Category_Name) FROM ItemCategories WHERE Track_Inventory = 0"), "Promotional Material");
    EXPECT_EQ(db().Text("SELECT group_concat(Category_Name) FROM ItemCategories WHERE Price_Option = 1"), "Pharma OTC");
    EXPECT_GT(Count("Items i JOIN ItemCategories c ON c.CategoryID = i.CategoryID WHERE c.Track_Inventory = 0"), 0);
    EXPECT_GT(Count("Items WHERE ASL = 1"), 0);
    EXPECT_GT(Count("Items WHERE Alias <> ''"), 0);
}

TEST_F(DemoMasters, HoldsStockOfEveryKind) {
    // An item with no stock at all.
    EXPECT_EQ(db().Text("SELECT i.Product_Code FROM Items i JOIN ItemCategories c ON c.CategoryID = i.CategoryID "
                        "WHERE c.Track_Inventory = 1 AND NOT EXISTS (SELECT 1 FROM Batch_Products b "
                        "WHERE b.Product_Code = i.Product_Code AND b.Quantity > 0)"),
              "FD005");
    // Expired last month, still holding goods.
    EXPECT_GT(Count("Batch_Products WHERE Quantity > 0 AND Expiry < " + Day(0) + " AND Expiry >= " + Day(-31)), 0);
    EXPECT_EQ(Count("Batch_Products WHERE Expiry < " + Day(-31)), 0);
    // Expiring next year.
    EXPECT_GT(Count("Batch_Products WHERE Quantity > 0 AND substr(Expiry, 1, 4) = '2025'"), 0);
    // Free stock, and free stock of an item priced by batch.
    EXPECT_GT(Count("Batch_Products WHERE Free = 1 AND Quantity > 0"), 2);
    EXPECT_GT(Count("Batch_Products b JOIN Items i ON i.Product_Code = b.Product_Code JOIN ItemCategories c "
                    "ON c.CategoryID = i.CategoryID WHERE c.Price_Option = 1 AND b.Free = 1 AND b.Quantity > 0"),
              0);
    // One batch number at two prices.
    EXPECT_EQ(db().Text("SELECT group_concat(PTS) FROM Batch_Products WHERE Product_Code = 'HC001' AND Batch_Number = 'PCM24A' AND Free = 0"),
              "18.0,19.0");
    // Openings a week ago and today for every item that holds stock.
    EXPECT_EQ(Count("OpeningDetails WHERE Opening_Date = " + Day(0)), Count("(SELECT DISTINCT Product_Code FROM Batch_Products)"));
    EXPECT_EQ(Count("OpeningDetails WHERE Opening_Date = " + Day(-7)), Count("OpeningDetails WHERE Opening_Date = " + Day(0)));
}

TEST_F(DemoMasters, SetsTheScreensOwnSettings) {
    EXPECT_EQ(db().Text("SELECT group_concat(DocumentType) FROM TransactionDocNumber WHERE TransactionType = 5 AND IsDefault = 1"), "DN-TN");
    EXPECT_EQ(db().Text("SELECT group_concat(DocumentType) FROM TransactionDocNumber WHERE TransactionType = 5 AND Active = 0"), "DN-OLD");
    EXPECT_GT(Count("TransactionDocNumber WHERE TransactionType <> 5"), 0);
    EXPECT_EQ(Count("formatinfo WHERE formatid BETWEEN 10 AND 14"), 5);
    EXPECT_EQ(db().Text("SELECT Caption FROM Labels WHERE BaseText = 'Special Price'"), "Spl. Price");
    EXPECT_EQ(db().Text("SELECT Flag FROM tbl_Zuro_ConfigAbstract WHERE ScreenCode = 'ValidateHealthCareItem'"), "1");
    // Health care buyers: both licence numbers, one, and none.
    EXPECT_EQ(db().Text("SELECT group_concat(CustomerID || ':' || (DLNumber <> '') || (DLNumber21 <> '')) FROM Customer "
                        "WHERE CustomerID IN ('C003', 'C009', 'C010')"),
              "C003:11,C009:00,C010:01");
}

}  // namespace
