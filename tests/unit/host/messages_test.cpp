#include <gtest/gtest.h>

#include "host_fixture.h"
#include "platform/error_handler.h"

namespace host_test {
namespace {

class MessagesTest : public HostTest {
protected:
    host_services::HostMessages& messages() { return services().messages; }
};

TEST_F(MessagesTest, LabelsComeFromTheTableWithTheBaseTextAsFallback) {
    Sql(R"(INSERT INTO Labels (BaseText, LabelKind, Caption) VALUES
             ('Serial No: ', 'Label', 'Numero: '),
             ('Customer', 'Column', 'Client'),
             ('ALL CUSTOMERS', 'Label', 'TOUS LES CLIENTS'),
             ('Untranslated', 'Label', ''))");
    EXPECT_EQ(messages().GetLabel("Serial No: "), "Numero: ");
    EXPECT_EQ(messages().GetLabel("serial no: ", "label"), "Numero: ") << "keys match without regard to case";
    EXPECT_EQ(messages().GetLabel("Customer"), "Customer") << "a caption of another kind does not serve";
    EXPECT_EQ(messages().GetLabel("Customer", "Column"), "Client");
    EXPECT_EQ(messages().GetLabel("Untranslated"), "Untranslated");
    EXPECT_EQ(messages().GetLabel("Select Beat"), "Select Beat");
    EXPECT_EQ(messages().GetAllCustomersText(), "TOUS LES CLIENTS");
    EXPECT_EQ(messages().GetBaseLabel("Numero: "), "Serial No: ");
    EXPECT_EQ(messages().GetBaseLabel("Qty"), "Qty");

    int reads = 0;
    for (const auto& statement : Statements()) reads += statement.find("From Labels") != std::string::npos;
    EXPECT_EQ(reads, 1) << "the table is read once";
}

TEST_F(MessagesTest, NumberedMessagesShowTheirTextAndAreCounted) {
    Sql("INSERT INTO ErrorMessages (ErrorID, Message) VALUES (500, 'Item {0} of {1}')");
    global().ShowNumberedMessage(55, 1, {});
    global().ShowNumberedMessage(999, 1, {});
    global().ShowNumberedMessage(500, 1, {"A1", "B2"});
    EXPECT_EQ(Lines(), (std::vector<std::string>{
                           "numbered 55", "message 64 \"Select a valid Salesman.\" -> 1",
                           "numbered 999", "message 64 \"Message 999 not found\" -> 1",
                           "numbered 500", "message 64 \"Item A1 of B2\" -> 1"}));
    EXPECT_EQ(transcript.TakeNumbered(), (std::vector<long>{55, 999, 500}));
    EXPECT_TRUE(transcript.TakeNumbered().empty());
}

TEST_F(MessagesTest, StatusLinesAndErrorsGoToTheTranscript) {
    global().ShowStatus("Select an existing Customer.", 1);
    ASSERT_NE(transcript.LastStatus(), nullptr);
    EXPECT_EQ(transcript.LastStatus()->text, "Select an existing Customer.");
    EXPECT_EQ(transcript.LastStatus()->flag, 1);

    // The screen's handler reports through the host's error log.
    platform::RunHandled(global(), "Dispatch: GetDetails - ",
                         [] { throw platform::RuntimeError(platform::err::InvalidCall); });
    EXPECT_EQ(Lines().back(), "error 5 Dispatch: GetDetails - Invalid procedure call or argument");
    EXPECT_EQ(transcript.ErrorCount(), 1);
}

TEST(TranscriptTest, MessageTextsAreQuotedAsScriptsWriteThem) {
    host::Transcript transcript;
    std::vector<std::string> printed;
    transcript.onLine = [&](const std::string& line) { printed.push_back(line); };
    transcript.Message(64, "Say \"hi\"\tC:\\x", "1");
    EXPECT_EQ(printed, std::vector<std::string>{"message 64 \"Say \\\"hi\\\"\\tC:\\\\x\" -> 1"});
    EXPECT_EQ(transcript.TakeMessages(), std::vector<std::string>{"Say \"hi\"\tC:\\x"});
    EXPECT_TRUE(transcript.TakeMessages().empty());
}

}  // namespace
}  // namespace host_test
