// Enter through a new note: ColNext, LastEntryCol, the blank entry row the grid
// keeps at its end, AtLastRow, and a refused edit that keeps its editor.
#include "grid_new_note.h"

namespace {

using grid_test::NewNoteGrid;
using Events = std::vector<std::string>;

TEST_F(NewNoteGrid, EnterFromTheItemCodeGoesToTheQuantityAndOffersANewRow) {
    grid.UserType("A100");
    EXPECT_TRUE(grid.Editing());
    EXPECT_EQ(grid.EditText(), "A100");
    EXPECT_EQ(grid.GetCell(1, 1), "");  // not in the cell before the edit ends
    TakeEvents();

    grid.UserKey(13);
    EXPECT_EQ(TakeEvents(), (Events{"AfterColUpdate 1 1", "RowColChange 1 6"}));
    EXPECT_EQ(grid.GetCell(1, 1), "A100");
    EXPECT_FALSE(grid.Editing());
    EXPECT_EQ(grid.GridRows(), 2);
    EXPECT_TRUE(grid.IsBlankRow(2));

    grid.UserType("12");
    grid.UserKey(13);
    EXPECT_EQ(TakeEvents(), (Events{"Change 6", "AfterColUpdate 1 6", "RowColChange 2 1"}));
    EXPECT_EQ(grid.GetCell(1, 6), "12");
    EXPECT_EQ(grid.GridRows(), 2);  // the entry row is there once, not twice
}

TEST_F(NewNoteGrid, EnterInTheBlankEntryRowEndsAtTheLastRow) {
    EnterCell(1, 1, "A100");
    grid.UserKey(13);  // quantity left empty: on to the entry row
    ASSERT_EQ(grid.GridRow(), 2);
    TakeEvents();

    grid.UserKey(13);
    EXPECT_EQ(TakeEvents(), (Events{"RowColChange 2 6"}));
    grid.UserKey(13);
    EXPECT_EQ(TakeEvents(), (Events{"AtLastRow"}));
    EXPECT_EQ(grid.GridRows(), 2);
    EXPECT_EQ(grid.GridRow(), 2);
}

TEST_F(NewNoteGrid, EnterThroughTheLockedColumnsStopsAtLastEntryCol) {
    grid.SetGridRows(2);
    grid.SetCell(1, 1, "A100");
    grid.SetGridCol(3);
    TakeEvents();
    grid.UserKey(13);
    grid.UserKey(13);
    grid.UserKey(13);
    EXPECT_EQ(TakeEvents(), (Events{"RowColChange 1 4", "RowColChange 1 5", "RowColChange 2 1"}));
}

TEST_F(NewNoteGrid, WithoutAddedRowsTheLastRowEndsInAtLastRowAndWithoutLastEntryColAtTheShownColumns) {
    grid.AllowAddRows = false;
    grid.SetColLocked(1, true);
    grid.SetColLocked(2, true);
    grid.SetCell(1, 1, "A100");
    grid.SetGridCol(6);
    grid.UserType("3");
    TakeEvents();
    grid.UserKey(13);
    EXPECT_EQ(TakeEvents(), (Events{"AfterColUpdate 1 6", "AtLastRow"}));
    EXPECT_EQ(grid.GridRows(), 1);

    // Without LastEntryCol, Enter walks the shown columns only.
    grid.LastEntryCol = 0;
    grid.SetGridRows(2);
    grid.SetGridCol(6);
    TakeEvents();
    grid.UserKey(13);
    EXPECT_EQ(TakeEvents(), (Events{"RowColChange 2 1"}));
}

TEST_F(NewNoteGrid, ARefusedEditStaysOpenWithTheTextTyped) {
    refusedText = "ZZZ";
    grid.UserType("ZZZ");
    TakeEvents();

    grid.UserKey(13);
    EXPECT_EQ(TakeEvents(), (Events{"AfterColUpdate 1 1"}));
    EXPECT_TRUE(grid.Editing());
    EXPECT_EQ(grid.EditText(), "ZZZ");
    EXPECT_EQ(grid.GridCol(), 1);
    EXPECT_EQ(grid.GridRows(), 1);  // no entry row for a refused entry

    // The program asks again (as a save does) and is refused again.
    EXPECT_FALSE(grid.CommitEdit());
    EXPECT_TRUE(grid.Editing());

    // An arrow is refused the same way and does not move.
    TakeEvents();
    grid.UserKey(39);
    EXPECT_EQ(TakeEvents(), (Events{"AfterColUpdate 1 1"}));
    EXPECT_EQ(grid.GridCol(), 1);

    // Typing anew replaces the refused text, and the edit then goes through.
    grid.UserType("A100");
    EXPECT_EQ(grid.EditText(), "A100");
    grid.UserKey(13);
    EXPECT_EQ(grid.GetCell(1, 1), "A100");
    EXPECT_EQ(grid.GridCol(), 6);

    // Escape gives up a refused edit and puts the cell back.
    grid.UserGoto(1, 1);
    grid.UserType("ZZZ");
    grid.UserKey(13);
    ASSERT_TRUE(grid.Editing());
    grid.UserKey(27);
    EXPECT_FALSE(grid.Editing());
    EXPECT_EQ(grid.GetCell(1, 1), "A100");
}

TEST_F(NewNoteGrid, AfterColUpdateIsOnlyForTheFirstSixColumns) {
    grid.SetGridCol(7);
    grid.SetCellEdit(1);
    ASSERT_TRUE(grid.Editing());
    grid.UserType("1");
    TakeEvents();
    EXPECT_TRUE(grid.CommitEdit());
    EXPECT_EQ(TakeEvents(), Events{});
    EXPECT_EQ(grid.GetCell(1, 7), "1");
}

TEST_F(NewNoteGrid, AHandlerThatRemovesTheEditedRowLeavesTheEntryRowInPlace) {
    // An emptied item cell makes the handler take the row away, without refusing.
    grid.AfterColUpdate.Connect([this](int row, int col, bool&) {
        if (col == 1 && grid.GetCell(row, 1).empty()) grid.RemoveRow(row);
    });
    EnterCell(1, 1, "A100");
    grid.UserKey(13);  // to the entry row
    grid.UserGoto(1, 1);
    grid.UserType("");
    grid.UserKey(13);
    EXPECT_EQ(grid.GridRows(), 1);
    EXPECT_TRUE(grid.IsBlankRow(1));
}

}  // namespace
