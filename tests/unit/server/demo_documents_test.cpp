// The demo's documents hold what docs/demo-data.md promises: pending confirmations
// and purchase orders of the last weeks, stored dispatches in every state with their
// lines and scheme links intact, schemes of every kind, and serials that follow on.
#include "demo_fixture_test.h"

#include <set>
#include <sstream>

namespace {

using DemoDocuments = schema_test::DemoDatabase;

std::vector<std::string> SplitList(const std::string& list) {
    std::vector<std::string> out;
    std::stringstream in(list);
    std::string piece;
    while (std::getline(in, piece, ','))
        if (!piece.empty()) out.push_back(piece);
    return out;
}

TEST_F(DemoDocuments, HasPendingConfirmationsOfTheLastWeeks) {
    const std::string pending = "SOAbstract s WHERE s.Status & 192 = 0 AND EXISTS "
                                "(SELECT 1 FROM SODetail d WHERE d.SONumber = s.SONumber AND d.Pending > 0)";
    EXPECT_GE(Count(pending), 8);
    EXPECT_EQ(Count(pending + " AND (s.SODate < " + Day(-45) + " OR s.SODate > " + Day(1) + ")"), 0);
    // One whose lines are all dispatched, one partly dispatched line, closed and cancelled ones.
    EXPECT_EQ(db().Text("SELECT group_concat(SONumber) FROM SOAbstract s WHERE Status = 0 AND NOT EXISTS "
                        "(SELECT 1 FROM SODetail d WHERE d.SONumber = s.SONumber AND d.Pending > 0)"),
              "9");
    EXPECT_GT(Count("SODetail WHERE Pending > 0 AND Pending < Quantity"), 0);
    EXPECT_GT(Count("SOAbstract WHERE Status & 192 = 128"), 0);
    EXPECT_GT(Count("SOAbstract WHERE Status & 192 = 192"), 0);
    // A line of an item that has left the master, on an open confirmation.
    EXPECT_EQ(db().Text("SELECT d.SONumber || ':' || d.Product_Code FROM SODetail d WHERE NOT EXISTS "
                        "(SELECT 1 FROM Items i WHERE i.Product_Code = d.Product_Code)"),
              "4:FD099");
    // Group shapes: none named (''), none stored (NULL), a list, and a group switched off.
    EXPECT_EQ(db().Text("SELECT SONumber FROM SOAbstract WHERE GroupID = ''"), "4");
    EXPECT_GT(Count("SOAbstract WHERE GroupID IS NULL AND Status = 0"), 0);
    EXPECT_GT(Count("SOAbstract WHERE GroupID LIKE '%,%' AND Status = 0"), 0);
    EXPECT_EQ(db().Text("SELECT s.SONumber FROM SOAbstract s JOIN ProductCategoryGroupAbstract g "
                        "ON CAST(g.GroupID AS TEXT) = s.GroupID WHERE g.Active = 0"),
              "8");
    // Values are the sums of their lines.
    EXPECT_EQ(Count("SOAbstract s WHERE ABS(Value - (SELECT SUM(UOMQty * UOMPrice) FROM SODetail d "
                    "WHERE d.SONumber = s.SONumber)) > 0.001"),
              0);
}

TEST_F(DemoDocuments, HasPurchaseOrdersWithAnItemUnknownHere) {
    EXPECT_EQ(Count("POAbstractReceived WHERE Status & 128 = 0"), 3);
    EXPECT_EQ(Count("POAbstractReceived WHERE Status & 128 = 128"), 1);
    // The screen's own look-up of the unknown items of purchase order 1.
    EXPECT_EQ(db().Text("SELECT group_concat(Product_Code) FROM PODetailReceived WHERE PONumber IN (1) "
                        "AND Product_Code NOT IN (SELECT Alias FROM Items)"),
              "ZZ-999");
    EXPECT_EQ(Count("PODetailReceived p JOIN Items i ON i.Alias = p.Product_Code WHERE p.PONumber = 4"), 0);
    EXPECT_GT(Count("PODetailReceived p JOIN Items i ON i.Alias = p.Product_Code WHERE p.PONumber = 1"), 1);
}

TEST_F(DemoDocuments, HasDispatchesInEveryStateWithTheirLines) {
    EXPECT_GT(Count("DispatchAbstract WHERE Status & 128 = 0"), 4);
    EXPECT_EQ(db().Text("SELECT group_concat(DispatchID) FROM DispatchAbstract WHERE Status & 192 = 192"), "3");
    EXPECT_EQ(db().Text("SELECT group_concat(DispatchID) FROM DispatchAbstract WHERE Status & 448 = 128"), "1");
    EXPECT_EQ(db().Text("SELECT group_concat(DispatchID) FROM DispatchAbstract WHERE Status & 256 = 256"), "4");
    // The amended note's replacement names it and keeps its origin bit.
    EXPECT_EQ(db().Text("SELECT n.DispatchID FROM DispatchAbstract n JOIN DispatchAbstract o "
                        "ON n.OriginalReference = CAST(o.DocumentID AS TEXT) "
                        "WHERE o.DispatchID = 4 AND n.Status & 7 = o.Status & 7 AND n.Status & 128 = 0"),
              "5");
    EXPECT_EQ(Count("DispatchAbstract a WHERE NOT EXISTS (SELECT 1 FROM DispatchDetail d WHERE d.DispatchID = a.DispatchID)"), 0);
    // Origins of every kind, a note of an inactive document type, one on a closed beat.
    EXPECT_EQ(db().Text("SELECT group_concat(DISTINCT Status & 7) FROM (SELECT Status FROM DispatchAbstract ORDER BY Status & 7)"), "1,2,4");
    EXPECT_EQ(db().Text("SELECT a.DispatchID FROM DispatchAbstract a JOIN TransactionDocNumber t "
                        "ON t.DocumentType = a.DocumentType AND t.TransactionType = 5 WHERE t.Active = 0"),
              "7");
    EXPECT_EQ(db().Text("SELECT a.DispatchID FROM DispatchAbstract a JOIN Beat b ON b.BeatID = a.BeatID WHERE b.Active = 0"), "8");
    EXPECT_EQ(Count("DispatchAbstract WHERE DispatchDate >= " + Day(0)), 1);
}

TEST_F(DemoDocuments, HasLinesOfEveryShape) {
    // A line keyed in two units: two rows of one serial.
    EXPECT_EQ(db().Text("SELECT DispatchID || ':' || Serial FROM DispatchDetail GROUP BY DispatchID, Serial HAVING COUNT(*) > 1"), "2:2");
    EXPECT_EQ(db().Text("SELECT Product_Code FROM DispatchDetail WHERE Batch_Code = 0"), "PM001");
    EXPECT_EQ(db().Text("SELECT Product_Code || ':' || FreeItem || Free FROM DispatchDetail WHERE OtherCG_Item = 1"), "PC002:01");
    EXPECT_EQ(Count("DispatchDetail WHERE FreeItem = 1 AND (SalePrice <> 0 OR UOMPrice <> 0)"), 0);
    EXPECT_GT(Count("DispatchDetail WHERE SpecialCategoryScheme = 1 AND FreeItem = 1"), 0);
    EXPECT_GT(Count("DispatchDetail WHERE MultipleSchemeDetails LIKE '%|%|0|0'"), 0);
}

TEST_F(DemoDocuments, KeepsEverySchemeLinkInsideItsNote) {
    // FreeSerial and SPLCATSERIAL name serials of lines of the same note.
    const auto rows = db().Rows("SELECT DispatchID, FreeSerial || ',' || SPLCATSERIAL FROM DispatchDetail");
    int links = 0;
    for (const auto& row : rows) {
        for (const auto& serial : SplitList(row.at(1))) {
            ++links;
            EXPECT_EQ(Count("DispatchDetail WHERE DispatchID = " + row.at(0) + " AND Serial = " + serial), 1)
                << "note " << row.at(0) << " links to serial " << serial;
        }
    }
    EXPECT_GT(links, 5);
    // A free line of an item scheme links back to a line that links to it.
    EXPECT_EQ(Count("DispatchDetail f WHERE f.FreeItem = 1 AND f.FreeSerial <> '' AND NOT EXISTS "
                    "(SELECT 1 FROM DispatchDetail p WHERE p.DispatchID = f.DispatchID AND p.Serial = CAST(f.FreeSerial AS INTEGER) "
                    "AND (',' || p.FreeSerial || ',') LIKE ('%,' || f.Serial || ',%'))"),
              0);
}

TEST_F(DemoDocuments, HasSchemesOfEveryKind) {
    const std::string active = " AND s.Active = 1 AND s.ValidFrom <= " + Day(0) + " AND s.ValidTo >= " + Day(0);
    const std::string slabs = "Schemes s JOIN SchemeSlabs l ON l.SchemeID = s.SchemeID WHERE 1 = 1" + active;
    EXPECT_GT(Count(slabs + " AND s.SchemeType = 17"), 0);
    EXPECT_GT(Count(slabs + " AND s.SchemeType = 18 AND l.FreeItem IS NOT NULL"), 0);
    EXPECT_GT(Count(slabs + " AND s.SchemeScope = 1 AND s.SchemeType = 3 AND l.SlabUnit BETWEEN 1 AND 3"), 0);
    EXPECT_GT(Count(slabs + " AND s.SchemeScope = 1 AND s.SchemeType = 3 AND l.SlabUnit = 4"), 0);
    EXPECT_GT(Count(slabs + " AND s.SchemeScope = 2 AND s.SchemeType = 3"), 0);
    EXPECT_GT(Count(slabs + " AND s.SchemeScope = 2 AND s.SchemeType IN (1, 2)"), 0);
    // Free items of another category group than the scheme's item.
    EXPECT_GT(Count(slabs + " AND s.SchemeScope = 1 AND EXISTS (SELECT 1 FROM SchemeFreeItems f "
                            "JOIN Items fi ON fi.Product_Code = f.Free_Item_Code JOIN ProductCategoryGroupDetail fg "
                            "ON fg.CategoryID = fi.CategoryID JOIN SchemeProducts p ON p.SchemeID = s.SchemeID "
                            "JOIN Items pi ON pi.Product_Code = p.Product_Code JOIN ProductCategoryGroupDetail pg "
                            "ON pg.CategoryID = pi.CategoryID WHERE f.SlabID = l.SlabID AND fg.GroupID <> pg.GroupID)"),
              0);
    // A free item with no stock, a choice of two, a scheme for one customer.
    EXPECT_EQ(db().Text("SELECT f.SlabID FROM SchemeFreeItems f WHERE NOT EXISTS (SELECT 1 FROM Batch_Products b "
                        "WHERE b.Product_Code = f.Free_Item_Code AND b.Quantity > 0)"),
              "2031");
    EXPECT_EQ(db().Text("SELECT SlabID FROM SchemeFreeItems GROUP BY SlabID HAVING COUNT(*) > 1"), "2061");
    EXPECT_EQ(db().Text("SELECT s.SchemeID || ':' || c.CustomerID FROM Schemes s JOIN SchemeCustomers c "
                        "ON c.SchemeID = s.SchemeID WHERE s.AllCustomers = 0"),
              "205:C003");
    // Every free slab of a current scheme offers an item; one item has two load-time schemes.
    EXPECT_EQ(Count(slabs + " AND s.SchemeType = 3 AND NOT EXISTS (SELECT 1 FROM SchemeFreeItems f WHERE f.SlabID = l.SlabID)"), 0);
    EXPECT_EQ(db().Text("SELECT p.Product_Code FROM Schemes s JOIN SchemeProducts p ON p.SchemeID = s.SchemeID "
                        "WHERE s.SchemeType IN (17, 18)" + active + " GROUP BY p.Product_Code HAVING COUNT(*) > 1"),
              "FD001");
    // And two that must never apply.
    EXPECT_EQ(Count("Schemes WHERE ValidTo < " + Day(0)), 1);
    EXPECT_EQ(Count("Schemes WHERE Active = 0"), 1);
}

TEST_F(DemoDocuments, NumbersFollowOnFromTheStoredDocuments) {
    EXPECT_EQ(db().Text("SELECT LastNumber FROM DocumentNumbers WHERE DocType = 5"), "49");
    EXPECT_EQ(db().Text("SELECT MAX(DocumentID) FROM DispatchAbstract"), "49");
    EXPECT_EQ(Count("DocumentNumbers WHERE LastNumber = 0"), 0);
    // No stored reference of a document type lies beyond its counter.
    for (const auto& row : db().Rows("SELECT Prefix, LastCount FROM TransactionDocNumber WHERE TransactionType = 5")) {
        EXPECT_EQ(Count("DispatchAbstract WHERE DocReference LIKE '" + row.at(0) + "%' AND "
                        "CAST(substr(DocReference, length('" + row.at(0) + "') + 1) AS INTEGER) > " + row.at(1)),
                  0)
            << row.at(0);
    }
}

TEST_F(DemoDocuments, HasFormsDueAndReceivedAndAnInvoiceOfToday) {
    EXPECT_GT(Count("InvoiceAbstract WHERE FormsRequired & 4 = 4 AND FormsReceived & 32 = 32 AND CFormNo <> ''"), 0);
    EXPECT_GT(Count("InvoiceAbstract WHERE FormsRequired & 8 = 8 AND FormsReceived & 64 = 64 AND DFormNo <> ''"), 0);
    EXPECT_GT(Count("InvoiceAbstract WHERE FormsRequired = 12 AND FormsReceived = 0"), 0);
    EXPECT_EQ(Count("InvoiceAbstract WHERE FormsReceived & ~(FormsRequired * 8) <> 0"), 0);
    EXPECT_EQ(Count("InvoiceAbstract WHERE InvoiceDate = " + Day(0) + " AND FormsRequired <> 0"), 1);
}

}  // namespace
