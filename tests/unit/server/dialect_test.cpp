// The translation as text: what SQLite is handed for the server's own constructs,
// that literals are never touched, and that what cannot be read is refused.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "server/dialect.h"
#include "server_test_support.h"

namespace server {
namespace {

using ::testing::ElementsAre;

std::string ErrorOf(const std::string& sql) {
    return testkit::Refusal([&] { TranslateStatement(sql); });
}

TEST(Dialect, TranslatesTheServersConstructs) {
    const std::string tricky = "'top 5 IsNull(x,1) dbo.t [b] getdate() -- ; @@IDENTITY N''q'''";
    const std::pair<std::string, std::string> cases[] = {
        // The server's names and functions.
        {"Select [BillingAddress],[ShippingAddress] from [POAbstractReceived] Where [PONumber]  in (1,2)",
         "Select \"BillingAddress\",\"ShippingAddress\" from \"POAbstractReceived\" Where \"PONumber\" in (1,2)"},
        {"select [Odd]]Name], \"x\"\"y\" from t", "select \"Odd]Name\", \"x\"\"y\" from t"},
        {"Select a From t Where b !< 3", "Select a From t Where b >= 3"},
        {"Select a From [dbo].Items With (NOLOCK) Where b = 1", "Select a From Items Where b = 1"},
        {"Select N'No. ' + Code + '/' + Name, Quantity + 5 From t",
         "Select 'No. ' || Code || '/' || Name, Quantity + 5 From t"},
        // Top becomes a limit at the end of its own select (the customer's address takes the
        // plain case on every new note).
        {"Select Distinct top 5 a From t", "Select Distinct a From t LIMIT 5"},
        {"Select TOP (2) a From t", "Select a From t LIMIT 2"},
        {"Select a From t Where b = (Select top 1 b From u Order By c) And d = 1",
         "Select a From t Where b = (Select b From u Order By c LIMIT 1) And d = 1"},
        {"Insert Into t (a) Select top 3 a From u", "Insert Into t (a) Select a From u LIMIT 3"},
        // The inside of a literal is never touched; a word glued to a number still reads as two tokens.
        {"Select a From t Where n = N" + tricky, "Select a From t Where n = " + tricky},
        {"Select colwidth from formatinfo where formatid>=10and formatid<=14",
         "Select colwidth from formatinfo where formatid>=10 and formatid<=14"},
        // Types converted the way the screen uses them. (Len, @@IDENTITY, getdate() and the casts
        // to int and decimal and the dated Convert are run on the database by the value tests.)
        {"Select Cast(q as varchar(4)) From t", "Select substr(CAST(q AS TEXT),1,4) From t"},
        {"Select Convert(datetime, d) From t", "Select datetime(d) From t"},
    };
    for (const auto& [sql, sqlite] : cases) EXPECT_EQ(TranslateStatement(sql), sqlite) << sql;
}

TEST(Dialect, SplitsABatchOnlyAtSemicolonsOutsideLiterals) {
    EXPECT_THAT(SplitBatch("Update a set b = ';' ; Select [x;y] From t; -- done"),
                ElementsAre("Update a set b = ';' ", "Select [x;y] From t"));
    EXPECT_EQ(TranslateStatement("Select top 1 a From t; Select top 2 b From u;"),
              "Select a From t LIMIT 1; Select b From u LIMIT 2");
}

TEST(Dialect, HandsTableFunctionCallsToTheResolverWithTheirLiteralArguments) {
    std::vector<TableFunctionCall> calls;
    auto resolve = [&](const TableFunctionCall& call) {
        calls.push_back(call);
        return "tf_" + std::to_string(calls.size());
    };
    EXPECT_EQ(TranslateStatement("Select Distinct BeatID From dbo.Fn_Get_Mapped(3,-1,N'O''Brien', NULL, 2.5) "
                                 "Where IsNull(BeatName,'') <> ''",
                                 resolve),
              "Select Distinct BeatID From \"tf_1\" AS \"Fn_Get_Mapped\" Where ifnull(BeatName,'') <> ''");
    ASSERT_EQ(calls.size(), 1u);
    EXPECT_EQ(calls[0].name, "Fn_Get_Mapped");
    EXPECT_THAT(calls[0].arguments, ElementsAre(platform::Value(3), platform::Value(-1), platform::Value("O'Brien"),
                                                platform::Value::Null(), platform::Value(2.5)));

    // An alias is kept; a call in a join or a subquery is found too.
    EXPECT_EQ(TranslateStatement("Select f.a From Items i Inner Join dbo.Fn_X() f On f.a = i.a "
                                 "Where i.b In (Select b From Fn_Y('1') As y)",
                                 resolve),
              "Select f.a From Items i Inner Join \"tf_2\" f On f.a = i.a Where i.b In (Select b From \"tf_3\" As y)");
}

TEST(Dialect, RefusesWhatItCannotRead) {
    EXPECT_EQ(ErrorOf("Select a From t Where n = N'abc"), "Unclosed quotation mark after the character string 'abc'.");
    EXPECT_EQ(ErrorOf("Select (a From t"), "Incorrect syntax near '('.");
    EXPECT_EQ(ErrorOf("Select a From t)"), "Incorrect syntax near ')'.");
    EXPECT_EQ(ErrorOf("Select a From t Where b = ?"), "Incorrect syntax near '?'.");
    // An empty list was a syntax error on the server; SQLite would take it as false.
    EXPECT_EQ(ErrorOf("Update [POAbstractReceived] set Status = Status | 128 where [PONumber] IN ()"),
              "Incorrect syntax near ')'.");
    EXPECT_EQ(ErrorOf("Select IsNull(a) From t"), "The IsNull function requires 2 argument(s).");
    EXPECT_EQ(ErrorOf("Select Cast(a as widget) From t"), "Type widget is not a defined system type.");
    EXPECT_EQ(ErrorOf("Select Convert(varchar(10), d, 999) From t"),
              "999 is not a valid style number when converting from datetime to a character string.");
    EXPECT_EQ(ErrorOf("Select @Customer"), "Must declare the scalar variable \"@Customer\".");
    EXPECT_EQ(ErrorOf("Select top a From t"), "Incorrect syntax near 'top'.");
    EXPECT_EQ(ErrorOf("Select top 10 percent a From t"), "Incorrect syntax near 'percent'.");
    EXPECT_EQ(ErrorOf("Select top 1 a From t Union Select b From u"), "Incorrect syntax near 'top'.");
    EXPECT_EQ(ErrorOf("Update top (1) t Set a = 1"), "Incorrect syntax near 'top'.");
    // A table function takes literals only, and needs somewhere to put its rows.
    EXPECT_EQ(ErrorOf("Select a From dbo.Fn_X(1,,'')"), "Incorrect syntax near ','.");
    EXPECT_EQ(ErrorOf("Select a From dbo.Fn_X(1)"), "Invalid object name 'Fn_X'.");
    EXPECT_EQ(ErrorOf("Select a From dbo.Fn_X(b)"), "Incorrect syntax near 'b'.");
}

}  // namespace
}  // namespace server
