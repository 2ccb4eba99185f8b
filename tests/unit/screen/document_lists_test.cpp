// The document lists' edges a clerk's session does not reach: the customer of a
// selected row that carries its own, what the list procedures are sent for a
// customer's text, the stored notes' status bits no demo note carries, and the
// not-found dialog of a purchase order.
#include "lists/stored_note_words.h"
#include "platform/recording_connection.h"
#include "screen_fixture.h"

namespace screen_test {
namespace {

class DocumentLists : public ScreenTest {
protected:
    void SetUp() override {
        recorder = std::make_shared<platform::RecordingConnection>(database);
        UseConnection(recorder);
        Open(screen::mode::FromSalesConfirmation);
    }
    std::string Sent(const std::string& procedure) const {
        std::string text;
        for (const auto& call : recorder->Calls())
            if (call.text == procedure) text += platform::RecordingConnection::Describe(call) + "\n";
        return text;
    }
    std::shared_ptr<platform::RecordingConnection> recorder;
};

TEST_F(DocumentLists, TheCustomerComesFromTheSelectedRowElseTheTickedRowsKey) {
    auto& list = form->lstSO;
    list.Clear();
    list.Add("Ravi Stores").Tag = "C005";
    auto& document = list.Add();
    document.Tag = "C005";
    document.SetSubItem(6, "1");
    document.Checked = true;
    list.Item(1).SetSubItem(8, "C002");
    list.Select(1);
    // The name is looked up by the ticked row's key all the same.
    form->GetDetails();
    EXPECT_EQ(form->szCustomerCode + "|" + form->szCustomerName + "|" + form->szDocNumbers, "C002|Ravi Stores|1");
}

TEST_F(DocumentLists, TheCustomersTextAndThePeriodGoAsParameters) {
    const std::string text = "C005'; DELETE FROM SOAbstract; --]";
    form->dtFromDate.Value = platform::DateTime(2026, 10, 8, 15, 30, 0);
    form->dtToDate.Value = platform::DateSerial(2026, 11, 22);
    recorder->Clear();
    form->ListSpecifiedSOAbstract(text);
    form->ListSpecifiedPOAbstract(text);
    const std::string arguments =
        " 'C005''; DELETE FROM SOAbstract; --]', '2026-10-08 00:00:00', '2026-11-22 23:59:59'\n";
    EXPECT_EQ(Sent("sp_get_Sos"), "sp_get_Sos" + arguments);
    EXPECT_EQ(Sent("sp_get_pos"), "sp_get_pos" + arguments);

    form->txtCustomerID.SetText(text);
    recorder->Clear();
    form->cmdRefresh_Click();
    EXPECT_EQ(Sent("sp_get_TradeCustomer"), "sp_get_TradeCustomer 'C005''; DELETE FROM SOAbstract; --]'\n");
}

TEST_F(DocumentLists, StatusWordsAreAskedCancelledThenAmendedThenClosed) {
    auto& messages = host->Services().messages;
    auto word = [&](long status, bool invoiced) {
        return screen::lists::DispatchStatusText(messages, status, invoiced);
    };
    // Cancelled wins over amended.
    EXPECT_EQ(std::tuple(word(192 | 256 | 1, false), word(385, true)), std::tuple("Cancelled", "Amended"));
    // The closed bit reads as invoiced whatever the invoice flag says.
    EXPECT_EQ(std::tuple(word(129, false), word(128, true), word(4, true), word(0, false)),
              std::tuple("Invoiced", "Invoiced", "Closed", "Pending"));
}

TEST_F(DocumentLists, OnlyAnOrderWithItemsTheMasterDoesNotKnowShowsTheDialog) {
    form->ShowNotFound("2");
    EXPECT_FALSE(TranscriptHas("ShowNotFoundDialog"));
    form->ShowNotFound("1, 2");
    EXPECT_TRUE(
        TranscriptHas("ShowNotFoundDialog \"The following items of the purchase order are not in the item "
                      "master and cannot be dispatched.\" [ZZ-999] -> ok"));
}

}  // namespace
}  // namespace screen_test
