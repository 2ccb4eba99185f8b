// A fault of the program that reaches the error handler: logged by the released
// program, fatal in a strict build. Run-time errors are logged under either policy.
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

class MemoryLog : public ErrorLog {
public:
    void ReportError(const std::string& description, long number) override { entries.emplace_back(description, number); }
    std::vector<std::pair<std::string, long>> entries;
};

class PolicyInForce {
public:
    explicit PolicyInForce(FaultPolicy policy) : previous_(SetFaultPolicy(policy)) {}
    ~PolicyInForce() { SetFaultPolicy(previous_); }

private:
    FaultPolicy previous_;
};

TEST(ProgramFault, IsLoggedAsAnInternalErrorWhenNotStrict) {
    PolicyInForce lenient(FaultPolicy::Log);
    MemoryLog log;
    EXPECT_FALSE(RunHandled(log, "Invoice : ComputeAmount - ", [] { throw std::logic_error("row past the end"); }));
    RunHandled(log, "P - ", [] { throw 42; });
    const std::string internal = StandardDescription(err::InternalError);
    ASSERT_EQ(log.entries.size(), 2u);
    EXPECT_EQ(log.entries[0].first, "Invoice : ComputeAmount - " + internal + ": row past the end");
    EXPECT_EQ(log.entries[0].second, err::InternalError);
    EXPECT_EQ(log.entries[1].first, "P - " + internal);
    EXPECT_EQ(log.entries[1].second, err::InternalError);
}

TEST(ProgramFault, RunTimeErrorsAreLoggedEvenWhenStrict) {
    PolicyInForce strict(FaultPolicy::Abort);
    MemoryLog log;
    testing::FakeConnection connection;
    bool bInTransaction = true;
    RunHandled(log, "P - ", [] { throw RuntimeError(err::Overflow); });
    RunHandledInTransaction(log, "Q - ", connection, bInTransaction,
                            [] { throw RuntimeError(err::DatabaseError, "deadlock"); });
    EXPECT_EQ(log.entries, (std::vector<std::pair<std::string, long>>{{"P - Overflow", err::Overflow},
                                                                      {"Q - deadlock", err::DatabaseError}}));
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
    EXPECT_TRUE(log.entries.empty());
}

}  // namespace
}  // namespace platform
