#include <gtest/gtest.h>

#include <stdexcept>

#include "host_fixture.h"
#include "platform/convert.h"

namespace host_test {
namespace {

using host_services::msgbox::YesNoCancelQuestionSecond;
using host_services::msgbox::YesNoQuestionSecond;

class DialogsTest : public HostTest {
protected:
    host_services::HostMessages& messages() { return services().messages; }
    host_services::HostTools& tools() { return services().tools; }
};

TEST_F(DialogsTest, MessageBoxesTakeQueuedAnswersInOrderThenTheirDefaults) {
    answers.Queue("AskMessage", {"7"});
    answers.Queue("AskMessage", {"2"});
    EXPECT_EQ(messages().AskMessage("Print?", YesNoQuestionSecond), 7);
    EXPECT_EQ(messages().AskMessage("Print now?", YesNoCancelQuestionSecond), 2);
    EXPECT_EQ(messages().AskMessage("Again?", YesNoQuestionSecond), 6);
    EXPECT_EQ(messages().AskMessage("Again?", YesNoCancelQuestionSecond), 6);
    EXPECT_EQ(messages().AskMessage("Invalid Password", 64), 1);
    EXPECT_EQ(messages().AskMessage("Continue?", 1), 1);
    EXPECT_EQ(Lines(), (std::vector<std::string>{
                           "message 292 \"Print?\" -> 7",
                           "message 291 \"Print now?\" -> 2",
                           "message 292 \"Again?\" -> 6 (default)",
                           "message 291 \"Again?\" -> 6 (default)",
                           "message 64 \"Invalid Password\" -> 1 (default)",
                           "message 1 \"Continue?\" -> 1 (default)"}));
    EXPECT_EQ(transcript.TakeMessages().size(), 6u);
}

TEST_F(DialogsTest, EachKindOfDialogHasItsOwnQueue) {
    answers.Queue("InputPassword", {"s3cret"});
    EXPECT_EQ(messages().AskMessage("Sure?", YesNoQuestionSecond), 6) << "a password is no answer to a question";
    std::string typed;
    EXPECT_TRUE(tools().InputPassword("Password?", "Credit Limit Exceeded", typed));
    EXPECT_EQ(typed, "s3cret");
    EXPECT_EQ(Lines().back(), "InputPassword \"Password?\" \"Credit Limit Exceeded\" -> \"s3cret\"");
}

TEST_F(DialogsTest, ACancelledPasswordBoxGivesATab) {
    answers.Queue("InputBoxE", {"cancel"});
    std::string typed;
    EXPECT_FALSE(services().mainForm.InputBoxE("Password?", "Credit Limit Exceeded", typed));
    EXPECT_EQ(typed, "\t");
    EXPECT_FALSE(tools().InputPassword("Password?", "Credit Limit Exceeded", typed));
    EXPECT_EQ(typed, "\t");
    EXPECT_EQ(Lines().back(), "InputPassword \"Password?\" \"Credit Limit Exceeded\" -> cancel (default)");
}

TEST_F(DialogsTest, ClosingAskedWhetherToStay) {
    answers.Queue("ConfirmSaveOnExit", {"false"});
    EXPECT_FALSE(messages().ConfirmSaveOnExit(true));
    EXPECT_TRUE(messages().ConfirmSaveOnExit(true));
    EXPECT_NE(Lines().back().find("-> true (default)"), std::string::npos);
}

TEST_F(DialogsTest, ChoicesDefaultToNone) {
    std::string code = "unchanged";
    EXPECT_FALSE(tools().SelectFreeItem(4, "Buy ten", 2, code));
    EXPECT_EQ(code, "unchanged");
    EXPECT_EQ(Lines().back(), "SelectFreeItem 4 \"Buy ten\" 2 -> none (default)");
    answers.Queue("SelectFreeItem", {"none"});
    answers.Queue("SelectFreeItem", {"SOAP9"});
    EXPECT_FALSE(tools().SelectFreeItem(4, "Buy ten", 2, code));
    EXPECT_TRUE(tools().SelectFreeItem(4, "Buy ten", 2, code));
    EXPECT_EQ(code, "SOAP9");

    EXPECT_EQ(tools().SelectDocument(3), "");
    answers.Queue("SelectDocument", {"SC12"});
    EXPECT_EQ(tools().SelectDocument(3), "SC12");
    EXPECT_EQ(Lines().back(), "SelectDocument 3 -> \"SC12\"");
}

TEST_F(DialogsTest, ASchemeIsPickedFromTheRowsOffered) {
    using platform::ResultSet;
    using platform::Value;
    ResultSet schemes{{"SchemeID", "SchemeName", "SchemeType", "HasPrompt", "Prompt"},
                      {{Value(4), Value("Buy ten"), Value(17), Value(1), Value("One free for ten")},
                       {Value(9), Value("Big box"), Value(18), Value(0), Value("unused")}}};
    auto offered = std::make_shared<platform::Recordset>(std::vector<ResultSet>{schemes});
    long id = 0, type = 0;
    std::string prompt = "x";

    answers.Queue("SelectScheme", {"9"});
    answers.Queue("SelectScheme", {"4"});
    answers.Queue("SelectScheme", {"5"});
    EXPECT_TRUE(tools().SelectScheme(offered, id, type, prompt, "SOAP1"));
    EXPECT_EQ(id, 9);
    EXPECT_EQ(type, 18);
    EXPECT_EQ(prompt, "");
    EXPECT_TRUE(tools().SelectScheme(offered, id, type, prompt, "SOAP1"));
    EXPECT_EQ(type, 17);
    EXPECT_EQ(prompt, "One free for ten");
    EXPECT_FALSE(tools().SelectScheme(offered, id, type, prompt, "SOAP1")) << "5 was not offered";
    EXPECT_EQ(Lines().back(), "SelectScheme \"SOAP1\" [4,9] -> 5 (not offered: none)");
    EXPECT_FALSE(tools().SelectScheme(offered, id, type, prompt, "SOAP1"));
    EXPECT_EQ(Lines().back(), "SelectScheme \"SOAP1\" [4,9] -> none (default)");
    EXPECT_FALSE(offered->Eof()) << "the caller's recordset is not walked";
}

TEST_F(DialogsTest, TheMemoDialogChangesTheMemosOnlyWhenAcceptedAndEditable) {
    std::string m1 = "a", m2 = "b", m3 = "c";
    EXPECT_FALSE(tools().ShowMemoDialog(m1, m2, m3, false, 2));
    answers.Queue("ShowMemoDialog", {"x", "y", "z", "cancel"});
    EXPECT_FALSE(tools().ShowMemoDialog(m1, m2, m3, false, 2));
    answers.Queue("ShowMemoDialog", {"x", "y", "z", "ok"});
    EXPECT_TRUE(tools().ShowMemoDialog(m1, m2, m3, true, 2));
    EXPECT_EQ(m1 + m2 + m3, "abc") << "a note on view keeps its memos";
    answers.Queue("ShowMemoDialog", {"x", "y", "z", "ok"});
    EXPECT_TRUE(tools().ShowMemoDialog(m1, m2, m3, false, 2));
    EXPECT_EQ(m1 + m2 + m3, "xyz");
    EXPECT_EQ(Lines().back(), "ShowMemoDialog \"a\" \"b\" \"c\" -> ok");
}

TEST_F(DialogsTest, AnswersNoDialogCouldGiveAreRefused) {
    const std::vector<std::pair<std::string, std::vector<std::string>>> wrong = {
        {"AskMessage", {"9"}},          {"AskMessage", {"yes"}},
        {"AskMessage", {"6", "7"}},     {"ConfirmSaveOnExit", {"maybe"}},
        {"SelectScheme", {"four"}},     {"ShowMemoDialog", {"a", "b", "ok"}},
        {"ShowMemoDialog", {"a", "b", "c", "done"}}, {"InputPassword", {}},
        {"NoSuchDialog", {"1"}}};
    for (const auto& [dialog, values] : wrong) {
        EXPECT_FALSE(host::DialogAnswers::Problem(dialog, values).empty()) << dialog;
        EXPECT_THROW(answers.Queue(dialog, values), std::invalid_argument) << dialog;
        EXPECT_FALSE(answers.Pending(dialog)) << dialog;
    }
}

TEST_F(DialogsTest, TheDayCloseFollowsTheSettingAndTheOpeningDate) {
    EXPECT_TRUE(tools().CheckCloseDay(platform::DateSerial(2026, 11, 22), 0));
    EXPECT_FALSE(tools().CheckCloseDay(platform::DateSerial(2020, 3, 31), 0));
    settings.Set("CloseDayOpen", "false");
    EXPECT_FALSE(tools().CheckCloseDay(platform::DateSerial(2026, 11, 22), -1));
    ASSERT_NE(transcript.LastStatus(), nullptr);
    EXPECT_EQ(transcript.LastStatus()->flag, 1);
}

TEST_F(DialogsTest, InformationDialogsSayWhatTheyWereGiven) {
    tools().ShowItemSchemes("SOAP1", platform::DateTime(2026, 11, 22, 9, 0, 0), "C1", {12, 340.5}, 0);
    EXPECT_EQ(Lines().back(), "ShowItemSchemes \"SOAP1\" 2026-11-22 \"C1\" [12,340.5] 0 -> ok");

    platform::ResultSet unknown{{"Product_Code"}, {{platform::Value("X1")}, {platform::Value("X2")}}};
    auto records = std::make_shared<platform::Recordset>(std::vector<platform::ResultSet>{unknown});
    tools().SetNotFoundRecords(records);
    tools().ShowNotFoundDialog("Not in the item master");
    EXPECT_EQ(Lines().back(), "ShowNotFoundDialog \"Not in the item master\" [X1,X2] -> ok");
    EXPECT_FALSE(records->Eof());
}

}  // namespace
}  // namespace host_test
