// The checks of a quantity typed in a line: its syntax, its size, and the stock.
#include "screen_fixture.h"

namespace screen_test {
namespace {

constexpr const char* kSyntax = "Either the syntax is incorrect or multiple UOM's are not valid for this item.";
constexpr const char* kAboveStock = "Quantity should not be greater than available stock";

class QuantityEntry : public ScreenTest {
protected:
    // Marie biscuits in boxes of 24, with 2400 pieces available to the line.
    void MarieInBoxes() {
        OpenForItems();
        ItemLine("FD001", "2", 24);
        SetCell(grid::colAvailableQty, "2400");
    }
};

TEST_F(QuantityEntry, AQuantityAboveTheStockIsRefusedAndOneWithinItPasses) {
    MarieInBoxes();
    EXPECT_TRUE(Quantity("101"));  // 2424 pieces
    EXPECT_EQ(std::tuple(LastStatus(), form->bQtyRefused), std::tuple(kAboveStock, true));

    EXPECT_FALSE(Quantity("100"));  // exactly the 2400 there are
    EXPECT_EQ(std::tuple(form->bQtyRefused, form->bQtySyntaxError, Cell(grid::colPrevQty)),
              std::tuple(false, false, "100"));
}

TEST_F(QuantityEntry, ZeroAndNegativeQuantitiesAreRefusedUnlessTheItemHasNoStock) {
    MarieInBoxes();
    // Zero is refused in the refusals session.
    EXPECT_TRUE(Quantity("-5"));
    EXPECT_EQ(LastStatus(), "Invalid Quantity.");

    // A row of an item with no stock passes 0, and 0 meets no stock either.
    form->bNoStockRow = true;
    SetCell(grid::colAvailableQty, "0");
    EXPECT_FALSE(Quantity("0"));
    EXPECT_FALSE(form->bQtyRefused);
    EXPECT_TRUE(Quantity("1"));
    EXPECT_EQ(LastStatus(), kAboveStock);
}

TEST_F(QuantityEntry, ItemsWithoutInventoryAndFreeRowsAreNotCheckedForStock) {
    OpenForItems();
    ItemLine("PM001", "1", 1);  // a display stand keeps no stock
    EXPECT_EQ(Cell(grid::colTrackInventory), "0");
    EXPECT_FALSE(Quantity("500"));
    EXPECT_EQ(Cell(grid::colSerialNo), "") << "the quantity step ends before the serial";

    ItemLine("FD001", "2", 24);
    SetCell(grid::colAvailableQty, "2400");
    SetCell(grid::colFreeItem, "1");
    SetCell(grid::colFreeRow, "1");
    EXPECT_FALSE(Quantity("500"));
    EXPECT_TRUE(Quantity("2*3"));  // a free row is still checked for syntax
    EXPECT_EQ(LastStatus(), kSyntax);
}

TEST_F(QuantityEntry, AnIgnoredFreeItemWarnsWithoutRefusingTheEdit) {
    MarieInBoxes();
    SetCell(grid::colFreeItmIgnored, "1");
    EXPECT_FALSE(Quantity("10"));
    EXPECT_EQ(std::tuple(LastStatus(), form->bQtyRefused),
              std::tuple("Free SKU is not available/Selected. You cannot save this Dispatch.", true));
}

TEST_F(QuantityEntry, InAnAmendmentTheSelectedBatchEntryBoundsTheQuantity) {
    OpenForItems(7);
    ItemLine("FD001", "2", 24);
    form->FrameAvailable.Visible = true;
    EXPECT_TRUE(Quantity("1"));  // an empty list allows nothing
    EXPECT_EQ(LastStatus(), kAboveStock);

    auto& entry = form->lstAvailable.Add("MB2401");
    entry.SetSubItem(3, "50");
    form->lstAvailable.Select(1);
    EXPECT_FALSE(Quantity("50"));
    EXPECT_TRUE(Quantity("51"));

    // With the list hidden, the stock and what the note holds count in base units.
    form->FrameAvailable.Visible = false;
    SetCell(grid::colAvailableQty, "24");
    SetCell(grid::colStoredQty, "48");
    EXPECT_FALSE(Quantity("3"));
    EXPECT_TRUE(Quantity("4"));
}

TEST_F(QuantityEntry, AnAcceptedQuantityNumbersARowWithoutASerialOnly) {
    MarieInBoxes();
    auto& grid = form->DTFlexDispatch;
    grid.SetGridRows(2);
    SetCell(grid::colItemCode, "FD002", 2);
    SetCell(grid::colSerialNo, "7", 2);
    EXPECT_TRUE(Quantity("500"));
    EXPECT_EQ(Cell(grid::colSerialNo), "") << "a refused quantity gives no serial";
    EXPECT_FALSE(Quantity("5"));
    EXPECT_EQ(Cell(grid::colSerialNo), "1");
    SetCell(grid::colSerialNo, "4");
    EXPECT_FALSE(Quantity("6"));
    EXPECT_EQ(Cell(grid::colSerialNo), "4");
}

TEST_F(QuantityEntry, WithOtherGroupFreeItemsOnANewQuantityDropsThePrimarysFreeRows) {
    settings.Set("GetOCGEnabled", "true");
    MarieInBoxes();
    auto& grid = form->DTFlexDispatch;
    grid.SetGridRows(3);
    SetCell(grid::colSerialNo, "1");
    SetCell(grid::colItemCheck, "2");
    for (int row : {2, 3}) {
        SetCell(grid::colItemCode, row == 2 ? "FD002" : "BV003", row);
        SetCell(grid::colFreeItem, "1", row);
        SetCell(grid::colSerialNo, std::to_string(row), row);
    }
    SetCell(grid::colItemCheck, "1", 2);  // this primary's free row
    SetCell(grid::colItemCheck, "5", 3);  // another primary's
    EXPECT_FALSE(Quantity("10"));
    ASSERT_EQ(grid.GridRows(), 2);
    EXPECT_EQ(Cell(grid::colItemCode, 2), "BV003");
}

// A product in a single-unit row is a syntax error, not six.
TEST_F(QuantityEntry, TheGridKeepsARefusedQuantityOpenForCorrection) {
    MarieInBoxes();
    auto& grid = form->DTFlexDispatch;
    grid.UserGoto(1, grid::colQuantity);
    grid.UserType("2*3");
    grid.UserKey(13);
    EXPECT_EQ(std::tuple(grid.Editing(), grid.EditText(), LastStatus(), form->bQtySyntaxError),
              std::tuple(true, "2*3", kSyntax, true));
    EXPECT_EQ(Cell(grid::colSerialNo), "") << "a refused quantity gives no serial";
}

}  // namespace
}  // namespace screen_test
