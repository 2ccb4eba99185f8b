#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "fake_connection.h"
#include "platform/error_handler.h"
#include "platform/runtime_error.h"

namespace platform {
namespace {

class MemoryLog : public ErrorLog {
public:
    void ReportError(const std::string& description, long number) override { entries.emplace_back(description, number); }
    std::vector<std::pair<std::string, long>> entries;
};

TEST(RunHandled, LogsPrefixAndDescriptionWithTheNumberAndKeepsTheResult) {
    MemoryLog log;
    bool bResult = false;
    const bool finished = RunHandled(log, "Dispatch: GetDetails - ", [&] {
        bResult = true;  // set before the failure: stays as it stood
        throw RuntimeError(err::NoCurrentRecord);
    });
    EXPECT_FALSE(finished);
    EXPECT_TRUE(bResult);
    ASSERT_EQ(log.entries.size(), 1u);
    EXPECT_EQ(log.entries[0].first, "Dispatch: GetDetails - " + StandardDescription(err::NoCurrentRecord));
    EXPECT_EQ(log.entries[0].second, err::NoCurrentRecord);
}

TEST(RunHandled, LogsNothingWhenTheBodyRunsToItsEnd) {
    MemoryLog log;
    int steps = 0;
    EXPECT_TRUE(RunHandled(log, "Dispatch: X - ", [&] { ++steps; }));
    EXPECT_EQ(steps, 1);
    EXPECT_TRUE(log.entries.empty());
}

TEST(RunHandledInTransaction, RollsBackOnlyAnOpenTransactionAndClearsTheFlag) {
    MemoryLog log;
    testing::FakeConnection connection;
    bool bInTransaction = false;
    RunHandledInTransaction(log, "Dispatch: SaveDispatch - ", connection, bInTransaction, [&] {
        connection.BeginTrans();
        bInTransaction = true;
        throw RuntimeError(err::DatabaseError, "Violation of PRIMARY KEY constraint");
    });
    EXPECT_FALSE(bInTransaction);
    EXPECT_EQ(connection.reached, (std::vector<std::string>{"begin", "rollback"}));
    ASSERT_EQ(log.entries.size(), 1u);
    EXPECT_EQ(log.entries[0].first, "Dispatch: SaveDispatch - Violation of PRIMARY KEY constraint");
    EXPECT_EQ(log.entries[0].second, err::DatabaseError);

    // The same failure before the transaction was opened rolls nothing back.
    connection.reached.clear();
    RunHandledInTransaction(log, "Dispatch: SaveDispatch - ", connection, bInTransaction,
                            [&] { throw RuntimeError(err::TypeMismatch); });
    EXPECT_TRUE(connection.reached.empty());
    EXPECT_EQ(log.entries.size(), 2u);
}

TEST(RunHandledInTransaction, ReportsTheOriginalErrorWhenTheRollbackFailsToo) {
    class BrokenRollback : public testing::FakeConnection {
    public:
        void RollbackTrans() override { throw RuntimeError(err::DatabaseError, "connection lost"); }
    } connection;
    MemoryLog log;
    bool bInTransaction = true;
    RunHandledInTransaction(log, "P - ", connection, bInTransaction, [] { throw RuntimeError(err::Overflow); });
    EXPECT_FALSE(bInTransaction);
    ASSERT_EQ(log.entries.size(), 1u);
    EXPECT_EQ(log.entries[0].first, "P - Overflow");
    EXPECT_EQ(log.entries[0].second, err::Overflow);
}

}  // namespace
}  // namespace platform
