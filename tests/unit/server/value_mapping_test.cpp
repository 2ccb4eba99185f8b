// What comes back from the database and in what kind of value, and what the screen's
// statements rely on from the connection: row counts, several results from one call
// and the server's built-in functions.
#include <gtest/gtest.h>

#include "platform/convert.h"
#include "server/procedure_context.h"
#include "server/sqlite_values.h"
#include "server_test_support.h"

namespace server {
namespace {

using Kind = platform::Value::Kind;
using testkit::RowsText;

class ValueMapping : public ::testing::Test {
protected:
    ValueMapping() : connection_(testkit::MakeSmallDatabase(folder_.File("values.db"), registry_)) {}

    platform::Value First(const std::string& sql) {
        auto recordset = connection_->Execute(sql);
        return recordset->Fields(0);
    }

    testkit::ScratchFolder folder_;
    ProcedureRegistry registry_;
    std::shared_ptr<EmbeddedConnection> connection_;
};

TEST_F(ValueMapping, DateColumnsAndDateExpressionsComeBackAsDates) {
    EXPECT_EQ(First("Select DispatchDate From DispatchAbstract Where DispatchID = 5"),
              platform::Value(platform::DateTime(2026, 11, 22, 9, 15, 0)));
    EXPECT_EQ(First("Select Max(DispatchDate) From DispatchAbstract"),
              platform::Value(platform::DateTime(2026, 11, 22, 11, 0, 0)));
    EXPECT_TRUE(First("Select Expiry From Batch_Products Where Batch_Code = 8").IsNull());
    // Text that only looks like a date stays text in a text column.
    connection_->Execute("Update DispatchAbstract Set Remarks = '2026-01-01 00:00:00' Where DispatchID = 5");
    EXPECT_EQ(First("Select Remarks From DispatchAbstract Where DispatchID = 5"),
              platform::Value("2026-01-01 00:00:00"));
}

TEST_F(ValueMapping, NumbersKeepTheirKindAndBitsAreIntegers) {
    EXPECT_EQ(First("Select CustomerCategory From Customer Where CustomerID = 'C001'").kind(), Kind::Integer);
    EXPECT_EQ(First("Select Sale_Price From Items Where Product_Code = 'CHOC1'"), platform::Value(12.5));
    EXPECT_EQ(First("Select Track_Inventory From ItemCategories Where CategoryID = 1"), platform::Value(1));
    EXPECT_EQ(First("Select Closed From DispatchAbstract Where DispatchID = 6"), platform::Value(1));
    EXPECT_TRUE(First("Select DLNumber21 From Customer Where CustomerID = 'C001'").IsNull());
}

TEST_F(ValueMapping, BoundValuesGoInAsTheDatabaseKeepsThem) {
    ProcedureContext context(*connection_, "test");
    context.Run(
        "INSERT INTO DispatchAbstract (DispatchID, CustomerID, DispatchDate, Status, Closed) VALUES (?, ?, ?, ?, ?)",
        {7, "C001", platform::DateTime(2026, 12, 1, 8, 5, 9), 2, true});
    EXPECT_EQ(RowsText(connection_->ExecuteNative(
                  "SELECT DispatchDate, typeof(DispatchDate), Closed FROM DispatchAbstract WHERE DispatchID = 7")),
              "D:2026-12-01 08:05:09|text|1");
    // The date form sorts and compares as text the way the server compared dates.
    EXPECT_EQ(RowsText(connection_->Execute(
                  "Select DispatchID From DispatchAbstract Where DispatchDate >= '2026-11-22 10:00:00'"
                  " Order By DispatchDate")),
              "6;7");
}

TEST_F(ValueMapping, ChangesReportTheirRowsAndBatchesGiveOneResultEach) {
    EXPECT_EQ(connection_->Execute("Update [POAbstractReceived] set Status = Status | 128 where [PONumber] IN (21,22)")
                  ->RowsAffected(),
              2);
    EXPECT_EQ(
        connection_->Execute("Update [POAbstractReceived] set Status = 0 where [PONumber] IN (99)")->RowsAffected(), 0);
    auto recordset = connection_->Execute(
        "Update Schemes Set SchemeType = 9 Where SchemeID = 1; "
        "Select SchemeType From Schemes Where SchemeID = 1");
    EXPECT_EQ(recordset->RowsAffected(), 1);
    ASSERT_TRUE(recordset->NextRecordset());
    EXPECT_EQ(recordset->Fields(0), platform::Value(9));
}

TEST_F(ValueMapping, BuiltInFunctionsGiveTheServersAnswers) {
    EXPECT_EQ(
        RowsText(connection_->Execute(
            "Select Len('ab  '), Right('abcdef', 2), Right('abc', 0), Left('abcdef', 2), Charindex('c', 'abc'), "
            "Convert(varchar(10), '2026-11-22 10:30:00', 103), Cast('12.345' as decimal(10,2)), Cast(12.7 as int), "
            "Cast('2026-11-22' as datetime), Substring('abcdef', 2, 3), Convert(bit, 5)")),
        "2|ef||ab|3|22/11/2026|12.35r|12|D:2026-11-22 00:00:00|bcd|1");
    connection_->Execute("Insert Into Schemes (SchemeID, SchemeType) Values (40, 1)");
    EXPECT_EQ(RowsText(connection_->Execute("Select @@IDENTITY")), "40");
    connection_->Execute("Update DispatchAbstract Set CancelDate = getdate() Where DispatchID = 6");
    const auto now = First("Select CancelDate From DispatchAbstract Where DispatchID = 6");
    ASSERT_EQ(now.kind(), Kind::Date);
    EXPECT_NEAR(now.AsDate().serial, testkit::LocalNow().serial, 5.0 / (24 * 60));
}

}  // namespace
}  // namespace server
