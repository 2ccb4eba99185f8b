// Filling the grid from source documents: a ticked confirmation with nothing left, a
// gone item on the last line, and the load-time scheme links no demo scheme reaches.
#include <gtest/gtest.h>

#include "screen_fixture.h"

namespace screen_test {
namespace {

using namespace grid;

class SourceLoadingTest : public ScreenTest {
protected:
    // A document row of the confirmation list, ticked, carrying its SONumber.
    void TickConfirmation(const std::string& soNumber) {
        auto& row = form->lstSO.Add();
        row.SetSubItem(6, soNumber);
        row.Checked = true;
    }
};

// Confirmation 9 alone has nothing left: back to the list page, the status line then
// going on to the ready message.
TEST_F(SourceLoadingTest, ASpentConfirmationGivesNoLines) {
    auto& g = Open(screen::mode::FromSalesConfirmation);
    TickConfirmation("9");
    g.LoadItemDetails();
    EXPECT_EQ(
        std::tuple(TranscriptHas("status 1 No details to display"), LastStatus(), g.Frame2.Enabled, g.Frame3.Enabled),
        std::tuple(true, "Ready", true, false));
}

TEST_F(SourceLoadingTest, ALastLineOfAnItemGoneFromTheMasterLeavesItsRowBehind) {
    auto& f = Open(screen::mode::FromSalesConfirmation);
    database->ExecuteNative("UPDATE SODetail SET SOLineID = 99 WHERE SOLineID = 13");  // FD099 last
    TickConfirmation("4");
    f.LoadItemDetails();
    EXPECT_EQ(f.DTFlexDispatch.GridRows(), 4);
    EXPECT_EQ(Cells({colItemCode, colItemName}), "FD001|Marie Biscuit 100g");
    EXPECT_EQ(std::tuple(Cell(colItemCode, 4), Cell(colItemName, 4)), std::tuple("FD099", ""));
}

// Two bands of a same-item scheme that repeats, both met: two free rows, and the
// primary row names only the last; an other-item scheme names every free row.
TEST_F(SourceLoadingTest, SameItemSchemeLinksTheLastFreeRowAndOtherItemSchemeLinksAll) {
    database->ExecuteNative(
        "INSERT INTO SchemeSlabs (SlabID, SchemeID, SlabStart, SlabEnd, SlabUnit, Onward, FreeQty, FreeUnit) "
        "VALUES (1012, 101, 200, 300, 1, 0, 24, 1);"
        "INSERT INTO SchemeSlabs (SlabID, SchemeID, SlabStart, SlabEnd, SlabUnit, Onward, FreeQty, FreeUnit, FreeItem) "
        "VALUES (1033, 103, 100, 99999, 1, 0, 20, 1, 'PC002');");
    auto& f = Open(screen::mode::FromPurchaseOrder);
    f.nCustomerCategory = 1;
    f.szCustomerCode = "C002";
    f.szPONumbers = "1";
    answers.Queue("SelectScheme", {"101"});
    f.LoadPOItems();
    // 480 meets every 100 (40 pieces) and every 200 (48 pieces), in boxes of 24.
    EXPECT_EQ(Cells({colItemCode, colSchemeID, colPrevQty}), "FD001|101|480");
    EXPECT_EQ(std::tuple(Cell(colQuantity, 2), Cell(colQuantity, 3)), std::tuple("1.66666666666667", "2"));
    EXPECT_EQ(Cell(colItemCheck), Cell(colSerialNo, 3));
    EXPECT_NE(Cell(colSerialNo, 2), Cell(colSerialNo, 3));
    EXPECT_EQ(Cell(colPromptMessage), "Marie: 10 pieces free on every 100");

    // Soap: 144 meets 100 up (20 sachets) and band 144-287 (10), lowest start first.
    EXPECT_EQ(Cell(colItemCode, 4), "PC001");
    EXPECT_EQ(Cell(colItemCheck, 4), Cell(colSerialNo, 5) + "," + Cell(colSerialNo, 6));
    EXPECT_EQ(std::tuple(Cell(colQuantity, 5) + "|" + Cell(colQuantity, 6), Cell(colPrimaryItemCode, 6),
                         f.DTFlexDispatch.GridRows()),
              std::tuple("2|1", "PC001", 6));
}

}  // namespace
}  // namespace screen_test
