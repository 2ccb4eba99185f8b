// The three transaction calls, and what they mean for a second clerk on the same file.
#include <gtest/gtest.h>

#include "platform/runtime_error.h"
#include "server_test_support.h"

namespace server {
namespace {

using testkit::RowsText;

// Two clerks on one file; the second gives up on a lock after 200 ms.
class Transactions : public testkit::DemoDatabase {
protected:
    std::string Stock(EmbeddedConnection& connection) {
        return RowsText(connection.ExecuteNative("SELECT Quantity FROM Batch_Products WHERE Batch_Code = 7"));
    }

    EmbeddedConnection& first_ = db();
    std::unique_ptr<EmbeddedConnection> second_ =
        std::make_unique<EmbeddedConnection>(Path(), EmbeddedConnection::Options{.busyTimeoutMs = 200});
};

// A rollback after a failing call is shown by the screen's save, which fails each of
// its calls in turn; here the statement that fails is SQLite's own, inside the
// transaction, and the transaction must survive it.
TEST_F(Transactions, AFailedStatementInsideLeavesTheTransactionOpenForTheRollback) {
    first_.BeginTrans();
    first_.Execute("UPDATE Batch_Products SET Quantity = 0 WHERE Batch_Code = 7");
    // A row for an item that does not exist breaks a foreign key.
    EXPECT_EQ(testkit::Refusal(
                  [&] { first_.Execute("Insert Into Batch_Products (Batch_Code, Product_Code) Values (99, 'NONE')"); }),
              "FOREIGN KEY constraint failed");
    EXPECT_TRUE(first_.InTransaction());
    first_.RollbackTrans();
    EXPECT_EQ(std::tuple(first_.InTransaction(), Stock(*second_)), std::tuple(false, "144r"));
}

TEST_F(Transactions, RefusesCallsOutOfOrder) {
    EXPECT_EQ(testkit::Refusal([&] { first_.CommitTrans(); }),
              "The COMMIT TRANSACTION request has no corresponding BEGIN TRANSACTION.");
    first_.BeginTrans();
    EXPECT_EQ(testkit::Refusal([&] { first_.BeginTrans(); }), "Only one transaction can be active on this session.");
    EXPECT_TRUE(first_.InTransaction());  // the refused call left the open one alone
    first_.RollbackTrans();
    EXPECT_EQ(testkit::Refusal([&] { first_.RollbackTrans(); }),
              "The ROLLBACK TRANSACTION request has no corresponding BEGIN TRANSACTION.");
}

}  // namespace
}  // namespace server
