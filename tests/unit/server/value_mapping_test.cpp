// What comes back from the database, and in what kind of value.
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
    EXPECT_EQ(First("Select Remarks From DispatchAbstract Where DispatchID = 5"), platform::Value("2026-01-01 00:00:00"));
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
    context.Run("INSERT INTO DispatchAbstract (DispatchID, CustomerID, DispatchDate, Status, Closed) VALUES (?, ?, ?, ?, ?)",
                {7, "C001", platform::DateTime(2026, 12, 1, 8, 5, 9), 2, true});
    EXPECT_EQ(RowsText(connection_->ExecuteNative(
                  "SELECT DispatchDate, typeof(DispatchDate), Closed FROM DispatchAbstract WHERE DispatchID = 7")),
              "D:2026-12-01 08:05:09|text|1");
    EXPECT_EQ(First("Select DispatchDate From DispatchAbstract Where DispatchID = 7"),
              platform::Value(platform::DateTime(2026, 12, 1, 8, 5, 9)));
    // The date form sorts and compares as text the way the server compared dates.
    EXPECT_EQ(RowsText(connection_->Execute("Select DispatchID From DispatchAbstract Where DispatchDate >= '2026-11-22 10:00:00'"
                                            " Order By DispatchDate")),
              "6;7");
}

TEST(DateTimeText, IsTheStoredFormWithTheTimeAlwaysWritten) {
    EXPECT_EQ(DateTimeText(platform::DateSerial(2026, 3, 4)), "2026-03-04 00:00:00");
    EXPECT_EQ(DateTimeText(platform::DateTime(1999, 12, 31, 23, 59, 59)), "1999-12-31 23:59:59");
    EXPECT_TRUE(LooksLikeDateTimeText("2026-03-04 00:00:00"));
    EXPECT_FALSE(LooksLikeDateTimeText("2026-03-04"));
    EXPECT_FALSE(LooksLikeDateTimeText("2026/03/04 00:00:00"));
}

}  // namespace
}  // namespace server
