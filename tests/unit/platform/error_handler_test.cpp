// The error handler logs run-time errors under either fault policy; a fault of the
// program that reaches it is logged by the released program, fatal in a strict build.
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "fake_connection.h"
#include "platform/error_handler.h"
#include "platform/runtime_error.h"

namespace platform {
namespace {

using Entries = std::vector<std::pair<std::string, long>>;

class MemoryLog : public ErrorLog {
public:
    void ReportError(const std::string& description, long number) override {
        entries.emplace_back(description, number);
    }
    Entries entries;
};

class PolicyInForce {
public:
    explicit PolicyInForce(FaultPolicy policy) : previous_(SetFaultPolicy(policy)) {}
    ~PolicyInForce() { SetFaultPolicy(previous_); }

private:
    FaultPolicy previous_;
};

TEST(RunHandled, LogsPrefixAndDescriptionWithTheNumberAndKeepsTheResult) {
    MemoryLog log;
    bool bResult = false;
    EXPECT_FALSE(RunHandled(log, "Dispatch: GetDetails - ", [&] {
        bResult = true;  // set before the failure: stays as it stood
        throw RuntimeError(err::NoCurrentRecord);
    }));
    EXPECT_TRUE(bResult);
    EXPECT_TRUE(RunHandled(log, "Dispatch: X - ", [] {}));
    EXPECT_EQ(log.entries,
              (Entries{{"Dispatch: GetDetails - " + StandardDescription(err::NoCurrentRecord), err::NoCurrentRecord}}));
}

TEST(RunHandledInTransaction, RollsBackOnlyAnOpenTransactionAndClearsTheFlag) {
    PolicyInForce strict(FaultPolicy::Abort);  // run-time errors are logged even so
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

    // The same failure before the transaction was opened rolls nothing back.
    connection.reached.clear();
    RunHandledInTransaction(log, "Q - ", connection, bInTransaction, [&] { throw RuntimeError(err::TypeMismatch); });
    EXPECT_TRUE(connection.reached.empty());
    EXPECT_EQ(log.entries,
              (Entries{{"Dispatch: SaveDispatch - Violation of PRIMARY KEY constraint", err::DatabaseError},
                       {"Q - Type mismatch", err::TypeMismatch}}));
}

TEST(ProgramFault, IsLoggedAsAnInternalErrorWhenNotStrict) {
    PolicyInForce lenient(FaultPolicy::Log);
    MemoryLog log;
    EXPECT_FALSE(RunHandled(log, "Invoice : ComputeAmount - ", [] { throw std::logic_error("row past the end"); }));
    RunHandled(log, "P - ", [] { throw 42; });
    const std::string internal = StandardDescription(err::InternalError);
    EXPECT_EQ(log.entries,
              (Entries{{"Invoice : ComputeAmount - " + internal + ": row past the end", err::InternalError},
                       {"P - " + internal, err::InternalError}}));
}

TEST(ProgramFaultDeathTest, AbortsNamingTheExceptionWhenStrict) {
    MemoryLog log;
    EXPECT_DEATH(
        {
            SetFaultPolicy(FaultPolicy::Abort);
            RunHandled(log, "Invoice : ComputeAmount - ", [] { throw std::logic_error("row past the end"); });
        },
        "program fault: std::logic_error reached the error handler of \"Invoice : ComputeAmount - \": "
        "row past the end");
    // A std::runtime_error that is not one of the runtime's errors is a fault too,
    // and the transaction's handler stops as the plain one does.
    testing::FakeConnection connection;
    bool bInTransaction = false;
    EXPECT_DEATH(
        {
            SetFaultPolicy(FaultPolicy::Abort);
            RunHandledInTransaction(log, "Save - ", connection, bInTransaction,
                                    [] { throw std::runtime_error("no such folder"); });
        },
        "program fault: std::runtime_error .*no such folder");
}

}  // namespace
}  // namespace platform
