// A grid set up as the entry page sets it up for a new note: item code and name
// open for typing, batch, unit and price locked, the unit list on column 4, Enter
// from the item cells straight to the quantity, rows added by the user. Every
// event the grid raises is written down in order.

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "platform/grid.h"
#include "platform_test_support.h"

namespace {

using platform::testing::ErrorNumberOf;
using platform::testing::SingleFocus;
using Events = std::vector<std::string>;

class NewNoteGrid : public ::testing::Test {
protected:
    static constexpr int kCols = 43;
    SingleFocus scope;
    platform::Frame page{scope, "Frame3"};
    platform::ListBox lstUOM{scope, "lstUOM"};
    platform::DTFlex grid{scope, "DTFlexDispatch"};
    std::vector<std::string> events;
    std::vector<int> codes;  // each key code as the KeyCode event saw it
    // What the AfterColUpdate handler refuses; empty refuses nothing.
    std::string refusedText;

    void SetUp() override {
        grid.Container = &page;
        lstUOM.Container = &page;
        lstUOM.Visible = false;
        grid.SetGridCols(kCols);
        for (int col : {3, 4, 5}) grid.SetColLocked(col, true);
        grid.AttachColumnList(4, lstUOM);
        grid.SetColListAuto(4, false);
        grid.VisibleCols = 6;
        grid.SetColNext(1, 6);
        grid.SetColNext(2, 6);
        grid.LastEntryCol = 5;
        grid.AllowAddRows = true;
        grid.AllowDeleteRows = true;
        grid.SetGridRows(1);

        const auto at = [](int row, int col) { return " " + std::to_string(row) + " " + std::to_string(col); };
        grid.AfterColUpdate.Connect([this, at](int row, int col, bool& cancel) {
            events.push_back("AfterColUpdate" + at(row, col));
            if (!refusedText.empty() && grid.GetCell(row, col) == refusedText) cancel = true;
        });
        grid.RowColChange.Connect([this, at](int row, int col) { events.push_back("RowColChange" + at(row, col)); });
        grid.KeyCode.Connect([this](int& code, int) { codes.push_back(code); });
        grid.Change.Connect([this](int col) { events.push_back("Change " + std::to_string(col)); });
        for (auto [event, name] : {std::pair{&grid.AtLastRow, "AtLastRow"}, std::pair{&grid.AtFirstRow, "AtFirstRow"},
                                   std::pair{&grid.AfterDelete, "AfterDelete"}})
            event->Connect([this, name] { events.push_back(name); });
    }

    // The user types into a cell and presses Enter, as a session's "cell" does.
    void EnterCell(int row, int col, const std::string& text) {
        grid.UserGoto(row, col);
        grid.UserType(text);
        grid.UserKey(13);
    }

    std::vector<std::string> TakeEvents() { return std::exchange(events, {}); }
    // The events a run of keys raises, and only those.
    std::vector<std::string> Press(std::initializer_list<int> keys) {
        TakeEvents();
        for (int key : keys) grid.UserKey(key);
        return TakeEvents();
    }
};

// The grid as a table of text: its shape, cells and headings, the blank row, and
// the refusal of an address outside it.

TEST_F(NewNoteGrid, RowNumbersAreNoEntriesAndRowsComeAndGoFromTheEnd) {
    grid.SetCell(1, 0, "1");
    EXPECT_TRUE(grid.IsBlankRow(1));
    grid.SetCell(1, kCols, "x");
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

// Enter through a new note: ColNext, LastEntryCol, the blank entry row the grid
// keeps at its end, AtLastRow, and a refused edit that keeps its editor.

// Enter from the item code to the quantity and on to the entry row is the clerk's
// own walk in the sessions; here the end of it, past the blank entry row.
TEST_F(NewNoteGrid, EnterInTheBlankEntryRowEndsAtTheLastRow) {
    EnterCell(1, 1, "A100");
    grid.UserKey(13);
    grid.UserKey(13);
    EXPECT_EQ(Press({13}), (Events{"AtLastRow"}));
    EXPECT_EQ(grid.GridRows(), 2);  // the entry row is there once, not twice
}

TEST_F(NewNoteGrid, EnterThroughTheLockedColumnsStopsAtLastEntryCol) {
    grid.SetGridRows(2);
    grid.SetCell(1, 1, "A100");
    grid.SetGridCol(3);
    EXPECT_EQ(Press({13, 13, 13}), (Events{"RowColChange 1 4", "RowColChange 1 5", "RowColChange 2 1"}));
}

TEST_F(NewNoteGrid, WithoutAddedRowsTheLastRowEndsInAtLastRow) {
    grid.AllowAddRows = false;
    grid.SetColLocked(1, true);
    grid.SetColLocked(2, true);
    grid.SetCell(1, 1, "A100");
    grid.SetGridCol(6);
    grid.UserType("3");
    EXPECT_EQ(Press({13}), (Events{"AfterColUpdate 1 6", "AtLastRow"}));
    EXPECT_EQ(grid.GridRows(), 1);
}

TEST_F(NewNoteGrid, ARefusedEditStaysOpenWithTheTextTyped) {
    refusedText = "ZZZ";
    grid.UserType("ZZZ");
    EXPECT_EQ(Press({13}), (Events{"AfterColUpdate 1 1"}));
    EXPECT_EQ(grid.GridRows(), 1);  // no entry row for a refused entry

    // The program asks again (as a save does) and is refused again.
    EXPECT_FALSE(grid.CommitEdit());
    EXPECT_TRUE(grid.Editing());

    // An arrow is refused the same way and does not move.
    EXPECT_EQ(Press({39}), (Events{"AfterColUpdate 1 1"}));
    EXPECT_EQ(grid.GridCol(), 1);

    // Escape gives up a refused edit and puts the cell back.
    grid.UserKey(27);
    EXPECT_EQ(std::tuple(grid.Editing(), grid.GetCell(1, 1)), std::tuple(false, ""));
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
    EXPECT_EQ(std::tuple(grid.GridRows(), grid.IsBlankRow(1)), std::tuple(1, true));
}

// Keys in the grid: the KeyCode event first and what a handler can do there, the
// codes typing reports, locked columns, arrows and the first cell, and moves that
// raise RowColChange only when the cell really moves; and the unit list attached to
// column 4: when it drops down, how a choice lands in the cell, when it closes.

using NewNoteGridKeys = NewNoteGrid;

TEST_F(NewNoteGridKeys, LockedColumnsTakeNoTypingAndTheUnitColumnDropsItsList) {
    grid.SetCell(1, 3, "BATCH-1");
    grid.SetGridCol(3);
    TakeEvents();
    grid.UserType("99");
    grid.UserKey(8);
    grid.SetCellEdit(1);
    EXPECT_EQ(std::tuple(grid.Editing(), grid.GetCell(1, 3)), std::tuple(false, "BATCH-1"));
    EXPECT_EQ(TakeEvents(), Events{});
    EXPECT_EQ(codes.size(), 3u);  // the keys were still reported

    grid.SetGridCol(4);
    EXPECT_FALSE(lstUOM.Visible);  // its list does not open on entering
    grid.UserKey('B');
    EXPECT_EQ(std::tuple(lstUOM.Visible, grid.Editing()), std::tuple(true, false));
    grid.SetGridCol(6);
    EXPECT_FALSE(lstUOM.Visible);
}

TEST_F(NewNoteGridKeys, ArrowsEndTheEditMoveAndStopAtTheEdges) {
    grid.SetGridRows(2);
    grid.UserType("A100");
    EXPECT_EQ(Press({40}), (Events{"AfterColUpdate 1 1", "RowColChange 2 1"}));
    EXPECT_EQ(grid.GetCell(1, 1), "A100");

    grid.UserKey(37);  // Left at column 1 of row 2: nowhere to go
    grid.UserKey(40);  // Down at the last row
    grid.UserGoto(2, 6);
    grid.UserKey(39);  // Right past the last column shown
    EXPECT_EQ(TakeEvents(), Events{"RowColChange 2 6"});

    // Back past the first cell is AtFirstRow.
    grid.UserGoto(1, 3);
    TakeEvents();
    grid.UserKey(38);
    grid.UserGoto(1, 1);
    grid.UserKey(37);
    EXPECT_EQ(TakeEvents(), (Events{"AtFirstRow", "RowColChange 1 1", "AtFirstRow"}));
}

TEST_F(NewNoteGridKeys, RowColChangeOnlyWhenTheCellMovesAndAProgramMoveDropsTheEdit) {
    grid.SetGridRows(3);
    grid.UserType("A100");
    TakeEvents();
    grid.SetGridCol(1);
    grid.SetGridRow(1);
    grid.UserGoto(1, 1);
    EXPECT_EQ(TakeEvents(), Events{});
    EXPECT_TRUE(grid.Editing());

    grid.SetGridRow(3);
    EXPECT_EQ(TakeEvents(), Events{"RowColChange 3 1"});  // no AfterColUpdate
    EXPECT_EQ(std::tuple(grid.Editing(), grid.GetCell(1, 1)), std::tuple(false, ""));
    EXPECT_EQ(ErrorNumberOf([&] { grid.SetGridRow(4); }), 381);
    EXPECT_EQ(ErrorNumberOf([&] { grid.SetGridCol(0); }), 381);
}

TEST_F(NewNoteGridKeys, AChoiceFromTheUnitListIsNoChangeAndARefusedOneKeepsTheList) {
    grid.SetGridRows(2);
    grid.SetGridCol(4);
    grid.UserKey(115);
    TakeEvents();
    EXPECT_TRUE(grid.ChooseFromList("Box"));
    // No Change: the unit was chosen, not typed by hand.
    EXPECT_EQ(TakeEvents(), Events{"AfterColUpdate 1 4"});

    // A refused choice keeps the list and the editor.
    grid.UserKey('X');
    refusedText = "Crate";
    EXPECT_FALSE(grid.ChooseFromList("Crate"));
    EXPECT_EQ(std::tuple(lstUOM.Visible, grid.EditText()), std::tuple(true, "Crate"));
    EXPECT_TRUE(grid.ChooseFromList("Box", true));
    EXPECT_TRUE(lstUOM.Visible);  // asked to stay open
}

// Deleting rows as the user does it, and the current cell when rows go.

using Codes = std::vector<std::string>;

class NewNoteGridRows : public NewNoteGrid {
protected:
    void SetUp() override {
        NewNoteGrid::SetUp();
        grid.SetGridRows(4);
        for (int row = 1; row <= 3; ++row) grid.SetCell(row, 1, "ITEM" + std::to_string(row));
        grid.BeforeDelete.Connect([this](int& row, bool& cancel) {
            events.push_back("BeforeDelete " + std::to_string(row));
            row = deleteInstead > 0 ? deleteInstead : row;
            cancel = cancelDelete;
        });
        TakeEvents();
    }
    Codes ItemCodes() {
        Codes cells;
        for (int row = 1; row <= grid.GridRows(); ++row) cells.push_back(grid.GetCell(row, 1));
        return cells;
    }
    int deleteInstead = 0;
    bool cancelDelete = false;
};

TEST_F(NewNoteGridRows, TheHandlerMayCancelOrChooseAnotherRowAndTheGridMayAllowNone) {
    cancelDelete = true;
    grid.UserDeleteRow(2);
    EXPECT_EQ(TakeEvents(), Events{"BeforeDelete 2"});
    EXPECT_EQ(grid.GridRows(), 4);

    // AfterDelete comes once the row is gone.
    int rowsSeenAfter = -1;
    grid.AfterDelete.Connect([&] { rowsSeenAfter = grid.GridRows(); });

    cancelDelete = false;
    deleteInstead = 3;
    grid.UserDeleteRow(1);
    EXPECT_EQ(ItemCodes(), (Codes{"ITEM1", "ITEM2", ""}));
    EXPECT_EQ(rowsSeenAfter, 3);

    deleteInstead = 0;
    grid.UserDeleteRow(3);  // the entry row: a new one is offered
    EXPECT_EQ(std::tuple(grid.GridRows(), grid.IsBlankRow(3)), std::tuple(3, true));

    grid.AllowDeleteRows = false;
    TakeEvents();
    grid.UserDeleteRow(1);
    EXPECT_EQ(events, Events{});
    EXPECT_EQ(grid.GridRows(), 3);
}

TEST_F(NewNoteGridRows, TheEditFollowsItsRowWhenRowsAboveGoAndDiesWithItsOwn) {
    grid.SetGridRow(3);
    grid.UserType("7");
    grid.RemoveRow(1);
    EXPECT_EQ(grid.GridRow(), 2);
    grid.UserKey(13);
    EXPECT_EQ(grid.GetCell(2, 1), "7");

    grid.UserGoto(1, 1);
    grid.UserType("CHANGED");
    TakeEvents();
    grid.UserDeleteRow(1);
    EXPECT_FALSE(grid.Editing());
    EXPECT_EQ(TakeEvents(), (Events{"BeforeDelete 1", "AfterDelete"}));  // no check of the text given up
    EXPECT_EQ(ItemCodes(), (Codes{"7", ""}));
}

}  // namespace
