// Cancelling and amending stored notes: a failure at any database call leaves every
// table and the grid as they were, a quote in the remarks is doubled, and of two
// clerks changing the same note only one gets through.
#include <functional>
#include <utility>

#include "platform/fault_connection.h"
#include "screen_fixture.h"

namespace screen_test {
namespace {

// A connection that runs another clerk's work once, just before it begins its
// transaction: what he did while this clerk stood at the question.
class InterruptedConnection : public platform::Connection {
public:
    explicit InterruptedConnection(platform::ConnectionPtr inner) : inner_(std::move(inner)) {}
    std::function<void()> beforeBegin;
    platform::RecordsetPtr Execute(const std::string& sql) override { return inner_->Execute(sql); }
    platform::RecordsetPtr RunProcedure(const std::string& name, const platform::ParameterList& parameters) override {
        return inner_->RunProcedure(name, parameters);
    }
    void BeginTrans() override {
        if (auto action = std::exchange(beforeBegin, nullptr)) action();
        inner_->BeginTrans();
    }
    void CommitTrans() override { inner_->CommitTrans(); }
    void RollbackTrans() override { inner_->RollbackTrans(); }
    bool InTransaction() const override { return inner_->InTransaction(); }

private:
    platform::ConnectionPtr inner_;
};

class StoredNoteTest : public ScreenTest {
protected:
    StoredNoteTest() : faults(std::make_shared<platform::FaultInjectingConnection>(database)) { UseConnection(faults); }

    // The note loaded on the entry page of the mode, as the Continue step leaves it.
    screen::Zuro_frmDispatch_Dispatch& OpenNote(long mode, long dispatchID) {
        auto& f = Open(mode);
        f.szDocNumbers = std::to_string(dispatchID);
        f.LoadDispatchInfo(dispatchID);
        f.SetFrame(2);
        return f;
    }
    std::string Status(long dispatchID) {
        return Scalar("SELECT Status FROM DispatchAbstract WHERE DispatchID = " + std::to_string(dispatchID));
    }

    std::shared_ptr<platform::FaultInjectingConnection> faults;
};

TEST_F(StoredNoteTest, EveryCallOfACancelFailingLeavesTablesAndGridAsTheyWere) {
    expectedErrors = -1;  // each failed run logs its own
    auto& f = OpenNote(screen::mode::Cancel, 2);
    f.txtRemarks.SetText("Shop's shutter down");
    const std::string tables = Tables();
    const std::string cells = GridCells();
    // The clerk answering no counts the calls ahead of the transaction; the first
    // click reads what later clicks find kept.
    Answer(7);
    f.cmdSave_Click();
    const int before = faults->CallCount();
    Answer(7);
    f.cmdSave_Click();
    const int gateCalls = faults->CallCount() - before;

    const int failedCalls = FailEachCallInTurn(
        *faults, gateCalls,
        [&] {
            f.cmdSave_Click();
            return Status(2) == "194";
        },
        [&] {
            ASSERT_TRUE(Tables() == tables) << "the failure left changes";
            ASSERT_EQ(GridCells(), cells);
            ASSERT_FALSE(database->InTransaction());
            ASSERT_FALSE(f.bInTransaction);
        });
    // The gate, the close, two batches, the openings, the posting's calls and the commit.
    EXPECT_GE(failedCalls, 7);
    EXPECT_EQ(Scalar("SELECT Remarks FROM DispatchAbstract WHERE DispatchID = 2"), "Shop's shutter down");
}

TEST_F(StoredNoteTest, EveryCallOfAnAmendmentFailingLeavesTablesGridAndTheOldLinesAsTheyWere) {
    expectedErrors = -1;  // each failed run logs its own
    auto& f = OpenNote(screen::mode::Amendment, 8);
    f.DTFlexDispatch.SetCell(1, grid::colQuantity, "1");
    f.szEnteredCustomerCode = "C004";
    const std::string tables = Tables();
    const std::string cells = GridCells();
    const long oldRows = f.vOldDetail.UBound(1);
    const int before = faults->CallCount();
    f.CheckCreditGates(1, 7, 1);
    const int gateCalls = faults->CallCount() - before;

    const int failedCalls = FailEachCallInTurn(
        *faults, gateCalls, [&] { return f.SaveDispatch(); },
        [&] {
            ASSERT_TRUE(Tables() == tables) << "the failure left changes";
            ASSERT_EQ(GridCells(), cells);
            ASSERT_EQ(f.vOldDetail.UBound(1), oldRows);
            ASSERT_EQ(platform::ToText(f.vOldDetail.At(1, 2)), "2") << "the old line's batch is kept";
        });
    EXPECT_GE(failedCalls, 8);
    EXPECT_EQ(Status(8), "386");
    EXPECT_EQ(Scalar("SELECT Quantity FROM Batch_Products WHERE Batch_Code = 2"), "1224");
}

// A second clerk on the same database file, with a connection and a screen of his own.
struct SecondClerk {
    explicit SecondClerk(const std::string& path)
        : connection(std::make_shared<InterruptedConnection>(std::make_shared<server::EmbeddedConnection>(path))),
          host(connection, settings, transcript, answers),
          component(host.Services()) {
        host.SetServerDate(platform::DateSerial(2026, 11, 22));
    }
    screen::Zuro_frmDispatch_Dispatch& OpenNote(long mode, long dispatchID) {
        platform::Date today = platform::DateSerial(2026, 11, 22), alert = today;
        component.InitDispatch(today, mode, host.Context(), alert);
        auto& form = dynamic_cast<screen::Zuro_frmDispatch_Dispatch&>(*component.Form());
        form.szDocNumbers = std::to_string(dispatchID);
        form.LoadDispatchInfo(dispatchID);
        form.SetFrame(2);
        return form;
    }
    std::shared_ptr<InterruptedConnection> connection;
    host::Settings settings;
    host::Transcript transcript;
    host::DialogAnswers answers;
    host::PlainHost host;
    screen::Zuro_clsDispatch component;
};

TEST_F(StoredNoteTest, OfTwoClerksCancellingOneNoteTheSecondIsRefusedByTheDatabaseAndRollsBack) {
    auto& one = OpenNote(screen::mode::Cancel, 8);
    SecondClerk second(path);
    auto& two = second.OpenNote(screen::mode::Cancel, 8);
    // The second clerk has passed the gate and said yes; the first cancels meanwhile.
    second.connection->beforeBegin = [&] { one.cmdSave_Click(); };
    two.cmdSave_Click();

    EXPECT_EQ(Status(8), "194");
    EXPECT_EQ(Errors(), 0);
    EXPECT_EQ(second.transcript.ErrorCount(), 1) << "the database refused the second close";
    EXPECT_FALSE(two.bInTransaction);
    // Batch 2's 48 pieces, the openings after the note's day and the reversing rows, once.
    EXPECT_EQ(std::tuple(Scalar("SELECT Quantity FROM Batch_Products WHERE Batch_Code = 2"),
                         Scalar("SELECT Opening_Quantity FROM OpeningDetails WHERE Product_Code = 'FD001' LIMIT 1"),
                         Scalar("SELECT COUNT(*) FROM JournalPostings WHERE DocumentID = 8")),
              std::tuple("1248", "4368", "2"));
}

}  // namespace
}  // namespace screen_test
