#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "fake_connection.h"
#include "platform/fault_connection.h"
#include "platform/runtime_error.h"

namespace platform {
namespace {

struct Faults : ::testing::Test {
    std::shared_ptr<testing::FakeConnection> inner = std::make_shared<testing::FakeConnection>();
    FaultInjectingConnection connection{inner};

    // The error a call raised, or none.
    template <class Call>
    std::string FailureOf(Call&& call) {
        try {
            call();
        } catch (const RuntimeError& e) {
            EXPECT_EQ(e.Number(), err::DatabaseError);
            return e.Description();
        }
        return {};
    }
};

TEST_F(Faults, FailsTheNthCallCountedFromNowWithoutReachingTheInnerConnection) {
    connection.Execute("Select 1");
    connection.FailNthCall(3);
    connection.BeginTrans();
    connection.RunProcedure("sp_a", {});
    EXPECT_EQ(FailureOf([&] { connection.RunProcedure("sp_b", {{Value("x'y"), adtype::VarChar}}); }),
              "Injected failure of call 4: sp_b 'x''y'");
    EXPECT_EQ(inner->reached, (std::vector<std::string>{"Select 1", "begin", "sp_a"}));
    // Only that call: the next goes through.
    EXPECT_EQ(FailureOf([&] { connection.CommitTrans(); }), "");
    EXPECT_EQ(connection.CallCount(), 5);
}

TEST_F(Faults, CountsTransactionCallsButNeverFailsARollback) {
    connection.FailNthCall(1);
    connection.FailNthCall(2);
    EXPECT_EQ(FailureOf([&] { connection.BeginTrans(); }), "Injected failure of call 1: BEGIN TRANSACTION");
    connection.RollbackTrans();  // not counted, not failed
    EXPECT_EQ(FailureOf([&] { connection.CommitTrans(); }), "Injected failure of call 2: COMMIT TRANSACTION");
    EXPECT_EQ(inner->reached, (std::vector<std::string>{"rollback"}));
    EXPECT_EQ(connection.CallCount(), 2);
    connection.BeginTrans();
    EXPECT_TRUE(connection.InTransaction());  // the state comes from the inner connection
}

TEST_F(Faults, FailsMatchingStatementsAndProceduresWithoutRegardToCase) {
    connection.FailMatching("update soabstract");
    connection.FailMatching("SP_CLOSE_SO");
    EXPECT_NE(FailureOf([&] { connection.Execute("Update SOAbstract Set Status = 128"); }), "");
    EXPECT_NE(FailureOf([&] { connection.Execute("UPDATE SOABSTRACT SET Status = 0"); }), "");
    EXPECT_NE(FailureOf([&] { connection.RunProcedure("sp_close_so", {}); }), "");
    // a procedure must be named whole; a statement need only contain the fragment
    EXPECT_EQ(FailureOf([&] { connection.RunProcedure("sp_close_so_all", {}); }), "");
    EXPECT_EQ(FailureOf([&] { connection.Execute("Select * From SOAbstract"); }), "");
    EXPECT_EQ(inner->reached, (std::vector<std::string>{"sp_close_so_all", "Select * From SOAbstract"}));
}

TEST_F(Faults, ClearFaultsForgetsEveryFaultRestartsTheCountAndMeaninglessFaultsAreRefused) {
    connection.FailMatching("Select");
    connection.FailNthCall(2);
    connection.BeginTrans();
    connection.ClearFaults();
    EXPECT_EQ(connection.CallCount(), 0);
    EXPECT_EQ(FailureOf([&] { connection.Execute("Select 1"); }), "");
    EXPECT_EQ(FailureOf([&] { connection.Execute("Select 2"); }), "");
    EXPECT_EQ(connection.CallCount(), 2);
    EXPECT_THROW(connection.FailNthCall(0), RuntimeError);
    EXPECT_THROW(connection.FailMatching(""), RuntimeError);
    EXPECT_EQ(FailureOf([&] { connection.Execute("Select 3"); }), "");
}

}  // namespace
}  // namespace platform
