// Eight clerks save notes at once against the same two batches, asking for more than
// they hold: nothing is oversold, no number is given twice, every saved note is
// whole and every refused one absent.
#include <gtest/gtest.h>

#include <algorithm>

#include "support/clerk_load.h"

namespace web::testing {
namespace {

TEST(ServedScreenUnderLoad, ClerksSavingAtOnceOversellNothingAndNumberEachNoteOnce) {
    ServedScreen screen;
    // Three batches of 96 pieces; each note asks for 2 of the item's unit of 12.
    screen.Sql("UPDATE Batch_Products SET Quantity = 96 WHERE Product_Code = 'FD002'");
    const std::string lastBefore = screen.Sql("SELECT MAX(DispatchID) FROM DispatchAbstract");
    const std::string newNotes = " FROM DispatchAbstract WHERE DispatchID > " + lastBefore;

    const LoadPlan plan;
    const LoadOutcome outcome = RunClerks(screen, plan);

    EXPECT_TRUE(outcome.faults.empty()) << outcome.faults.front();
    EXPECT_EQ(static_cast<int>(outcome.savedNumbers.size()) + outcome.refused, plan.clerks * plan.notesEach);
    EXPECT_EQ(outcome.savedNumbers.size(), 12u) << "the batches hold 12 notes' worth";

    // The numbers the clerks were told are the notes in the database, each once.
    std::vector<std::string> told = outcome.savedNumbers;
    std::sort(told.begin(), told.end());
    std::string toldText;
    for (const auto& number : told) toldText += (toldText.empty() ? "" : ";") + number;
    EXPECT_EQ(screen.Sql("SELECT 'DN' || DocumentID" + newNotes + " ORDER BY 'DN' || DocumentID"), toldText);
    EXPECT_EQ(screen.Sql("SELECT COUNT(*) - COUNT(DISTINCT DocumentID)" + newNotes), "0");

    // Every saved note holds its whole line, and the stock went down by what they hold
    // and not a piece more.
    EXPECT_EQ(screen.Sql("SELECT COUNT(*)" + newNotes +
                         " AND 24 <> (SELECT IFNULL(SUM(Quantity), 0) FROM DispatchDetail d "
                         "WHERE d.DispatchID = DispatchAbstract.DispatchID)"),
              "0");
    EXPECT_EQ(screen.Sql("SELECT SUM(Quantity) FROM Batch_Products WHERE Product_Code = 'FD002'"), "0.0");
    EXPECT_EQ(screen.Sql("SELECT COUNT(*) FROM Batch_Products WHERE Quantity < 0"), "0");
}

}  // namespace
}  // namespace web::testing
