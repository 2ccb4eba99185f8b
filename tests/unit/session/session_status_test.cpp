// Exit statuses and the way a session reports a wrong script or a failed check.
#include "session_fixture.h"

namespace session::testing {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

TEST_F(SessionTest, ScriptWhereEveryCheckHoldsExitsZero) {
    auto outcome = Run(kOpen + "type txtCustomer \"Acme\"\nexpect text txtCustomer \"Acme\"\nexpect rows 2\n");
    EXPECT_EQ(outcome.status, 0) << outcome.out << outcome.err;
    EXPECT_EQ(outcome.err, "");
}

TEST_F(SessionTest, UnknownVerbStopsAtItsLineWithStatusTwo) {
    auto outcome = Run(kOpen + "click cmdSave\nfrobnicate txtCustomer\nclick cmdSave\n");
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.err, "line 4: unknown verb frobnicate\n");
    EXPECT_THAT(outcome.out, HasSubstr("> frobnicate txtCustomer"));
    EXPECT_THAT(outcome.out, Not(HasSubstr("FAIL")));
    // The line before ran, the line after did not.
    EXPECT_EQ(std::count(Screen().events.begin(), Screen().events.end(), "cmdSave.Click"), 1);
}

TEST_F(SessionTest, WrongControlsAndArgumentsAreScriptErrors) {
    struct Case {
        std::string line, reason;
    };
    for (const auto& c : std::vector<Case>{
             {"click txtNowhere", "the screen has no control txtNowhere"},
             {"click cmdClose(2)", "the screen has no control cmdClose(2)"},
             {"key txtCustomer enter", "the key code must be a whole number, not \"enter\""},
             {"type txtCustomer", "type takes a control and the text in quotes"},
             {"tick cmdSave 1", "cmdSave is a CommandButton; tick needs a list view or a list box"},
             {"expect text cmdSave \"x\"", "cmdSave has no text"},
             {"expect colour txtCustomer red", ""},
             {"show field szNothing", "the screen has no field szNothing"},
             {"call NoSuchRoutine", "the screen has no routine NoSuchRoutine"},
             {"call Strict 1 2", "Strict: takes one argument"},
             {"answer AskMessage 9", ""},
             {"answer Nonsense 1", ""},
             {"setting NoSuchSetting 1", ""},
             {"open dispatch", "open takes dispatch MODE [SERVERDATE [ALERTDATE]]"},
             {"grid walk 1 2", ""},
         }) {
        auto outcome = Run(kOpen + c.line + "\nclick cmdSave\n");
        EXPECT_EQ(outcome.status, 2) << c.line;
        EXPECT_THAT(outcome.err, HasSubstr("line 3: " + c.reason)) << c.line;
        EXPECT_THAT(Screen().events, Not(::testing::Contains("cmdSave.Click"))) << c.line;
    }
}

TEST_F(SessionTest, ControlVerbBeforeAnyScreenIsAScriptError) {
    auto outcome = Run("database empty\nclick cmdSave\n");
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.err, "line 2: no screen is open: `open` one first\n");
}

TEST_F(SessionTest, FailedCheckIsReportedWithWhatWasFoundAndTheScriptGoesOn) {
    auto outcome = Run(kOpen +
                       "expect text txtCustomer \"X\"\n"
                       "type txtCustomer \"Y\"\n"
                       "expect text txtCustomer \"Z\"\n"
                       "expect text txtCustomer \"Y\"\n"
                       "expect rows 5\n");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.out, HasLine("FAIL line 3: expect text txtCustomer \"X\": was \"\""));
    EXPECT_THAT(outcome.out, HasLine("FAIL line 5: expect text txtCustomer \"Z\": was \"Y\""));
    EXPECT_THAT(outcome.out, Not(HasSubstr("FAIL line 6")));
    EXPECT_THAT(outcome.out, HasSubstr("FAIL line 7: expect rows 5: was 2"));
    EXPECT_EQ(outcome.err, "3 checks failed\n");
}

TEST_F(SessionTest, ActionNoUserCouldTakeFailsAndTheScriptGoesOn) {
    auto outcome = Run(kOpen +
                       "type txtInFrame \"x\"\n"
                       "type txtLocked \"x\"\n"
                       "tick lstSO 3\n"
                       "pick 1\n"
                       "grid goto 9 1\n"
                       "click cmdSave\n");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.out, HasLine("FAIL line 3: type txtInFrame \"x\": txtInFrame lies in Frame3, which is disabled"));
    EXPECT_THAT(outcome.out, HasLine("FAIL line 4: type txtLocked \"x\": txtLocked is locked"));
    EXPECT_THAT(outcome.out, HasLine("FAIL line 5: tick lstSO 3: lstSO has rows 1 to 2"));
    EXPECT_THAT(outcome.out, HasLine("FAIL line 6: pick 1: no type-ahead list is open"));
    EXPECT_THAT(outcome.out, HasLine("FAIL line 7: grid goto 9 1: the grid has rows 1 to 2"));
    EXPECT_THAT(Screen().events, ::testing::Contains("cmdSave.Click"));
    EXPECT_EQ(Screen().txtLocked.Text(), "");
}

TEST_F(SessionTest, ControlDisabledWhileItHasFocusTakesNoInput) {
    openings.arrange = [](FakeScreen& screen) {
        screen.txtCustomer.Change.Connect([&screen] { screen.txtCustomer.Enabled = false; });
    };
    auto outcome = Run(kOpen + "type txtCustomer \"a\"\ntype txtCustomer \"b\"\n");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.out, HasLine("FAIL line 4: type txtCustomer \"b\": txtCustomer is disabled"));
    EXPECT_EQ(Screen().txtCustomer.Text(), "a");
}

TEST_F(SessionTest, RunTimeErrorThatEscapesTheScreenIsAFailure) {
    auto outcome = Run(kOpen + "call Broken\nexpect rows 2\n");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.out, HasSubstr("FAIL line 3: call Broken: run-time error 91 not handled by the screen: Object"));
}

TEST_F(SessionTest, WrongArgumentsErrorInsideARoutineIsItsOwnNotARefusal) {
    auto outcome = Run(kOpen + "call Strict late\n");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.out, HasSubstr("FAIL line 3: call Strict late: run-time error 450 not handled by the screen"));
}

TEST_F(SessionTest, ClosedScreenTakesNoMoreEvents) {
    auto outcome = Run(kOpen + "close\nclick cmdSave\n");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.out, HasLine("= screen closed"));
    EXPECT_THAT(outcome.out, HasLine("FAIL line 4: click cmdSave: the screen has been closed"));
}

TEST_F(SessionTest, RefusedCloseLeavesTheScreenOpen) {
    auto outcome = Run(kOpen + "type txtCustomer stay\nclose\nclick cmdSave\n");
    EXPECT_EQ(outcome.status, 0) << outcome.out;
    EXPECT_THAT(outcome.out, HasLine("= close cancelled: the screen stays open"));
    EXPECT_THAT(Screen().events, ::testing::Contains("cmdSave.Click"));
}

TEST_F(SessionTest, OneScreenAtATime) {
    auto outcome = Run(kOpen + "open dispatch 1\nclose\nopen dispatch 3\n");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.out, HasSubstr("FAIL line 3: open dispatch 1: a screen is open already"));
    EXPECT_EQ(openings.screens.size(), 2u);
    EXPECT_EQ(openings.mode, 3);
}

}  // namespace
}  // namespace session::testing
