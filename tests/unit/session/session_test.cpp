// The events a verb raises on the screen and their order, exit statuses, what show
// prints, and how a session reports a wrong script or a failed check.
#include <fmt/format.h>
#include <tuple>

#include "fake_screen.h"
#include "platform/convert.h"
#include "session/today.h"

namespace session::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

TEST_F(SessionTest, OpenDatesDefaultToTodayAndAFormWithoutAScreenOpensNone) {
    Run("database empty\nopen dispatch 2\n");
    EXPECT_EQ(std::tuple(openings.serverDate, openings.alertDate), std::tuple(Today(), Today()));
    auto outcome = Run("database empty\nopen cform 2026-11-22\nclick cmdSave\n");
    EXPECT_THAT(outcome.out, HasLine("= no screen opened"));
    EXPECT_THAT(outcome.out, HasSubstr("FAIL line 3: click cmdSave: the screen did not open"));
}

TEST_F(SessionTest, APasswordTheScriptGivesIsNotWrittenBack) {
    auto outcome =
        Run("database empty\nsetting administratorpassword \"s3cret\"\nanswer InputBoxE \"s3cret\"\n"
            "answer InputPassword cancel\n");
    EXPECT_THAT(outcome.out, Not(HasSubstr("s3cret")));
    EXPECT_THAT(outcome.out, HasLine("> setting administratorpassword (given)"));
    EXPECT_THAT(outcome.out, HasLine("> answer InputPassword cancel"));
}

TEST_F(SessionTest, ScriptErrorsStopAtTheirLineWithStatusTwo) {
    using Case = std::tuple<std::string, std::string>;
    for (const auto& [script, error] : std::vector<Case>{
             {kOpen + "key txtCustomer enter", "line 3: the key code must be a whole number, not \"enter\""},
             {kOpen + "type txtCustomer", "line 3: type takes a control and the text in quotes"},
             {kOpen + "tick cmdSave 1", "line 3: cmdSave is a CommandButton; tick needs a list view or a list box"},
             {kOpen + "expect text cmdSave \"x\"", "line 3: cmdSave has no text"},
             {kOpen + "expect colour txtCustomer red", "line 3: "},
             {kOpen + "show field szNothing", "line 3: the screen has no field szNothing"},
             {kOpen + "call NoSuchRoutine", "line 3: the screen has no routine NoSuchRoutine"},
             {kOpen + "answer AskMessage 9", "line 3: "},
             {kOpen + "setting NoSuchSetting 1", "line 3: "},
             {kOpen + "open dispatch", "line 3: open takes dispatch MODE [SERVERDATE [ALERTDATE]]"},
             {kOpen + "grid walk 1 2", "line 3: "},
             {"database empty\nclick cmdSave", "line 2: no screen is open: `open` one first\n"},
             {"sql \"SELECT 1\"\ndatabase empty", "line 2: the database is in use already"},
             {"database empty\ndatabase demo", "line 2: the session has chosen its database already"},
             {"database /nonexistent/dispatch.db", "line 1: no database file /nonexistent/dispatch.db"},
             {"database empty\nsql \"SELEC 1\"", "line 2: the statement failed: "},
         }) {
        SCOPED_TRACE(script);
        auto outcome = Run(script + "\nshow rows\n");
        EXPECT_EQ(outcome.status, 2);
        EXPECT_THAT(outcome.err, ::testing::StartsWith(error));
        EXPECT_THAT(outcome.out, Not(HasSubstr("FAIL")));
        EXPECT_THAT(outcome.out, Not(HasSubstr("> show rows")));
    }
}

// One long script: every failing line is reported with what was found, the lines
// after it still run, and the lines expected to hold raise no failure.
TEST_F(SessionTest, FailedChecksAndRefusedActionsAreReportedAndTheScriptGoesOn) {
    struct Step {
        std::string line, failure;
    };
    const std::vector<Step> steps{
        {"type txtCustomer \"Y\"", ""},
        {"type txtInFrame \"x\"", "txtInFrame lies in Frame3, which is disabled"},
        {"type txtLocked \"x\"", "txtLocked is locked"},
        {"tick lstSO 3", "lstSO has rows 1 to 2"},
        {"pick 1", "no type-ahead list is open"},
        {"grid goto 9 1", "the grid has rows 1 to 2"},
        {"expect cell 3 1 \"\"", "the grid has rows 0 to 2"},
        {"expect cell 1 9 \"\"", "the grid has columns 0 to 8"},
        {"expect result \"\"", "no routine call has run to its end"},
        {"call Broken", "run-time error 91 not handled by the screen: Object"},
        {"call Strict late", "run-time error 450 not handled by the screen"},
        {"call Report", ""},
        {"expect status \"Select an existing Customer.\"", ""},
        {"call Ask", ""},
        {"expect message \"Save now?\"", ""},
        // Each message is matched once: the second check finds none since the first.
        {"expect message \"Save now?\"", "no message was shown"},
        {"expect numbered 55", "no numbered message was shown"},
        {"expect focus cmdSave", "focus was on txtLocked"},
        {"type txtCustomer stay", ""},
        {"close", ""},
        {"click cmdSave", ""},
        {"type txtCustomer \"\"", ""},
        {"close", ""},
        {"click cmdSave", "the screen has been closed"},
        {"open dispatch 3", ""},
        {"open dispatch 1", "a screen is open already"},
        // A control disabled while it has focus takes no more input.
        {"type txtCustomer off", ""},
        {"type txtCustomer \"b\"", "txtCustomer is disabled"},
    };
    std::string script = kOpen;
    for (const auto& step : steps) script += step.line + "\n";
    auto outcome = Run(script);
    EXPECT_EQ(outcome.status, 1);
    std::size_t failures = 0;
    for (std::size_t i = 0; i < steps.size(); ++i) {
        if (steps[i].failure.empty()) continue;
        ++failures;
        EXPECT_THAT(outcome.out,
                    HasSubstr(fmt::format("\nFAIL line {}: {}: {}", i + 3, steps[i].line, steps[i].failure)));
    }
    EXPECT_EQ(outcome.err, fmt::format("{} checks failed\n", failures));
    EXPECT_THAT(outcome.out, HasLine("error 5 Dispatch: Report - Invalid procedure call or argument"));
    EXPECT_THAT(outcome.out, HasLine("status 1 Select an existing Customer."));
    EXPECT_THAT(outcome.out, HasLine("= close cancelled: the screen stays open"));
    EXPECT_THAT(outcome.out, HasLine("= screen closed"));
    EXPECT_EQ(std::tuple(openings.screens.size(), openings.screens[0]->txtLocked.Text(),
                         openings.screens[1]->txtCustomer.Text()),
              std::tuple(2u, "", "off"));
    const auto& events = openings.screens[0]->events;
    EXPECT_EQ(std::count(events.begin(), events.end(), "cmdSave.Click"), 1);
}

}  // namespace
}  // namespace session::testing
