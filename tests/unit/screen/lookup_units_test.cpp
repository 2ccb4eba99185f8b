// A row's unit of measure: the ladder loaded into lstUOM and the row, the slash walk
// through the units, a choice from the list, and the check of multi-unit quantities.
#include "screen_fixture.h"

namespace screen_test {
namespace {

using screen::Zuro_frmDispatch_Dispatch;

class UnitsOfMeasure : public ScreenTest {
protected:
    Zuro_frmDispatch_Dispatch& OpenWithRow(long mode, const std::string& code, const std::string& name,
                                           const std::string& originalPrice) {
        Zuro_frmDispatch_Dispatch& f = Open(mode);
        if (!f.lstUOM.Click.Connected()) f.WireItemLookupAndUnits();
        if (f.DTFlexDispatch.GridRows() < 1) f.DTFlexDispatch.SetGridRows(1);
        SetCell(grid::colItemCode, code);
        SetCell(grid::colItemName, name);
        SetCell(grid::colOriginalPrice, originalPrice);
        return f;
    }
};

TEST_F(UnitsOfMeasure, AStoredUnitIsKeptAndGivesTheRate) {
    Zuro_frmDispatch_Dispatch& f = OpenWithRow(2, "FD001", "Marie Biscuit 100g", "9");
    SetCell(grid::colUOMID, "3");
    SetCell(grid::colUOM, "CASE");
    f.LoadItemUOM("FD001", 1);
    // The ladder (the unit's description) is written only for a row without a unit.
    EXPECT_EQ(Cells({grid::colUOMID, grid::colUOM, grid::colUOMDesc, grid::colSalePrice}), "3|CASE||2160");
    EXPECT_DOUBLE_EQ(f.dUOMRate, 240);
}

TEST_F(UnitsOfMeasure, AFreeRowKeepsPriceZeroThroughAReload) {
    Zuro_frmDispatch_Dispatch& f = OpenWithRow(2, "FD002", "Cream Biscuit 75g", "12");
    SetCell(grid::colFreeItem, "1");
    SetCell(grid::colFreeRow, "1");
    SetCell(grid::colSalePrice, "0");
    f.LoadItemUOM("FD002", 1);
    EXPECT_EQ(Cells({grid::colUOM, grid::colSalePrice}), "BOX|0");
}

TEST_F(UnitsOfMeasure, AnUnknownItemLeavesTheRowAndAnEmptyList) {
    Zuro_frmDispatch_Dispatch& f = OpenWithRow(2, "XX999", "", "5");
    f.lstUOM.AddItem("stale", 9);
    f.LoadItemUOM("XX999", 1);
    EXPECT_EQ(f.lstUOM.ListCount(), 0);
    EXPECT_EQ(Cells({grid::colUOMID, grid::colSalePrice}), "|");
}

// The steps of the walk are read by the new-note and unit sessions; here a whole round.
TEST_F(UnitsOfMeasure, TheSlashWalkComesRoundToTheSalesUnitKeepingTheQuantity) {
    Zuro_frmDispatch_Dispatch& f = OpenWithRow(2, "FD001", "Marie Biscuit 100g", "9");
    f.LoadItemUOM("FD001", 1);
    f.DTFlexDispatch.SetGridCol(grid::colQuantity);
    SetCell(grid::colQuantity, "3");

    for (int step = 0; step < 4; ++step) f.CycleUOM();
    // The quantity stays as typed; the price follows the unit.
    EXPECT_EQ(Cells({grid::colUOMID, grid::colUOM, grid::colQuantity}), "2|BOX|3");
    EXPECT_DOUBLE_EQ(f.dUOMRate, 24);
    EXPECT_FALSE(host->Services().global.GetListGuard());
}

TEST_F(UnitsOfMeasure, OneUnitOnlyMeansNoWalk) {
    Zuro_frmDispatch_Dispatch& f = OpenWithRow(2, "FD003", "Salt Crackers 200g", "18");
    f.LoadItemUOM("FD003", 1);
    f.lstUOM.RemoveItem(1);  // the multi-unit entry alone
    f.CycleUOM();
    EXPECT_EQ(Cell(grid::colUOMID), "1");
}

TEST_F(UnitsOfMeasure, AChoiceFromTheListSetsUnitAndRateAndEnterGoesOnToTheQuantity) {
    Zuro_frmDispatch_Dispatch& f = OpenWithRow(2, "FD001", "Marie Biscuit 100g", "9");
    f.LoadItemUOM("FD001", 1);
    f.DTFlexDispatch.SetGridCol(grid::colUOM);
    f.txtRemarks.SetFocus();
    f.lstUOM.SetListIndex(3);  // CASE, with its click
    EXPECT_EQ(f.ActiveControl(), &f.txtRemarks) << "a click leaves the focus where it was";
    EXPECT_EQ(Cells({grid::colUOMID, grid::colUOM}), "3|CASE");
    EXPECT_DOUBLE_EQ(f.dUOMRate, 240);

    f.DTFlexDispatch.SetGridCol(grid::colUOM);
    f.lstUOM.Visible = true;
    f.lstUOM.SetListIndex(1);
    int key = 13;
    f.lstUOM.KeyDown.Raise(key, 0);
    EXPECT_EQ(Cells({grid::colUOM, grid::colQuantity}), "PCS|");  // the unit never lands in the quantity
    EXPECT_EQ(std::tuple(f.DTFlexDispatch.GridCol(), f.lstUOM.Visible), std::tuple(grid::colQuantity, false));
}

TEST_F(UnitsOfMeasure, MultiUnitQuantitiesAreCheckedUpToTheGivenRow) {
    Zuro_frmDispatch_Dispatch& f = OpenWithRow(2, "FD001", "Marie Biscuit 100g", "9");
    auto& grid = f.DTFlexDispatch;
    grid.SetGridRows(3);
    // Row 2 is not multi-unit, so it is not looked at; on row 3 one level cannot hold two counts.
    const char* rows[][3] = {{"FD001", "0", "1*2*5"}, {"FD003", "1", "1*2"}, {"FD003", "0", "1*2"}};
    for (int row = 1; row <= 3; ++row) {
        grid.SetCell(row, grid::colItemCode, rows[row - 1][0]);
        grid.SetCell(row, grid::colUOMID, rows[row - 1][1]);
        grid.SetCell(row, grid::colQuantity, rows[row - 1][2]);
    }

    bool bValid = false;
    f.ValidateUOM(2, bValid);
    EXPECT_TRUE(bValid);
    f.ValidateUOM(3, bValid);
    EXPECT_FALSE(bValid);
}

TEST_F(UnitsOfMeasure, RowsSharingALinkWithTheRemovedRowGetFreshLinks) {
    Zuro_frmDispatch_Dispatch& f = OpenWithRow(2, "FD001", "Marie Biscuit 100g", "9");
    auto& grid = f.DTFlexDispatch;
    grid.SetGridRows(4);
    const char* links[] = {"", "4", "4", "4", "2"};
    const char* free[] = {"", "0", "0", "1", "0"};
    for (int row = 1; row <= 4; ++row) {
        grid.SetCell(row, grid::colItemCheck, links[row]);
        grid.SetCell(row, grid::colFreeItem, free[row]);
    }
    f.CheckForMultipleUOM(1);
    // Row 2 takes the highest link plus one; the free row 3 keeps its link.
    std::string after;
    for (int row = 1; row <= 4; ++row) after += grid.GetCell(row, grid::colItemCheck) + " ";
    EXPECT_EQ(after, "4 5 4 2 ");
}

TEST_F(UnitsOfMeasure, CopyFindsTheQuantityColumnAndPasteAddsNothing) {
    Zuro_frmDispatch_Dispatch& f = OpenWithRow(2, "FD001", "Marie Biscuit 100g", "9");
    auto& grid = f.DTFlexDispatch;
    grid.SetCell(1, grid::colQuantity, " 12 ");
    grid.SetGridRows(2);
    EXPECT_EQ(std::tuple(f.FindQuantityColumn(grid, 1), f.GetGridQuantity(grid, 1), f.FirstBlankGridRow(grid)),
              std::tuple(grid::colQuantity, "12", 2));
    f.CopyGridItems(grid);
    f.PasteGridItems(grid);
    EXPECT_EQ(std::tuple(grid.GridRows(), grid.IsBlankRow(2)), std::tuple(2, true));
    grid.SetGridRows(1);
    EXPECT_EQ(f.FirstBlankGridRow(grid), 0) << "every row holds a line";
    for (int col = 3; col <= grid.GridCols(); ++col) grid.SetCell(0, col, "");
    EXPECT_EQ(f.FindQuantityColumn(grid, 1), 0) << "no heading speaks of a quantity";
}

}  // namespace
}  // namespace screen_test
