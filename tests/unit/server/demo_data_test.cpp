// The demo database holds together: every link in place, scheme links inside their
// notes, values that add up and counters ahead of what is stored. What the rows are
// is the demo's own business; the session scenarios read them.
#include "demo_fixture_test.h"

#include <sstream>

namespace {

using DemoData = schema_test::DemoDatabase;

TEST_F(DemoData, LoadsWithEveryLinkInPlace) {
    EXPECT_EQ(db().Text("PRAGMA integrity_check"), "ok");
    EXPECT_TRUE(db().ForeignKeyViolations().empty());
    // Dates are counted from today, and nothing older than last month is left to expire.
    EXPECT_EQ(Count("Batch_Products WHERE Expiry < " + Day(-31)), 0);
    EXPECT_EQ(Count("DispatchAbstract a WHERE NOT EXISTS (SELECT 1 FROM DispatchDetail d WHERE d.DispatchID = a.DispatchID)"), 0);
    EXPECT_EQ(Count("SOAbstract s WHERE ABS(Value - (SELECT SUM(UOMQty * UOMPrice) FROM SODetail d "
                    "WHERE d.SONumber = s.SONumber)) > 0.001"),
              0);
}

TEST_F(DemoData, KeepsEverySchemeLinkInsideItsNote) {
    int links = 0;
    for (const auto& row : db().Rows("SELECT DispatchID, FreeSerial || ',' || SPLCATSERIAL FROM DispatchDetail")) {
        std::stringstream serials(row.at(1));
        for (std::string serial; std::getline(serials, serial, ',');) {
            if (serial.empty()) continue;
            ++links;
            EXPECT_EQ(Count("DispatchDetail WHERE DispatchID = " + row.at(0) + " AND Serial = " + serial), 1)
                << "note " << row.at(0) << " links to serial " << serial;
        }
    }
    EXPECT_GT(links, 5);
    EXPECT_EQ(Count("DispatchDetail WHERE FreeItem = 1 AND (SalePrice <> 0 OR UOMPrice <> 0)"), 0);
}

TEST_F(DemoData, NumbersFollowOnFromTheStoredDocuments) {
    EXPECT_EQ(db().Text("SELECT LastNumber FROM DocumentNumbers WHERE DocType = 5"),
              db().Text("SELECT MAX(DocumentID) FROM DispatchAbstract"));
    for (const auto& row : db().Rows("SELECT Prefix, LastCount FROM TransactionDocNumber WHERE TransactionType = 5")) {
        EXPECT_EQ(Count("DispatchAbstract WHERE DocReference LIKE '" + row.at(0) + "%' AND "
                        "CAST(substr(DocReference, length('" + row.at(0) + "') + 1) AS INTEGER) > " + row.at(1)),
                  0)
            << row.at(0);
    }
}

}  // namespace
