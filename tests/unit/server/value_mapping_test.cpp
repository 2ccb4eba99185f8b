// What comes back from the database and in what kind of value, and what the screen's
// statements rely on from the connection: row counts, several results from one call
// and the server's built-in functions.
#include <gtest/gtest.h>

#include "platform/convert.h"
#include "server/procedure_context.h"
#include "server_test_support.h"

namespace server {
namespace {

using testkit::RowsText;

class ValueMapping : public testkit::DemoDatabase {
protected:
    // A statement as the screen runs it; RowsText tells the kinds apart (D: dates, r doubles).
    std::string Rows(const std::string& sql) { return RowsText(db().Execute(sql)); }
};

// Plain columns of each kind are read back by every save and print test; these are
// the values whose kind the column's type does not give away.
TEST_F(ValueMapping, DateExpressionsComeBackAsDatesAndDateLikeTextStaysText) {
    EXPECT_EQ(Rows("Select Max(DispatchDate) From DispatchAbstract"),
              "D:" + Text("SELECT date('now', 'localtime')") + " 09:30:00");
    EXPECT_EQ(Rows("Select Expiry From Batch_Products Where Batch_Code = 8"), "NULL");
    db().Execute("Update DispatchAbstract Set Remarks = '2026-01-01 00:00:00' Where DispatchID = 9");
    EXPECT_EQ(Rows("Select Remarks From DispatchAbstract Where DispatchID = 9"), "2026-01-01 00:00:00");
}

TEST_F(ValueMapping, BoundValuesGoInAsTheDatabaseKeepsThem) {
    ProcedureContext context(db(), "test");
    context.Run("INSERT INTO DispatchAbstract (DispatchID, CustomerID, DispatchDate, Status) VALUES (?, ?, ?, ?)",
                {20, "C001", platform::DateTime(2099, 12, 1, 8, 5, 9), 2});
    context.Run("UPDATE Items SET TrackPKD = ? WHERE Product_Code = ?", {true, "FD002"});
    EXPECT_EQ(Text("SELECT DispatchDate, typeof(DispatchDate), (SELECT TrackPKD FROM Items WHERE Product_Code = "
                   "'FD002') FROM DispatchAbstract WHERE DispatchID = 20"),
              "D:2099-12-01 08:05:09|text|1");
    // The date form sorts and compares as text the way the server compared dates.
    EXPECT_EQ(Rows("Select DispatchID From DispatchAbstract Where DispatchDate >= '2099-12-01 08:05' Or DispatchID = 9 "
                   "Order By DispatchDate"),
              "9;20");
}

TEST_F(ValueMapping, ChangesReportTheirRowsAndASecondStatementIsRefusedBeforeAnythingRuns) {
    EXPECT_EQ(
        db().Execute("Update [POAbstractReceived] set Status = Status | 128 where [PONumber] IN (1,2)")->RowsAffected(),
        2);
    EXPECT_EQ(db().Execute("Update [POAbstractReceived] set Status = 0 where [PONumber] IN (99)")->RowsAffected(), 0);
    EXPECT_EQ(db().Execute("Select SchemeType From Schemes Where SchemeID = 101;")->Fields(0), platform::Value(17));
    EXPECT_EQ(
        testkit::Refusal([&] { db().Execute("Update Schemes Set SchemeType = 18 Where SchemeID = 101; Select 1"); }),
        "Only one statement may be run here; found more: Select 1");
    EXPECT_EQ(Rows("Select SchemeType From Schemes Where SchemeID = 101"), "17");
}

TEST_F(ValueMapping, BuiltInFunctionsGiveTheServersAnswers) {
    EXPECT_EQ(Rows("Select Len('ab  '), Right('abcdef', 2), Right('abc', 0), Left('abcdef', 2), Charindex('c', 'abc'), "
                   "Convert(varchar(10), '2026-11-22 10:30:00', 103), Cast('12.345' as decimal(10,2)), "
                   "Cast(12.7 as int), Cast('2026-11-22' as datetime), Substring('abcdef', 2, 3), Convert(bit, 5)"),
              "2|ef||ab|3|22/11/2026|12.35r|12|D:2026-11-22 00:00:00|bcd|1");
    db().Execute("Insert Into Schemes (SchemeID, SchemeType) Values (40, 1)");
    EXPECT_EQ(Rows("Select @@IDENTITY"), "40");
    db().Execute("Update DispatchAbstract Set CancelDate = getdate() Where DispatchID = 6");
    const auto now = db().Execute("Select CancelDate From DispatchAbstract Where DispatchID = 6")->Fields(0);
    ASSERT_EQ(now.kind(), platform::Value::Kind::Date);
    EXPECT_NEAR(now.AsDate().serial, testkit::LocalNow().serial, 5.0 / (24 * 60));
}

}  // namespace
}  // namespace server
