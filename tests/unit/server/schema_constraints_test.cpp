// What the schema refuses. Each refusal stands beside the nearest statement that is
// accepted, so that a refusal for some other reason (a typo, a missing parent row)
// would show up as the accepted twin failing too.
#include <gtest/gtest.h>

#include "schema_test_db.h"
#include "server/schema.h"

namespace {

using schema_test::TestDb;

struct Case {
    const char* what;
    const char* accepted;
    const char* refused;
};

class SchemaConstraints : public ::testing::TestWithParam<Case> {
protected:
    void SetUp() override {
        ASSERT_EQ(db.Exec(server::SchemaScript()), "");
        ASSERT_EQ(db.Exec(R"SQL(
            INSERT INTO UOM (UOM, Description) VALUES (1, 'PCS'), (2, 'BOX'), (3, 'CASE');
            INSERT INTO ItemCategories (CategoryID, Category_Name) VALUES (1, 'Biscuits');
            INSERT INTO Items (Product_Code, ProductName, Alias, CategoryID, UOM, BaseUOM, UOM1, UOM1_Conversion, UOM2, UOM2_Conversion)
                VALUES ('A1', 'Item One', 'X1', 1, 2, 1, 2, 12, 3, 144),
                       ('B1', 'Item Two', '', 1, 1, 1, NULL, NULL, NULL, NULL);
            INSERT INTO Customer (CustomerID, Company_Name) VALUES ('C1', 'Customer One');
            INSERT INTO Salesman (SalesmanID, Salesman_Name) VALUES (1, 'Sales One');
            INSERT INTO Beat (BeatID, Description) VALUES (1, 'Beat One');
            INSERT INTO Batch_Products (Batch_Code, Product_Code, Batch_Number, Quantity) VALUES (7, 'A1', 'B7', 10), (8, 'B1', '', 5);
            INSERT INTO DispatchAbstract (DispatchID, DispatchDate, CustomerID, Status) VALUES (1, '2024-03-01 00:00:00', 'C1', 2);
            INSERT INTO SOAbstract (SONumber, SODate, CustomerID) VALUES (1, '2024-03-01 00:00:00', 'C1');
            INSERT INTO Schemes (SchemeID, SchemeType) VALUES (1, 3);
            INSERT INTO TransactionDocNumber (TransactionType, DocumentType, IsDefault) VALUES (5, 'DN-A', 1);
        )SQL"), "");
    }
    TestDb db;
};

TEST_P(SchemaConstraints, RefusesWhatItShould) {
    const Case& c = GetParam();
    EXPECT_EQ(db.Exec(c.accepted), "") << c.what << ": " << c.accepted;
    EXPECT_NE(db.Exec(c.refused), "") << c.what << ": " << c.refused;
}

const Case kCases[] = {
    {"a flag holds 0 or 1",
     "INSERT INTO UOM (UOM, Description, Active) VALUES (4, 'KG', 0)",
     "INSERT INTO UOM (UOM, Description, Active) VALUES (5, 'LTR', 2)"},
    {"a date-time keeps its time",
     "INSERT INTO SOAbstract (SODate, CustomerID) VALUES ('2024-03-02 00:00:00', 'C1')",
     "INSERT INTO SOAbstract (SODate, CustomerID) VALUES ('2024-03-02', 'C1')"},
    {"a date-time is text, not a day number",
     "INSERT INTO SOAbstract (SODate, CustomerID) VALUES ('2024-03-02 09:30:00', 'C1')",
     "INSERT INTO SOAbstract (SODate, CustomerID) VALUES (45353.5, 'C1')"},
    {"'%' is the tag of all customers, not a customer",
     "INSERT INTO Customer (CustomerID, Company_Name) VALUES ('C2', 'Customer Two')",
     "INSERT INTO Customer (CustomerID, Company_Name) VALUES ('%', 'Everybody')"},
    {"customer names are unique whatever their case",
     "INSERT INTO Customer (CustomerID, Company_Name) VALUES ('C3', 'Customer Three')",
     "INSERT INTO Customer (CustomerID, Company_Name) VALUES ('C4', 'CUSTOMER ONE')"},
    {"customer categories run from 1 to 5",
     "INSERT INTO Customer (CustomerID, Company_Name, CustomerCategory) VALUES ('C5', 'Five', 5)",
     "INSERT INTO Customer (CustomerID, Company_Name, CustomerCategory) VALUES ('C6', 'Six', 6)"},
    {"a credit limit is -1 (none) or not negative",
     "INSERT INTO Customer (CustomerID, Company_Name, CreditLimit) VALUES ('C7', 'Seven', 0)",
     "INSERT INTO Customer (CustomerID, Company_Name, CreditLimit) VALUES ('C8', 'Eight', -2)"},
    {"item codes are unique whatever their case",
     "INSERT INTO Items (Product_Code, ProductName, CategoryID, UOM) VALUES ('C1X', 'Other', 1, 1)",
     "INSERT INTO Items (Product_Code, ProductName, CategoryID, UOM) VALUES ('a1', 'Again', 1, 1)"},
    {"a blank item code is no code",
     "INSERT INTO Items (Product_Code, ProductName, CategoryID, UOM) VALUES ('Z1', 'Not blank', 1, 1)",
     "INSERT INTO Items (Product_Code, ProductName, CategoryID, UOM) VALUES ('', 'Blank', 1, 1)"},
    {"the second level of a ladder needs the first",
     "INSERT INTO Items (Product_Code, ProductName, CategoryID, UOM, BaseUOM, UOM1, UOM1_Conversion) VALUES ('L1', 'L1', 1, 1, 1, 2, 10)",
     "INSERT INTO Items (Product_Code, ProductName, CategoryID, UOM, BaseUOM, UOM2, UOM2_Conversion) VALUES ('L2', 'L2', 1, 1, 1, 3, 10)"},
    {"each level of a ladder is larger than the one below",
     "INSERT INTO Items (Product_Code, ProductName, CategoryID, UOM, BaseUOM, UOM1, UOM1_Conversion, UOM2, UOM2_Conversion) VALUES ('L3', 'L3', 1, 1, 1, 2, 10, 3, 100)",
     "INSERT INTO Items (Product_Code, ProductName, CategoryID, UOM, BaseUOM, UOM1, UOM1_Conversion, UOM2, UOM2_Conversion) VALUES ('L4', 'L4', 1, 1, 1, 2, 10, 3, 10)"},
    {"a unit and its rate come together",
     "INSERT INTO Items (Product_Code, ProductName, CategoryID, UOM, BaseUOM, UOM1, UOM1_Conversion) VALUES ('L5', 'L5', 1, 1, 1, 2, 6)",
     "INSERT INTO Items (Product_Code, ProductName, CategoryID, UOM, BaseUOM, UOM1_Conversion) VALUES ('L6', 'L6', 1, 1, 1, 6)"},
    {"the sales unit is one of the item's units",
     "INSERT INTO Items (Product_Code, ProductName, CategoryID, UOM, BaseUOM, UOM1, UOM1_Conversion) VALUES ('L7', 'L7', 1, 2, 1, 2, 6)",
     "INSERT INTO Items (Product_Code, ProductName, CategoryID, UOM, BaseUOM, UOM1, UOM1_Conversion) VALUES ('L8', 'L8', 1, 3, 1, 2, 6)"},
    {"a customer's code for an item names one item; blank codes are many",
     "INSERT INTO Items (Product_Code, ProductName, Alias, CategoryID, UOM) VALUES ('L9', 'L9', '', 1, 1)",
     "INSERT INTO Items (Product_Code, ProductName, Alias, CategoryID, UOM) VALUES ('L10', 'L10', 'x1', 1, 1)"},
    {"an item belongs to a category that exists",
     "INSERT INTO Items (Product_Code, ProductName, CategoryID, UOM) VALUES ('L11', 'L11', 1, 1)",
     "INSERT INTO Items (Product_Code, ProductName, CategoryID, UOM) VALUES ('L12', 'L12', 9, 1)"},
    {"stock never goes below nothing",
     "UPDATE Batch_Products SET Quantity = Quantity - 10 WHERE Batch_Code = 7",
     "UPDATE Batch_Products SET Quantity = Quantity - 6 WHERE Batch_Code = 8"},
    {"goods are packed before they expire",
     "INSERT INTO Batch_Products (Product_Code, PKD, Expiry) VALUES ('A1', '2024-01-01 00:00:00', '2025-01-01 00:00:00')",
     "INSERT INTO Batch_Products (Product_Code, PKD, Expiry) VALUES ('A1', '2025-02-01 00:00:00', '2025-01-01 00:00:00')"},
    {"a cancelled note is closed too",
     "UPDATE DispatchAbstract SET Status = Status | 192 WHERE DispatchID = 1",
     "INSERT INTO DispatchAbstract (DispatchDate, CustomerID, Status) VALUES ('2024-03-01 00:00:00', 'C1', 65)"},
    {"an amended note is closed too",
     "INSERT INTO DispatchAbstract (DispatchDate, CustomerID, Status) VALUES ('2024-03-01 00:00:00', 'C1', 385)",
     "INSERT INTO DispatchAbstract (DispatchDate, CustomerID, Status) VALUES ('2024-03-01 00:00:00', 'C1', 257)"},
    {"a dispatch's salesman is none (0) or one that exists",
     "INSERT INTO DispatchAbstract (DispatchDate, CustomerID, SalesmanID, BeatID) VALUES ('2024-03-01 00:00:00', 'C1', 0, 1)",
     "INSERT INTO DispatchAbstract (DispatchDate, CustomerID, SalesmanID, BeatID) VALUES ('2024-03-01 00:00:00', 'C1', 9, 1)"},
    {"a dispatch's beat is none (0) or one that exists, also when changed",
     "UPDATE DispatchAbstract SET BeatID = 1 WHERE DispatchID = 1",
     "UPDATE DispatchAbstract SET BeatID = 9 WHERE DispatchID = 1"},
    {"a dispatch belongs to a customer that exists",
     "INSERT INTO DispatchAbstract (DispatchDate, CustomerID) VALUES ('2024-03-01 00:00:00', 'c1')",
     "INSERT INTO DispatchAbstract (DispatchDate, CustomerID) VALUES ('2024-03-01 00:00:00', 'C9')"},
    {"a dispatch line takes something",
     "INSERT INTO DispatchDetail (DispatchID, Product_Code, Quantity, UOM) VALUES (1, 'B1', 0.5, 1)",
     "INSERT INTO DispatchDetail (DispatchID, Product_Code, Quantity, UOM) VALUES (1, 'B1', 0, 1)"},
    {"a dispatch line's batch holds its item",
     "INSERT INTO DispatchDetail (DispatchID, Product_Code, Batch_Code, Quantity, UOM) VALUES (1, 'A1', 7, 1, 1)",
     "INSERT INTO DispatchDetail (DispatchID, Product_Code, Batch_Code, Quantity, UOM) VALUES (1, 'B1', 7, 1, 1)"},
    {"a dispatch line's batch exists",
     "INSERT INTO DispatchDetail (DispatchID, Product_Code, Batch_Code, Quantity, UOM) VALUES (1, 'B1', 0, 1, 1)",
     "INSERT INTO DispatchDetail (DispatchID, Product_Code, Batch_Code, Quantity, UOM) VALUES (1, 'B1', 99, 1, 1)"},
    {"a dispatch line belongs to a note that exists",
     "INSERT INTO DispatchDetail (DispatchID, Product_Code, Quantity, UOM) VALUES (1, 'A1', 1, 1)",
     "INSERT INTO DispatchDetail (DispatchID, Product_Code, Quantity, UOM) VALUES (2, 'A1', 1, 1)"},
    {"what is pending was confirmed",
     "INSERT INTO SODetail (SONumber, Product_Code, Quantity, Pending, UOM) VALUES (1, 'A1', 12, 12, 1)",
     "INSERT INTO SODetail (SONumber, Product_Code, Quantity, Pending, UOM) VALUES (1, 'A1', 12, 13, 1)"},
    {"one default document type a transaction type",
     "INSERT INTO TransactionDocNumber (TransactionType, DocumentType, IsDefault) VALUES (1, 'SC-A', 1)",
     "INSERT INTO TransactionDocNumber (TransactionType, DocumentType, IsDefault) VALUES (5, 'DN-B', 1)"},
    {"a document type is named once a transaction type, whatever its case",
     "INSERT INTO TransactionDocNumber (TransactionType, DocumentType) VALUES (1, 'dn-a')",
     "INSERT INTO TransactionDocNumber (TransactionType, DocumentType) VALUES (5, 'dn-a')"},
    {"a slab ends where it starts or above",
     "INSERT INTO SchemeSlabs (SlabID, SchemeID, SlabStart, SlabEnd) VALUES (1, 1, 10, 10)",
     "INSERT INTO SchemeSlabs (SlabID, SchemeID, SlabStart, SlabEnd) VALUES (2, 1, 10, 9)"},
    {"a slab measures base units, UOM1, UOM2 or value",
     "INSERT INTO SchemeSlabs (SlabID, SchemeID, SlabEnd, SlabUnit) VALUES (3, 1, 9, 4)",
     "INSERT INTO SchemeSlabs (SlabID, SchemeID, SlabEnd, SlabUnit) VALUES (4, 1, 9, 5)"},
    {"the load-time scheme kinds are item schemes",
     "INSERT INTO Schemes (SchemeID, SchemeType, SchemeScope) VALUES (17, 17, 1)",
     "INSERT INTO Schemes (SchemeID, SchemeType, SchemeScope) VALUES (18, 18, 2)"},
    {"an invoice owes no more than its value",
     "INSERT INTO InvoiceAbstract (InvoiceDate, CustomerID, NetValue, Balance) VALUES ('2024-03-01 00:00:00', 'C1', 100, 100)",
     "INSERT INTO InvoiceAbstract (InvoiceDate, CustomerID, NetValue, Balance) VALUES ('2024-03-01 00:00:00', 'C1', 100, 101)"},
    {"an invoice falls due on or after its date",
     "INSERT INTO InvoiceAbstract (InvoiceDate, PaymentDate, CustomerID) VALUES ('2024-03-01 00:00:00', '2024-03-01 00:00:00', 'C1')",
     "INSERT INTO InvoiceAbstract (InvoiceDate, PaymentDate, CustomerID) VALUES ('2024-03-01 00:00:00', '2024-02-29 00:00:00', 'C1')"},
    {"received forms are the C-Form (32) and the D-Form (64)",
     "INSERT INTO InvoiceAbstract (InvoiceDate, CustomerID, FormsRequired, FormsReceived) VALUES ('2024-03-01 00:00:00', 'C1', 12, 96)",
     "INSERT INTO InvoiceAbstract (InvoiceDate, CustomerID, FormsRequired, FormsReceived) VALUES ('2024-03-01 00:00:00', 'C1', 12, 16)"},
    {"a cheque has a number",
     "INSERT INTO Collections (DocumentDate, CustomerID, Value, PaymentMode, ChequeNumber) VALUES ('2024-03-01 00:00:00', 'C1', 10, 1, '1234')",
     "INSERT INTO Collections (DocumentDate, CustomerID, Value, PaymentMode) VALUES ('2024-03-01 00:00:00', 'C1', 10, 1)"},
};

INSTANTIATE_TEST_SUITE_P(Schema, SchemaConstraints, ::testing::ValuesIn(kCases));

}  // namespace
