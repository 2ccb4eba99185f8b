// The receipt screen: what a save writes for each row, what a failure part-way leaves,
// the columns the two form boxes show, and the number columns kept in step with their
// marks.
#include "platform/fault_connection.h"
#include "platform/recording_connection.h"
#include "receipts/zuro_frm_cform_dispatch.h"
#include "screen_fixture.h"

namespace screen_test {
namespace {

namespace col = receipts::col;

class Receipts : public ScreenTest {
protected:
    Receipts()
        : faults(std::make_shared<platform::FaultInjectingConnection>(database)),
          recorder(std::make_shared<platform::RecordingConnection>(faults)) {
        UseConnection(recorder);
    }

    // The screen as the host opens it, listing every invoice that needs a form.
    receipts::Zuro_frmCForm_Dispatch& OpenAll() {
        platform::Date date = Today();
        component->InitCForm(date, host->Context());
        f = dynamic_cast<receipts::Zuro_frmCForm_Dispatch*>(component->Form());
        f->dtFromDate.Value = platform::DateSerial(2000, 1, 1);
        f->dtToDate.Value = platform::DateSerial(2099, 12, 31);
        f->LoadInvoices();
        return *f;
    }
    // The grid row of the invoice with that document number.
    int Row(int document) {
        for (int r = 1; r <= f->dtInvoice.GridRows(); ++r)
            if (f->dtInvoice.GetCell(r, col::InvoiceNo) == "IN" + std::to_string(document)) return r;
        ADD_FAILURE() << "invoice " << document << " is not listed";
        return 1;
    }
    void Set(int document, int c, const std::string& text) { f->dtInvoice.SetCell(Row(document), c, text); }
    // The user's choice from lstYesNo in a mark cell, entry 0 "Yes", 1 "No".
    void Choose(int row, int c, int entry) {
        f->dtInvoice.UserGoto(row, c);
        f->lstYesNo.SetListIndex(-1);
        f->lstYesNo.SetListIndex(entry);
    }
    // Each receipt sent, as "invoice:mask:C-Form no:D-Form no".
    std::vector<std::string> Writes() {
        std::vector<std::string> writes;
        for (const auto& call : recorder->Calls()) {
            if (call.text != "sp_Update_FormReceipt") continue;
            std::string line;
            for (const auto& parameter : call.parameters)
                line += (line.empty() ? "" : ":") + platform::ToText(parameter.value);
            writes.push_back(line);
        }
        return writes;
    }
    // The filter arguments of the last listing, "forms asked/forms outstanding".
    std::string LastListingFlags() {
        std::string flags;
        for (const auto& call : recorder->Calls())
            if (call.text == "sp_Get_ReceiptFormInvoice")
                flags = platform::ToText(call.parameters[3].value) + "/" + platform::ToText(call.parameters[4].value);
        return flags;
    }

    std::shared_ptr<platform::FaultInjectingConnection> faults;
    std::shared_ptr<platform::RecordingConnection> recorder;
    receipts::Zuro_frmCForm_Dispatch* f = nullptr;
};

TEST_F(Receipts, EachRowIsWrittenPassedOverOrMarkedUnchangedByItsMarks) {
    Scalar("UPDATE InvoiceAbstract SET FormsReceived = 96, CFormNo = 'CF-1', DFormNo = 'DF-1' WHERE InvoiceID = 13");
    OpenAll();
    ASSERT_EQ(f->dtInvoice.GridRows(), 8);
    Set(506, col::CFormNo, "CF-1022");  // marks as they were, a number put right
    Set(510, col::CForm, "No");         // its only mark taken away
    Set(508, col::CForm, "Yes");        // both marks changed in one save
    Set(508, col::DForm, "Yes");
    Set(509, col::CFormNo, "X-1");  // a number beside a mark that says No is not sent
    Set(503, col::CForm, "Yes");
    Set(503, col::CFormNo, "CF-2001");
    Set(513, col::CForm, "No");  // one of two marks taken away
    recorder->Clear();

    f->SaveReceipts();

    EXPECT_EQ(Writes(), (std::vector<std::string>{"4:192::DF-0088", "6:160:CF-1022:", "9:128::", "3:32:CF-2001:",
                                                  "11:128::", "13:64::DF-1"}));
    EXPECT_EQ(Errors(), 0) << ErrorLines();
    EXPECT_EQ(recorder->Calls().back().text, "sp_Get_ReceiptFormInvoice");
    EXPECT_EQ(Scalar("SELECT group_concat(InvoiceID || ':' || FormsReceived || ':' || CFormNo || ':' || DFormNo) "
                     "FROM InvoiceAbstract WHERE InvoiceID IN (3, 8, 10, 13)"),
              "3:32:CF-2001:,8:0::,10:32:CF-0990:,13:64::DF-1");
}

TEST_F(Receipts, AFailedWriteStopsTheSaveAndKeepsTheRowsWrittenBeforeIt) {
    expectedErrors = 1;
    OpenAll();
    Set(504, col::DFormNo, "DF-0089");
    Set(506, col::CFormNo, "CF-1022");
    recorder->Clear();
    // From the first receipt on, the second one fails: 506's.
    bool armed = false;
    recorder->onCall = [&](const platform::RecordedCall& call) {
        if (armed || call.text != "sp_Update_FormReceipt") return;
        armed = true;
        faults->FailNthCall(2);
    };

    f->cmdSave_Click();

    EXPECT_EQ(Errors(), 1);
    EXPECT_TRUE(TranscriptHas(" C - Form D - Form :")) << ErrorLines();
    EXPECT_EQ(Scalar("SELECT DFormNo FROM InvoiceAbstract WHERE InvoiceID = 4"), "DF-0089");
    EXPECT_EQ(Scalar("SELECT CFormNo FROM InvoiceAbstract WHERE InvoiceID = 6"), "CF-1021");
    // The list is not loaded again: the user's marks are still there to save.
    EXPECT_EQ(recorder->Calls().back().text, "sp_Update_FormReceipt");
    EXPECT_EQ(f->dtInvoice.GetCell(Row(506), col::CFormNo), "CF-1022");
}

TEST_F(Receipts, TheFormBoxesChooseTheColumnsShownAndTheEnterWalk) {
    OpenAll();
    struct Case {
        int formOne, formTwo;
        std::string flags;
        double widths[4];  // columns 5 to 8
        int nextFromCustomer, lastEntry;
    } cases[] = {
        {0, 0, "0/0", {800, 850, 800, 850}, 0, col::DFormNo},
        {1, 0, "4/32", {800, 850, 0, 0}, 0, col::CFormNo},
        {0, 1, "8/64", {0, 0, 800, 850}, col::DForm, col::DFormNo},
        {1, 1, "12/96", {800, 850, 800, 850}, 0, col::DFormNo},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.flags);
        f->chkForm1.SetValue(c.formOne);
        f->chkForm2.SetValue(c.formTwo);
        f->cmdRefresh_Click();
        EXPECT_EQ(LastListingFlags(), c.flags);
        for (int i = 0; i < 4; ++i) EXPECT_EQ(f->dtInvoice.ColWidth(col::CForm + i), c.widths[i]) << "column " << 5 + i;
        EXPECT_EQ(f->dtInvoice.ColNext(col::Customer), c.nextFromCustomer);
        EXPECT_EQ(f->dtInvoice.LastEntryCol, c.lastEntry);
    }
}

TEST_F(Receipts, ANumberColumnIsClearedAndLockedWhileItsRowsMarkSaysNo) {
    OpenAll();
    const int had = Row(506), none = Row(503);
    Choose(had, col::CForm, 1);
    EXPECT_EQ(
        std::tuple(f->dtInvoice.GetCell(had, col::CFormNo), f->dtInvoice.ColLocked(col::CFormNo), f->lstYesNo.Visible),
        std::tuple("", true, false));

    // The lock is the whole column's, as the last mark chosen left it.
    Choose(none, col::CForm, 0);
    EXPECT_FALSE(f->dtInvoice.ColLocked(col::CFormNo));
}

}  // namespace
}  // namespace screen_test
