// The database layer: the recordset, and the connections that inject faults and record calls.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "fake_connection.h"
#include "platform/convert.h"
#include "platform/database.h"
#include "platform/fault_connection.h"
#include "platform/recording_connection.h"
#include "platform/runtime_error.h"
#include "platform_test_support.h"

namespace platform {
namespace {

using testing::ErrorNumberOf;

ResultSet Customers() {
    return {{"CustomerID", "Company_Name"}, {{Value("C1"), Value("Apex Traders")}, {Value("C2"), Value::Null()}}};
}

TEST(Recordset, WalksItsRowsRefusesToGoPastTheEndAndFindsFieldsByNameInAnyCase) {
    Recordset set(std::vector<ResultSet>{Customers()});
    set.MoveNext();
    EXPECT_TRUE(set.Fields(1).IsNull());
    set.MoveNext();
    EXPECT_TRUE(set.Eof());
    EXPECT_EQ(ErrorNumberOf([&] { set.Fields(0); }), err::NoCurrentRecord);
    EXPECT_EQ(ErrorNumberOf([&] { set.MoveNext(); }), err::NoCurrentRecord);
    set.MoveFirst();
    EXPECT_EQ(set.Fields("COMPANY_NAME"), Value("Apex Traders"));
    EXPECT_EQ(ErrorNumberOf([&] { set.Fields("Company"); }), err::ItemNotFound);
    EXPECT_EQ(ErrorNumberOf([&] { set.Fields(2); }), err::ItemNotFound);
    EXPECT_EQ(ErrorNumberOf([&] { set.Fields(-1); }), err::ItemNotFound);
}

TEST(Recordset, NextRecordsetStepsThroughEverySetThenCloses) {
    ResultSet rowCount;
    rowCount.rowsAffected = 3;
    ResultSet answer{{"Serial"}, {{Value(42)}}};
    Recordset set(std::vector<ResultSet>{rowCount, answer, Customers()});

    EXPECT_EQ(std::tuple(set.RowsAffected(), set.Eof()), std::tuple(3, true));
    ASSERT_TRUE(set.NextRecordset());
    EXPECT_EQ(set.Fields(0), Value(42));
    ASSERT_TRUE(set.NextRecordset());
    EXPECT_EQ(set.Fields("customerid"), Value("C1"));  // each set starts at its first row
    EXPECT_FALSE(set.NextRecordset());
    EXPECT_FALSE(set.IsOpen());
    EXPECT_EQ(ErrorNumberOf([&] { set.Eof(); }), 3704);

    Recordset closed(std::vector<ResultSet>{Customers()});
    closed.Close();
    EXPECT_FALSE(closed.IsOpen());
    EXPECT_EQ(ErrorNumberOf([&] { closed.Fields(0); }), 3704);
}

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
    EXPECT_EQ(FailureOf([&] {
                  connection.RunProcedure("sp_b", {{Value("x'y"), adtype::VarChar}});
              }),
              "Injected failure of call 4: sp_b 'x''y'");
    EXPECT_EQ(inner->reached, (std::vector<std::string>{"Select 1", "begin", "sp_a"}));
    // Only that call: the next goes through.
    EXPECT_EQ(FailureOf([&] { connection.CommitTrans(); }), "");
    EXPECT_EQ(connection.CallCount(), 5);
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

using Kind = RecordedCall::Kind;

TEST(RecordingDescribe, WritesEachCallAsTheServerWouldReadIt) {
    const auto describe = [](RecordedCall call) { return RecordingConnection::Describe(call); };
    EXPECT_EQ(describe({Kind::Procedure,
                        "sp_get_allSOabstract",
                        {{Value(DateSerial(2026, 11, 1)), adtype::Date},
                         {Value(DateTime(2026, 11, 22, 23, 59, 59)), adtype::Date}}}),
              "sp_get_allSOabstract '2026-11-01 00:00:00', '2026-11-22 23:59:59'");
    EXPECT_EQ(describe({Kind::Procedure,
                        "sp_save",
                        {{Value("O'Brien"), adtype::VarChar},
                         {Value(12), adtype::Integer},
                         {Value(2.5), adtype::Double},
                         {Value(1e15), adtype::Double},
                         {Value(true), adtype::Boolean},
                         {Value(false), adtype::Boolean},
                         {Value::Null(), adtype::VarChar},
                         {Value(""), adtype::VarChar}}}),
              "sp_save 'O''Brien', 12, 2.5, 1E+15, 1, 0, NULL, ''");
    EXPECT_EQ(describe({Kind::Procedure, "sp_list_Dispatch", {}}), "sp_list_Dispatch");
}

}  // namespace
}  // namespace platform
