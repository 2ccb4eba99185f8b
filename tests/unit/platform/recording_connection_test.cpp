#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "fake_connection.h"
#include "platform/convert.h"
#include "platform/recording_connection.h"
#include "platform/runtime_error.h"

namespace platform {
namespace {

using Kind = RecordedCall::Kind;

struct Recording : ::testing::Test {
    std::shared_ptr<testing::FakeConnection> inner = std::make_shared<testing::FakeConnection>();
    RecordingConnection connection{inner};
};

TEST_F(Recording, RecordsEveryCallInOrderAndPassesItOn) {
    connection.BeginTrans();
    auto result = connection.Execute("Select 1");
    connection.RunProcedure("sp_close_so", {{Value(7), adtype::Integer}});
    connection.CommitTrans();
    connection.RollbackTrans();

    ASSERT_EQ(connection.Calls().size(), 5u);
    std::vector<Kind> kinds;
    for (const auto& call : connection.Calls()) kinds.push_back(call.kind);
    EXPECT_EQ(kinds, (std::vector<Kind>{Kind::Begin, Kind::Statement, Kind::Procedure, Kind::Commit, Kind::Rollback}));
    EXPECT_EQ(connection.Calls()[1].text, "Select 1");
    EXPECT_EQ(connection.Calls()[2].text, "sp_close_so");
    ASSERT_EQ(connection.Calls()[2].parameters.size(), 1u);
    EXPECT_EQ(connection.Calls()[2].parameters[0].type, adtype::Integer);

    EXPECT_EQ(inner->reached, (std::vector<std::string>{"begin", "Select 1", "sp_close_so", "commit", "rollback"}));
    EXPECT_EQ(result->Fields(0), Value(1));  // the inner answer comes back
    connection.BeginTrans();
    EXPECT_TRUE(connection.InTransaction());
}

TEST_F(Recording, RecordsCallsThatFail) {
    class Failing : public testing::FakeConnection {
        RecordsetPtr Execute(const std::string&) override { throw RuntimeError(err::DatabaseError, "bad"); }
    };
    RecordingConnection failing(std::make_shared<Failing>());
    EXPECT_THROW(failing.Execute("Update X"), RuntimeError);
    ASSERT_EQ(failing.Calls().size(), 1u);
    EXPECT_EQ(failing.Calls()[0].text, "Update X");
}

TEST_F(Recording, TellsTheListenerAsEachCallIsMadeAndForgetsOnClear) {
    std::vector<std::string> heard;
    connection.onCall = [&](const RecordedCall& call) {
        heard.push_back(RecordingConnection::Describe(call));
        // The inner connection has not seen the call yet.
        heard.push_back(std::to_string(inner->reached.size()));
    };
    connection.Execute("Select 2");
    connection.BeginTrans();
    EXPECT_EQ(heard, (std::vector<std::string>{"Select 2", "0", "BEGIN TRANSACTION", "1"}));

    connection.Clear();
    EXPECT_TRUE(connection.Calls().empty());
    connection.CommitTrans();
    EXPECT_EQ(connection.Calls().size(), 1u);
}

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
    EXPECT_EQ(describe({Kind::Commit, {}, {}}), "COMMIT TRANSACTION");
    EXPECT_EQ(describe({Kind::Rollback, {}, {}}), "ROLLBACK TRANSACTION");
}

}  // namespace
}  // namespace platform
