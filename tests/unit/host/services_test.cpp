// The plain host's dialogs, messages, labels, settings and printing errors.
#include <fstream>
#include <stdexcept>

#include "host_fixture.h"
#include "platform/convert.h"
#include "platform/runtime_error.h"

namespace host_test {
namespace {

using host_services::msgbox::YesNoCancelQuestionSecond;
using host_services::msgbox::YesNoQuestionSecond;

class DialogsTest : public HostTest {
protected:
    host_services::HostMessages& messages() { return services().messages; }
    host_services::HostTools& tools() { return services().tools; }
};

TEST_F(DialogsTest, EachKindOfDialogHasItsOwnQueueAndItsDefault) {
    answers.Queue("InputPassword", {"s3cret"});
    EXPECT_EQ(messages().AskMessage("Sure?", YesNoQuestionSecond), 6) << "a password is no answer to a question";
    std::string typed;
    EXPECT_TRUE(tools().InputPassword("Password?", "Credit Limit Exceeded", typed));
    EXPECT_EQ(typed, "s3cret");

    // A cancelled password box gives a tab; with no answer queued it is cancelled.
    answers.Queue("InputBoxE", {"cancel"});
    EXPECT_FALSE(services().mainForm.InputBoxE("Password?", "Credit Limit Exceeded", typed));
    EXPECT_EQ(typed, "\t");
    EXPECT_FALSE(tools().InputPassword("Password?", "Credit Limit Exceeded", typed));
    EXPECT_EQ(typed, "\t");
    EXPECT_TRUE(messages().ConfirmSaveOnExit(true));
    EXPECT_NE(Lines().back().find("-> true (default)"), std::string::npos);
}

TEST_F(DialogsTest, AnswersNoDialogCouldGiveAreRefused) {
    const std::vector<std::pair<std::string, std::vector<std::string>>> wrong = {
        {"AskMessage", {"9"}},
        {"AskMessage", {"yes"}},
        {"AskMessage", {"6", "7"}},
        {"ConfirmSaveOnExit", {"maybe"}},
        {"SelectScheme", {"four"}},
        {"ShowMemoDialog", {"a", "b", "ok"}},
        {"ShowMemoDialog", {"a", "b", "c", "done"}},
        {"InputPassword", {}},
        {"NoSuchDialog", {"1"}}};
    for (const auto& [dialog, values] : wrong) {
        EXPECT_FALSE(host::DialogAnswers::Problem(dialog, values).empty()) << dialog;
        EXPECT_THROW(answers.Queue(dialog, values), std::invalid_argument) << dialog;
        EXPECT_FALSE(answers.Pending(dialog)) << dialog;
    }
}

TEST_F(DialogsTest, LabelsComeFromTheTableWithTheBaseTextAsFallback) {
    Sql(R"(INSERT INTO Labels (BaseText, LabelKind, Caption) VALUES
             ('Serial No: ', 'Label', 'Numero: '), ('Customer', 'Column', 'Client'),
             ('ALL CUSTOMERS', 'Label', 'TOUS LES CLIENTS'), ('Untranslated', 'Label', ''))");
    EXPECT_EQ(messages().GetLabel("Serial No: "), "Numero: ");
    EXPECT_EQ(messages().GetLabel("serial no: ", "label"), "Numero: ") << "keys match without regard to case";
    EXPECT_EQ(messages().GetLabel("Customer"), "Customer") << "a caption of another kind does not serve";
    EXPECT_EQ(std::tuple(messages().GetLabel("Customer", "Column"), messages().GetLabel("Untranslated"),
                         messages().GetLabel("Select Beat"), messages().GetAllCustomersText(),
                         messages().GetBaseLabel("Numero: "), messages().GetBaseLabel("Qty")),
              std::tuple("Client", "Untranslated", "Select Beat", "TOUS LES CLIENTS", "Serial No: ", "Qty"));
    int reads = 0;
    for (const auto& statement : Statements()) reads += statement.find("From Labels") != std::string::npos;
    EXPECT_EQ(reads, 1) << "the table is read once";
}

TEST_F(DialogsTest, NumberedMessagesTakeTheirTextFromTheTable) {
    Sql("INSERT INTO ErrorMessages (ErrorID, Message) VALUES (500, 'Item {0} of {1}')");
    global().ShowNumberedMessage(55, 1, {});
    global().ShowNumberedMessage(999, 1, {});
    global().ShowNumberedMessage(500, 1, {"A1", "B2"});
    EXPECT_EQ(Lines(), (std::vector<std::string>{"numbered 55", "message 64 \"Select a valid Salesman.\" -> 1",
                                                 "numbered 999", "message 64 \"Message 999 not found\" -> 1",
                                                 "numbered 500", "message 64 \"Item A1 of B2\" -> 1"}));
    EXPECT_EQ(transcript.TakeNumbered(), (std::vector<long>{55, 999, 500}));
    EXPECT_TRUE(transcript.TakeNumbered().empty());
}

TEST_F(DialogsTest, ASettingTakesNamesInAnyCaseAndRefusesABadValue) {
    settings.Set("GetOCGEnabled", "true");
    settings.Set("getprintonsavemode", "0");
    EXPECT_TRUE(global().GetOCGEnabled());
    EXPECT_EQ(global().GetPrintOnSaveMode(), 0);

    EXPECT_THROW(settings.Set("GetOCGEnabled", "maybe"), std::invalid_argument);
    EXPECT_THROW(settings.Set("GetPrintOnSaveMode", "two"), std::invalid_argument);
    EXPECT_THROW(settings.Set("GetOpeningDate", "01/04/2020"), std::invalid_argument);
    EXPECT_THROW(settings.Set("GetOCGEnabld", "false"), std::invalid_argument);
    EXPECT_TRUE(global().GetOCGEnabled()) << "the old value is kept";
    EXPECT_EQ(global().GetPrintOnSaveMode(), 0);
    EXPECT_NE(host::Settings::Problem("GetOCGEnabld", "true").find("unknown setting"), std::string::npos);
}

TEST_F(DialogsTest, ASettingsFileIsTakenWholeOrNotAtAll) {
    const std::string good = test_support::ScratchPath("host", ".ini"), bad = good + ".bad";
    std::ofstream(good) << "[Settings]\nGetPrintOnSaveMode = 1\nAdministratorPassword = s3cret\n"
                           "[Other]\nGetOCGEnabled = true\n";
    std::ofstream(bad) << "[Settings]\nGetPrinterService = 1\nGetCloseDayMode = often\n";
    EXPECT_TRUE(settings.LoadFile(good));
    EXPECT_EQ(global().GetPrintOnSaveMode(), 1);
    EXPECT_FALSE(global().GetOCGEnabled()) << "only section [Settings] is read";
    EXPECT_FALSE(settings.LoadFile(bad));
    EXPECT_NE(settings.LoadError().find("line 3"), std::string::npos) << settings.LoadError();
    EXPECT_EQ(global().GetPrinterService(), 0) << "the good line before the bad one is not taken either";
    EXPECT_FALSE(settings.LoadFile(good + ".missing"));
    EXPECT_EQ(global().GetPrintOnSaveMode(), 1);
}

TEST_F(DialogsTest, PrintingErrorsOfTheServerAndTheFileReachTheCaller) {
    EXPECT_THROW(tools().ShowPrintDialog("", "sp_no_such", "", "15", "Dispatch", 0, 0), platform::RuntimeError);
    const std::string inTheWay = test_support::ScratchPath("host", "-file");
    std::ofstream(inTheWay) << "in the way";
    host->SetOutputFolder(inTheWay);
    try {
        tools().PrintDirect("", "", "", 0, "Dispatch", 15);
        FAIL() << "a file stands where the folder should be";
    } catch (const platform::RuntimeError& error) {
        EXPECT_EQ(error.Number(), 75);
    }
    EXPECT_TRUE(transcript.Lines().empty());
}

}  // namespace
}  // namespace host_test
