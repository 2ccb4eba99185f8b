// What the screen's statements rely on from the connection: changes that report
// their rows, the server's failure on an empty list, several results from one call
// and the server's built-in functions.
#include <gtest/gtest.h>

#include "platform/convert.h"
#include "platform/runtime_error.h"
#include "server/procedure_context.h"
#include "server_test_support.h"

namespace server {
namespace {

using testkit::RowsText;

class ScreenStatements : public ::testing::Test {
protected:
    ScreenStatements() {
        connection_ = testkit::MakeSmallDatabase(folder_.File("small.db"), registry_);
    }

    std::string Rows(const std::string& sql) { return RowsText(connection_->Execute(sql)); }
    std::string Native(const std::string& sql) { return RowsText(connection_->ExecuteNative(sql)); }

    testkit::ScratchFolder folder_;
    ProcedureRegistry registry_;
    std::shared_ptr<EmbeddedConnection> connection_;
};

TEST_F(ScreenStatements, ChangesReportTheirRowsAndLandInTheDatabase) {
    auto closed = connection_->Execute("Update [POAbstractReceived] set Status = Status | 128 where [PONumber] IN (" +
                                       std::string("21,22") + ")");
    EXPECT_EQ(closed->RowsAffected(), 2);
    EXPECT_EQ(Native("SELECT Status FROM POAbstractReceived ORDER BY PONumber"), "128;130");

    std::string remarks = "Rate ''fixed''";
    connection_->Execute("UPDATE DispatchAbstract SET Status = Status | 384, Remarks = N'" + remarks +
                         "' WHERE DispatchID = " + "5");
    EXPECT_EQ(Native("SELECT Status, Remarks FROM DispatchAbstract WHERE DispatchID = 5"), "385|Rate 'fixed'");

    auto cancelled = connection_->Execute(
        "UPDATE DispatchAbstract SET Status = Status | 192, Remarks = N'" + std::string("Wrong goods") +
        "',CancelUserName = N'" + "clerk" + "',CancelDate = getdate() WHERE DispatchID = " + "6");
    EXPECT_EQ(cancelled->RowsAffected(), 1);
    auto row = connection_->Execute("Select Status, CancelUserName, CancelDate From DispatchAbstract Where DispatchID = 6");
    EXPECT_EQ(row->Fields(0), platform::Value(194));
    EXPECT_EQ(row->Fields(1), platform::Value("clerk"));
    ASSERT_EQ(row->Fields(2).kind(), platform::Value::Kind::Date);
    EXPECT_NEAR(row->Fields(2).AsDate().serial, testkit::LocalNow().serial, 5.0 / (24 * 60));

    connection_->Execute("UPDATE Batch_Products SET Quantity = Quantity + " + platform::NumberToText(12.5) +
                         " WHERE Batch_Code = " + std::to_string(7));
    connection_->Execute("UPDATE Batch_Products SET Quantity = Quantity + " + platform::NumberToText(-2.5) +
                         " WHERE Batch_Code = " + std::to_string(7));
    EXPECT_EQ(Native("SELECT Quantity FROM Batch_Products WHERE Batch_Code = 7"), "110r");

    // An update that matches nothing says so.
    EXPECT_EQ(connection_->Execute("Update [POAbstractReceived] set Status = 0 where [PONumber] IN (99)")->RowsAffected(), 0);
}

TEST_F(ScreenStatements, AnEmptyDocumentListFailsAsOnTheServer) {
    std::string poNumbers;
    try {
        connection_->Execute("Update [POAbstractReceived] set Status = Status | 128 where [PONumber] IN (" + poNumbers + ")");
        FAIL() << "an empty list must fail";
    } catch (const platform::RuntimeError& error) {
        EXPECT_EQ(error.Number(), platform::err::DatabaseError);
    }
    EXPECT_EQ(Native("SELECT Status FROM POAbstractReceived ORDER BY PONumber"), "0;2");
}

TEST_F(ScreenStatements, SeveralStatementsInOneCallEachGiveAResult) {
    auto recordset = connection_->Execute("Update Schemes Set SchemeType = 9 Where SchemeID = 1; "
                                          "Select SchemeType From Schemes Where SchemeID = 1");
    EXPECT_EQ(recordset->RowsAffected(), 1);
    ASSERT_TRUE(recordset->NextRecordset());
    EXPECT_EQ(recordset->Fields(0), platform::Value(9));
}

TEST_F(ScreenStatements, BuiltInFunctionsGiveTheServersAnswers) {
    auto row = connection_->Execute(
        "Select Len('ab  '), Right('abcdef', 2), Right('abc', 0), Left('abcdef', 2), Charindex('c', 'abc'), "
        "Convert(varchar(10), '2026-11-22 10:30:00', 103), Cast('12.345' as decimal(10,2)), Cast(12.7 as int), "
        "Cast('2026-11-22' as datetime), Substring('abcdef', 2, 3), Convert(bit, 5)");
    EXPECT_EQ(RowsText(row), "2|ef||ab|3|22/11/2026|12.35r|12|D:2026-11-22 00:00:00|bcd|1");

    connection_->Execute("Insert Into Schemes (SchemeID, SchemeType) Values (40, 1)");
    EXPECT_EQ(Rows("Select @@IDENTITY"), "40");
}

}  // namespace
}  // namespace server
