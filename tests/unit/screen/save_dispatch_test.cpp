// Saving a keyed note: what is stored, and that a save failing at any call, or
// refused for stock or credit, leaves every table and the grid as they were.
#include "platform/convert.h"
#include "platform/fault_connection.h"
#include "screen_fixture.h"
#include "session/key_press.h"

namespace screen_test {
namespace {

// A Mode 2 note keyed as a clerk keys it, over a connection that can fail any call,
// with snapshots of every table and of the grid to show that a failed save changed
// nothing.
class SaveTest : public ScreenTest {
protected:
    SaveTest() : faults(std::make_shared<platform::FaultInjectingConnection>(database)) { UseConnection(faults); }

    // Ravi's note of two lines: FD001, 2 boxes (of 24) from its first batch, MB2401;
    // FD002, 10 boxes (of 12) from the batch two steps down its stock list, CB101.
    screen::Zuro_frmDispatch_Dispatch& KeyNoteForRavi() {
        auto& f = OpenForRavi();
        KeyLine(1, "FD001", "2", 1);
        KeyLine(2, "FD002", "10", 2);
        return f;
    }

    std::shared_ptr<platform::FaultInjectingConnection> faults;
};

TEST_F(SaveTest, APostingTheJournalRefusesShowsItsReasonAsANoteAndTakesTheNoteBack) {
    auto& f = KeyNoteForRavi();
    const std::string tables = Tables();
    faults->FailMatching("Insert Into JournalPostings");
    EXPECT_FALSE(f.SaveDispatch());
    EXPECT_NE(LastStatus().find("Insert Into JournalPostings"), std::string::npos) << LastStatus();
    EXPECT_EQ(std::tuple(LastStatusKind(), Tables() == tables), std::tuple(0, true));
}

TEST_F(SaveTest, EveryCallOfTheSaveFailingLeavesTablesAndGridAsTheyWere) {
    expectedErrors = -1;  // each failed run logs its own
    auto& f = KeyNoteForRavi();
    const std::string tables = Tables();
    const std::string cells = GridCells();
    // The credit gate's look-ups come before the transaction and have handlers of
    // their own; the calls counted here are the save's, from BeginTrans on.
    const int before = faults->CallCount();
    f.CheckCreditGates(1, 1, 2);
    const int gateCalls = faults->CallCount() - before;
    std::string lastFailureStatus;
    const int failedCalls = FailEachCallInTurn(
        *faults, gateCalls, [&] { return f.SaveDispatch(); },
        [&] {
            lastFailureStatus = LastStatus();
            ASSERT_TRUE(Tables() == tables) << "the failure left changes";
            ASSERT_EQ(GridCells(), cells);
            ASSERT_FALSE(database->InTransaction());
        });
    // The credit gate, the abstract, the counter, each line, the posting and the commit.
    EXPECT_GE(failedCalls, 10);
    // The last call to fail was the commit: the note had been announced already.
    EXPECT_NE(lastFailureStatus.find("has been generated"), std::string::npos) << lastFailureStatus;
    EXPECT_EQ(
        Scalar("SELECT COUNT(*) FROM DispatchAbstract WHERE CustomerID = 'C005' AND DispatchDate >= '2026-11-22'"),
        "1");
}

TEST_F(SaveTest, StockThatCannotBeReadCountsAsNone) {
    auto& f = Open(2);
    faults->FailMatching("spr_get_total_bookstock");
    EXPECT_EQ(f.GetTotalBookStock("FD001"), 0);
    expectedErrors = 1;  // the failure is reported
}

TEST_F(SaveTest, AStockRefusalOnTheLastRowTakesTheWholeNoteBack) {
    auto& f = KeyNoteForRavi();
    // Another clerk has taken most of the batch since the line was keyed.
    database->ExecuteNative(
        "UPDATE Batch_Products SET Quantity = 3 WHERE Product_Code = 'FD002' AND Batch_Number = 'CB101'");
    const std::string tables = Tables();
    const std::string cells = GridCells();

    EXPECT_FALSE(f.SaveDispatch());

    EXPECT_EQ(
        std::tuple(Tables() == tables, GridCells(), TranscriptHas("status 1 Insufficient stock for Cream Biscuit 75g"),
                   f.DTFlexDispatch.GridRow(), f.DTFlexDispatch.GridCol(), f.ActiveControl()),
        std::tuple(true, cells, true, 2, grid::colSalePrice, &f.DTFlexDispatch));
    EXPECT_FALSE(f.bQtyRefused) << "a row at the item's price leaves the quantity standing";

    // At the customer's price the same refusal marks the row's quantity refused.
    f.DTFlexDispatch.SetCell(2, grid::colPriceOption, "1");
    EXPECT_FALSE(f.SaveDispatch());
    EXPECT_EQ(std::tuple(Tables() == tables, f.bQtyRefused), std::tuple(true, true));
}

TEST_F(SaveTest, ACreditRefusalBeginsNothingAndSendsFocusToSave) {
    auto& f = KeyNoteForRavi();
    database->ExecuteNative("UPDATE Customer SET CreditLimit = 1 WHERE CustomerID = 'C005'");
    database->ExecuteNative("DELETE FROM CustomerCreditTerm WHERE CustomerID = 'C005'");
    settings.Set("GetCreditLimitPasswordEnabled", "true");
    settings.Set("AdministratorPassword", "s3cret");
    answers.Queue("InputPassword", {"guess"});
    const std::string tables = Tables();

    EXPECT_FALSE(f.SaveDispatch());

    EXPECT_TRUE(TranscriptHas("\"Invalid Password\""));
    EXPECT_EQ(f.ActiveControl(), &f.cmdSave);
    EXPECT_TRUE(Tables() == tables);

    // The right password lets the same note through.
    answers.Queue("InputPassword", {"s3cret"});
    EXPECT_TRUE(f.SaveDispatch()) << ErrorLines();
}

TEST_F(SaveTest, AQuantityInThreeUnitsStoresARowForEachUnitWithACount) {
    auto& f = OpenForRavi();
    auto& grid = f.DTFlexDispatch;
    f.MoveFocus(grid);
    grid.UserGoto(1, 1);
    grid.UserType("FD001");
    session::PressGridKey(f, grid, 13, 0);
    grid.UserType("/");
    grid.UserType("/");
    grid.UserType("2*0*5");
    session::PressGridKey(f, grid, 13, 0);
    ASSERT_EQ(grid.GetCell(1, grid::colQuantity), "2*0*5");

    ASSERT_TRUE(f.SaveDispatch()) << ErrorLines();

    const std::string id = Scalar("SELECT MAX(DispatchID) FROM DispatchAbstract");
    EXPECT_EQ(Scalar("SELECT GROUP_CONCAT(printf('%g', UOMQty), ',') FROM (SELECT UOM, SUM(UOMQty) AS UOMQty FROM "
                     "DispatchDetail WHERE DispatchID = " +
                     id + " GROUP BY UOM ORDER BY MIN(DetailID))"),
              "2,5");
}

}  // namespace
}  // namespace screen_test
