// The events a verb raises on the screen, and their order.
#include "fake_screen.h"
#include "platform/convert.h"
#include "session/today.h"

namespace session::testing {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

TEST_F(SessionTest, OpenHandsTheModeAndDatesToTheEntryPoint) {
    Run("database empty\nopen dispatch 6 2026-11-22 2026-11-01\n");
    EXPECT_EQ(openings.mode, 6);
    EXPECT_EQ(openings.serverDate, platform::DateSerial(2026, 11, 22));
    EXPECT_EQ(openings.alertDate, platform::DateSerial(2026, 11, 1));
    Run("database empty\nopen dispatch 2\n");
    EXPECT_EQ(openings.serverDate, Today());
    EXPECT_EQ(openings.alertDate, Today());
    auto outcome = Run("database empty\nopen cform 2026-11-22\nclick cmdSave\n");
    EXPECT_THAT(outcome.out, HasLine("= no screen opened"));
    EXPECT_THAT(outcome.out, HasSubstr("FAIL line 3: click cmdSave: the screen did not open"));
}

TEST_F(SessionTest, TranscriptEchoesEachCommandAndShowsFocusMoves) {
    auto outcome = Run(kOpen + "focus cmdSave\nfocus cmdSave\n");
    EXPECT_EQ(outcome.out,
              "> database empty\n> open dispatch 2 2026-11-22\nfocus txtCustomer\n"
              "> focus cmdSave\nfocus cmdSave\n> focus cmdSave\n");
    EXPECT_THAT(Screen().events, ElementsAre("txtCustomer.GotFocus", "txtCustomer.LostFocus", "cmdSave.GotFocus"));
}

TEST_F(SessionTest, KeyGoesThroughThePreviewThenDownPressUpAndTypeAlwaysRaisesChange) {
    Run(kOpen +
        "key txtCustomer 65 1\nkey txtCustomer 114\ntype txtCustomer \"Acme\"\ntype txtCustomer \"Acme\"\n"
        "click lblTitle\ndblclick lstUOM\n");
    EXPECT_THAT(Screen().events,
                ElementsAre("txtCustomer.GotFocus", "Form_KeyDown 65 1", "txtCustomer.KeyDown 65 1",
                            "txtCustomer.KeyPress 65", "txtCustomer.KeyUp 65 1",
                            // F3 gives no character
                            "Form_KeyDown 114 0", "txtCustomer.KeyDown 114 0", "txtCustomer.KeyUp 114 0",
                            "txtCustomer.Change Acme", "txtCustomer.Change Acme",
                            // a label takes its click without focus
                            "lblTitle.Click", "txtCustomer.LostFocus", "lstUOM.DblClick"));
}

TEST_F(SessionTest, SwallowedKeyStopsTheRest) {
    openings.arrange = [](FakeScreen& screen) {
        screen.swallowInPreview = 27;
        screen.swallowInKeyDown = 13;
    };
    Run(kOpen + "key txtCustomer 27\nkey txtCustomer 13\n");
    EXPECT_THAT(Screen().events, ElementsAre("txtCustomer.GotFocus", "Form_KeyDown 27 0", "Form_KeyDown 13 0",
                                             "txtCustomer.KeyDown 13 0"));
}

TEST_F(SessionTest, ListDateGridAndRoutineVerbsRaiseTheirEvents) {
    auto outcome =
        Run(kOpen +
            "tick lstSO 2\ntick lstSO 2\nexpect checked lstSO \"2\"\nuntick lstSO 2\nexpect checked lstSO \"\"\n"
            "select lstUOM 2\nselect lstUOM 2\nselect cboType 1\nselect lstSO 1\n"
            "expect text cboType \"Note\"\nexpect text lstUOM \"Box\"\n"
            "date dtFromDate 2026-11-01\nexpect text dtFromDate \"2026-11-01\"\n"
            "cell 2 2 \"Rice\"\nexpect cell 2 2 \"Rice\"\ngrid key 65\n"
            "call Add 1 2.5\nexpect result \"3.5\"\ncall SplitFirst \"a,b,c\"\n"
            "answer AskMessage 7\nanswer AskMessage 2\ncall Ask\nexpect result \"7\"\ncall Ask\n"
            "expect result \"2\"\n");
    EXPECT_EQ(outcome.status, 0) << outcome.out;
    const auto& events = Screen().events;
    auto count = [&](const char* event) { return std::count(events.begin(), events.end(), event); };
    // A tick raises ItemCheck only when it changes the box.
    EXPECT_EQ(count("lstSO.ItemCheck 2 true"), 1);
    EXPECT_EQ(count("lstSO.ItemCheck 2 false"), 1);
    // List rows count from one, combo entries from zero.
    EXPECT_EQ(count("lstUOM.Click 1"), 2);
    EXPECT_THAT(events, Contains("cboType.Click Note"));
    EXPECT_THAT(events, Contains("lstSO.ItemClick 1"));
    EXPECT_EQ(Screen().lstSO.SelectedIndex(), 1);
    EXPECT_THAT(events, Contains("dtFromDate.Change 2026-11-01"));
    // A cell is goto, type and Enter; grid keys go through the preview first.
    EXPECT_THAT(events, Contains("grid.RowColChange 2 2"));
    EXPECT_THAT(events, Contains("grid.AfterColUpdate 2 2"));
    EXPECT_THAT(events, Contains("Form_KeyDown 13 0"));
    auto preview = std::find(events.begin(), events.end(), "Form_KeyDown 65 0");
    auto gridKey = std::find(events.begin(), events.end(), "grid.KeyCode 65 0");
    EXPECT_LT(preview, gridKey);
    EXPECT_NE(gridKey, events.end());
    EXPECT_EQ(Screen().ActiveControl(), &Screen().grid);
    for (const char* line : {"result 3.5", "out szFirst a", "out szRest b,c"}) EXPECT_THAT(outcome.out, HasLine(line));
    EXPECT_THAT(outcome.out, HasSubstr("\"Save now?\" -> 7"));
}

TEST_F(SessionTest, TraceShowsTheStatementsTheScreenSends) {
    auto outcome = Run(kOpen + "call Query \"SELECT 40 + 2\"\nexpect result \"42\"\n", true);
    EXPECT_EQ(outcome.status, 0) << outcome.out;
    EXPECT_THAT(outcome.out, HasLine("sql SELECT 40 + 2"));
    EXPECT_THAT(Run(kOpen + "call Query \"SELECT 40 + 2\"\n").out, ::testing::Not(HasSubstr("sql SELECT")));
}

}  // namespace
}  // namespace session::testing
