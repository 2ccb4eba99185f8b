// What show prints and what expect compares.
#include "session_fixture.h"

namespace session::testing {
namespace {

using ::testing::HasSubstr;

TEST_F(SessionTest, ShowGridPrintsTheHeadingAndEachRowWithTheChosenColumns) {
    auto outcome = Run(kOpen + "show grid\nshow grid 1 7\nshow rows\n");
    EXPECT_THAT(outcome.out, HasSubstr("= row 0: Code|Name||||\n= row 1: A100|Soap||||\n= row 2: B200|||||\n"));
    EXPECT_THAT(outcome.out, HasSubstr("= row 0: Code|\n= row 1: A100|\n= row 2: B200|hidden\n"));
    EXPECT_THAT(outcome.out, HasLine("= rows 2"));
}

TEST_F(SessionTest, CellChecksCountTheHeadingAsRowZero) {
    auto outcome = Run(kOpen + "expect cell 0 1 \"Code\"\nexpect cell 2 7 \"hidden\"\nexpect cell 3 1 \"\"\nexpect cell 1 9 \"\"\n");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.out, HasLine("FAIL line 5: expect cell 3 1 \"\": the grid has rows 0 to 2"));
    EXPECT_THAT(outcome.out, HasLine("FAIL line 6: expect cell 1 9 \"\": the grid has columns 0 to 8"));
    EXPECT_THAT(outcome.out, ::testing::Not(HasSubstr("FAIL line 3")));
}

TEST_F(SessionTest, ShowControlPrintsItsStateAndEntries) {
    auto outcome = Run(kOpen + "tick lstSO 1\nshow lstSO\nshow cmdSave\nshow field szDocNumbers\nshow focus\nshow status\n");
    EXPECT_THAT(outcome.out, HasLine("= lstSO ListView tag \"\" visible true enabled true"));
    EXPECT_THAT(outcome.out, HasLine("=   1 [x] \"Acme Traders\" | \"SC1\""));
    EXPECT_THAT(outcome.out, HasLine("=   2 [ ] \"\" | \"SC2\""));
    EXPECT_THAT(outcome.out, HasLine("= cmdSave CommandButton caption \"&Save\" tag \"\" visible true enabled true"));
    EXPECT_THAT(outcome.out, HasLine("= field szDocNumbers \"SC1,SC2\""));
    EXPECT_THAT(outcome.out, HasLine("= focus lstSO"));
    EXPECT_THAT(outcome.out, HasLine("= status none"));
}

TEST_F(SessionTest, ControlChecks) {
    auto outcome = Run(kOpen +
                       "expect items lstSO \"Acme Traders|SC2\"\n"
                       "expect items cboType \"Invoice|Note\"\n"
                       "expect caption cmdSave \"&Save\"\n"
                       "expect tag txtCustomer \"\"\n"
                       "expect visible cmdSave true\n"
                       "expect enabled Frame3 false\n"
                       "expect focus txtCustomer\n"
                       "expect field szDocNumbers \"SC1,SC2\"\n"
                       "expect list \"\"\n"
                       "expect enabled Frame3 true\n"
                       "expect focus cmdSave\n");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.out, HasLine("FAIL line 12: expect enabled Frame3 true: was false"));
    EXPECT_THAT(outcome.out, HasLine("FAIL line 13: expect focus cmdSave: focus was on txtCustomer"));
    EXPECT_EQ(CountOf(outcome.out, "FAIL line"), 2u);
}

TEST_F(SessionTest, StatusErrorsAndMessagesFromTheHost) {
    auto outcome = Run(kOpen +
                       "call Report\n"
                       "expect status \"Select an existing Customer.\"\n"
                       "expect errors 1\n"
                       "call Ask\n"
                       "expect message \"Save now?\"\n"
                       "expect message \"Save now?\"\n"
                       "expect numbered 55\n");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.out, HasLine("error 5 Dispatch: Report - Invalid procedure call or argument"));
    EXPECT_THAT(outcome.out, HasLine("status 1 Select an existing Customer."));
    // Each message is matched once: the second check finds none since the first.
    EXPECT_THAT(outcome.out, HasLine("FAIL line 8: expect message \"Save now?\": no message was shown"));
    EXPECT_THAT(outcome.out, HasLine("FAIL line 9: expect numbered 55: no numbered message was shown"));
    EXPECT_THAT(outcome.out, ::testing::Not(HasSubstr("FAIL line 4")));
    EXPECT_THAT(outcome.out, ::testing::Not(HasSubstr("FAIL line 5")));
}

TEST_F(SessionTest, ResultBeforeAnyCallFails) {
    auto outcome = Run(kOpen + "expect result \"\"\n");
    EXPECT_THAT(outcome.out, HasLine("FAIL line 3: expect result \"\": no routine call has run to its end"));
}

TEST_F(SessionTest, ASqlCheckComparesEveryRow) {
    auto outcome = Run("database empty\n"
                       "sql \"CREATE TABLE t(a, b)\"\n"
                       "sql \"INSERT INTO t VALUES (1, 'x'), (2, 'y')\"\n"
                       "expect sql \"SELECT b FROM t\" \"x\"\n");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.out, HasLine("FAIL line 4: expect sql \"SELECT b FROM t\" \"x\": was \"x;y\""));
}

TEST_F(SessionTest, DatabaseProblemsAreScriptErrors) {
    auto late = Run("sql \"SELECT 1\"\ndatabase empty\n");
    EXPECT_EQ(late.status, 2);
    EXPECT_THAT(late.err, HasSubstr("line 2: the database is in use already"));

    auto twice = Run("database empty\ndatabase demo\n");
    EXPECT_EQ(twice.status, 2);
    EXPECT_THAT(twice.err, HasSubstr("line 2: the session has chosen its database already"));

    auto missing = Run("database /nonexistent/dispatch.db\n");
    EXPECT_EQ(missing.status, 2);
    EXPECT_THAT(missing.err, HasSubstr("line 1: no database file /nonexistent/dispatch.db"));

    auto badSql = Run("database empty\nsql \"SELEC 1\"\n");
    EXPECT_EQ(badSql.status, 2);
    EXPECT_THAT(badSql.err, HasSubstr("line 2: the statement failed: "));
}

TEST_F(SessionTest, SettingsReachTheHostAndBadValuesAreRefused) {
    auto outcome = Run(kOpen + "call OCGEnabled\nexpect result \"False\"\nsetting GetOCGEnabled true\n"
                       "call OCGEnabled\nexpect result \"True\"\nsetting GetOCGEnabled maybe\n");
    EXPECT_EQ(outcome.status, 2) << outcome.out;
    EXPECT_THAT(outcome.out, ::testing::Not(HasSubstr("FAIL")));
    EXPECT_THAT(outcome.err, HasSubstr("line 8: "));
}

}  // namespace
}  // namespace session::testing
