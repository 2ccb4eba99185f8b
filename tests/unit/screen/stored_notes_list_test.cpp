// The stored notes' list where a clerk's session cannot reach: status bits no demo
// note carries, the prefix rule of the look-up by number, and what the list page
// sends the server for a customer and for a range.
#include <memory>

#include "lists/stored_note_words.h"
#include "platform/recording_connection.h"
#include "screen_fixture.h"

namespace screen_test {
namespace {

class StoredNotesList : public ScreenTest {
protected:
    void SetUp() override {
        recorder = std::make_shared<platform::RecordingConnection>(database);
        UseConnection(recorder);
        Open(screen::mode::View);
    }
    std::string Sent(const std::string& procedure) const {
        std::string text;
        for (const auto& call : recorder->Calls())
            if (call.text == procedure) text += platform::RecordingConnection::Describe(call) + "\n";
        return text;
    }
    std::shared_ptr<platform::RecordingConnection> recorder;
};

TEST_F(StoredNotesList, StatusWordsAreAskedCancelledThenAmendedThenClosed) {
    auto& messages = host->Services().messages;
    auto word = [&](long status, bool invoiced) {
        return screen::lists::DispatchStatusText(messages, status, invoiced);
    };
    // Cancelled wins over amended, and 64 without the closed bit is not a cancel.
    EXPECT_EQ(word(192 | 256 | 1, false), "Cancelled");
    EXPECT_EQ(word(64 | 2, false), "Pending");
    EXPECT_EQ(word(64 | 2, true), "Closed");
    EXPECT_EQ(word(385, true), "Amended");
    EXPECT_EQ(word(256, false), "Amended");
    // The closed bit reads as invoiced whatever the invoice flag says.
    EXPECT_EQ(word(129, false), "Invoiced");
    EXPECT_EQ(word(128, true), "Invoiced");
    EXPECT_EQ(word(4, true), "Closed");
    EXPECT_EQ(word(0, false), "Pending");
}

TEST_F(StoredNotesList, ARangeSendsTheFirstEndsLeadOnlyWhenBothEndsShareIt) {
    auto& documents = host->Global();
    auto prefix = [&](const std::string& from, const std::string& to) {
        return screen::lists::LookUpPrefix(documents, from, to);
    };
    EXPECT_EQ(prefix("dn41", "DN45"), "dn");
    EXPECT_EQ(prefix("TN/DN/38", "tn/dn/40"), "TN/DN/");
    EXPECT_EQ(prefix("DN41", "XX45"), "");
    EXPECT_EQ(prefix("41", "45"), "");
    // A plain number against a lettered end: no shared lead.
    EXPECT_EQ(prefix("41", "DN45"), "");
    EXPECT_EQ(prefix("DN", "DN"), "DN");
}

TEST_F(StoredNotesList, OneCustomerIsSentByCodeAndARangeByItsNumbers) {
    form->txtCustomer.Tag = "C005";
    form->txtCustomer.SetText("Ravi Stores");
    form->dtFromDate.Value = platform::DateSerial(2026, 10, 1);
    recorder->Clear();
    bool bDocLookUp = false;
    form->ListDispatch(bDocLookUp);
    EXPECT_EQ(Sent("sp_list_Dispatch"), "sp_list_Dispatch 'C005', '2026-10-01 00:00:00', '2026-11-22 23:59:59', 0\n");
    EXPECT_EQ(form->lstSO.Count(), 2);
    EXPECT_EQ(form->lstSO.Item(2).Tag, "1");
    EXPECT_EQ(form->lstSO.Item(1).Tag, "HEADER");
    // Only the amendment's list carries the customer and the document type.
    EXPECT_EQ(form->lstSO.Item(2).SubItem(8) + form->lstSO.Item(2).SubItem(9), "");

    form->txtDocID.SetText("DN.41");
    form->txtDocIDTo.SetText("dn 44");
    recorder->Clear();
    bDocLookUp = true;
    form->ListDispatch(bDocLookUp);
    EXPECT_EQ(Sent("sp_list_Dispatch_DocLU"), "sp_list_Dispatch_DocLU 41, 44, ''\n");
    EXPECT_EQ(Errors(), 0) << ErrorLines();
}

TEST_F(StoredNotesList, AnEmptyCustomerKeyListsNothingAndAsksForACustomer) {
    form->lstSO.Add("kept");
    form->txtCustomer.Tag.clear();
    recorder->Clear();
    bool bDocLookUp = false;
    form->ListDispatch(bDocLookUp);
    EXPECT_EQ(Sent("sp_list_Dispatch"), "");
    EXPECT_EQ(LastStatus(), "Select an existing customer.");
    EXPECT_EQ(form->ActiveControl(), &form->txtCustomer);
}

// No clerk's path leaves the customer's key empty on the list page; a host that
// clears it meets the question and loses the list.
TEST_F(StoredNotesList, ContinueWithoutACustomerKeyClearsTheListAndAsks) {
    form->dtFromDate.Value = platform::DateSerial(2026, 10, 1);
    form->cmdRefresh_Click();
    ASSERT_GT(form->lstSO.Count(), 1);
    form->lstSO.Item(2).Checked = true;
    form->txtCustomer.Tag.clear();
    form->cmdContinue_Click();
    EXPECT_TRUE(TranscriptHas("message 64 \"Select an existing customer.\"")) << ErrorLines();
    EXPECT_EQ(form->lstSO.Count(), 0);
    EXPECT_EQ(form->ActiveControl(), &form->txtCustomer);
    EXPECT_FALSE(form->Frame3.Enabled);
}

TEST_F(StoredNotesList, OnlyAnOrderWithItemsTheMasterDoesNotKnowShowsTheDialog) {
    form->ShowNotFound("2");
    EXPECT_FALSE(TranscriptHas("ShowNotFoundDialog"));
    form->ShowNotFound("1, 2");
    EXPECT_TRUE(
        TranscriptHas("ShowNotFoundDialog \"The following items of the purchase order are not in the item "
                      "master and cannot be dispatched.\" [ZZ-999] -> ok"));
    EXPECT_EQ(Errors(), 0) << ErrorLines();
}

}  // namespace
}  // namespace screen_test
