// The grid as a table of text: its shape, cells and headings, the blank row, and
// the refusal of an address outside it.
#include "grid_new_note.h"

namespace {

using grid_test::ErrorNumberOf;
using grid_test::SingleFocus;
using platform::DTFlex;

class GridCells : public ::testing::Test {
protected:
    SingleFocus scope;
    DTFlex grid{scope, "dtInvoice", 11};
};

TEST_F(GridCells, CellsOutsideTheGridAreError381) {
    EXPECT_EQ(grid.GridRows(), 1);  // a new grid offers one blank row
    grid.SetGridRows(2);
    for (auto [row, col] : {std::pair{-1, 1}, {3, 1}, {1, -1}, {1, 12}}) {
        EXPECT_EQ(ErrorNumberOf([&] { (void)grid.GetCell(row, col); }), 381) << row << "," << col;
        EXPECT_EQ(ErrorNumberOf([&] { grid.SetCell(row, col, "x"); }), 381) << row << "," << col;
    }
    EXPECT_EQ(ErrorNumberOf([&] { grid.RemoveRow(0); }), 381);
    EXPECT_EQ(ErrorNumberOf([&] { grid.SetColHeading(35, "x"); }), 381);
    EXPECT_EQ(ErrorNumberOf([&] { grid.SetGridRows(-1); }), platform::err::InvalidPropertyValue);
    EXPECT_EQ(grid.GridRows(), 2);
}

TEST_F(GridCells, HeadingsAndRowNumbersAreNoEntriesAndRowsComeAndGoFromTheEnd) {
    grid.SetColHeading(2, "Invoice ID");
    grid.SetCell(1, 0, "1");
    EXPECT_EQ(grid.GetCell(0, 2), "Invoice ID");
    EXPECT_TRUE(grid.IsBlankRow(1));
    grid.SetCell(1, 11, "x");
    EXPECT_FALSE(grid.IsBlankRow(1));

    // Rows come and go from the end and RemoveRow moves the rest up.
    grid.SetGridRows(3);
    for (int row = 1; row <= 3; ++row) grid.SetCell(row, 1, std::to_string(row));
    grid.RemoveRow(2);
    EXPECT_EQ(grid.GetCell(2, 1), "3");
    // Asked about the row that was last before the removal, the grid answers false.
    EXPECT_FALSE(grid.IsBlankRow(3));
    grid.SetGridRows(1);
    grid.SetGridRows(2);
    EXPECT_EQ(grid.GetCell(2, 1), "");  // a dropped row does not come back
}

TEST_F(GridCells, ClearGridEmptiesTheRowsAndKeepsHeadingsAndCount) {
    grid.SetColHeading(1, "Doc");
    grid.SetGridRows(2);
    grid.SetCell(2, 0, "2");
    grid.SetCell(2, 5, "Yes");
    grid.SetGridRow(2);
    grid.ClearGrid();
    EXPECT_EQ(grid.GridRows(), 2);
    EXPECT_EQ(grid.GetCell(2, 0), "");
    EXPECT_TRUE(grid.IsBlankRow(2));
    EXPECT_EQ(grid.GetCell(0, 1), "Doc");
    EXPECT_EQ(grid.GridRow(), 1);
}

}  // namespace
