// Keys in the grid: the KeyCode event first and what a handler can do there, the
// codes typing reports, locked columns, arrows and the first cell, and moves that
// raise RowColChange only when the cell really moves; and the unit list attached to
// column 4: when it drops down, how a choice lands in the cell, when it closes.
#include "grid_new_note.h"

namespace {

using grid_test::ErrorNumberOf;
using grid_test::NewNoteGrid;
using Events = std::vector<std::string>;

class NewNoteGridKeys : public NewNoteGrid {
protected:
    std::vector<int> codes;

    void SetUp() override {
        NewNoteGrid::SetUp();
        grid.KeyCode.Connect([this](int& code, int) { codes.push_back(code); });
    }
};

TEST_F(NewNoteGridKeys, TypingReportsEachCharactersKeyCodeAndOneChange) {
    grid.SetGridCol(6);
    TakeEvents();
    grid.UserType("aZ9*/.- ");
    EXPECT_EQ(codes, (std::vector<int>{65, 90, 57, 106, 111, 190, 189, 32}));
    EXPECT_EQ(grid.EditText(), "aZ9*/.- ");
    EXPECT_EQ(TakeEvents(), Events{"Change 6"});
}

TEST_F(NewNoteGridKeys, ASwallowedKeyNeverReachesTheEditorAndAMoveInTheHandlerTakesTheKeysPlace) {
    // As the quantity cell does with the slash keys: they change the unit instead.
    grid.KeyCode.Connect([](int& code, int) {
        if (code == 111 || code == 191) code = 0;
    });
    grid.SetGridCol(6);
    grid.UserType("2/3");
    grid.UserKey(191);
    EXPECT_EQ(grid.EditText(), "23");

    // Right in an empty item code goes to the item name, not one further.
    grid.KeyCode.Connect([this](int& code, int) {
        if (code == 39 && grid.GridCol() == 1 && grid.GetCell(grid.GridRow(), 1).empty()) grid.SetGridCol(2);
    });
    grid.UserGoto(1, 1);
    grid.UserKey(39);
    EXPECT_EQ(grid.GridCol(), 2);
}

TEST_F(NewNoteGridKeys, ARowThatSwallowsAllButMovesKeepsItsArrowsAndEnter) {
    // A free row: only Enter and the arrows get through.
    grid.SetCell(1, 1, "FREE1");
    grid.SetCell(1, 15, "1");
    grid.KeyCode.Connect([this](int& code, int) {
        const bool move = code == 13 || (code >= 37 && code <= 40);
        if (grid.GetCell(grid.GridRow(), 15) == "1" && !move) code = 0;
    });
    TakeEvents();
    grid.UserType("X");
    grid.UserKey(8);
    grid.UserType("");
    EXPECT_FALSE(grid.Editing());
    EXPECT_EQ(grid.GetCell(1, 1), "FREE1");
    EXPECT_EQ(TakeEvents(), Events{});

    grid.UserKey(39);
    grid.UserKey(13);
    EXPECT_EQ(TakeEvents(), (Events{"RowColChange 1 2", "RowColChange 1 6"}));
}

TEST_F(NewNoteGridKeys, LockedColumnsTakeNoTypingAndTheUnitColumnDropsItsList) {
    grid.SetCell(1, 3, "BATCH-1");
    grid.SetGridCol(3);
    TakeEvents();
    grid.UserType("99");
    grid.UserKey(8);
    grid.SetCellEdit(1);
    EXPECT_FALSE(grid.Editing());
    EXPECT_EQ(grid.GetCell(1, 3), "BATCH-1");
    EXPECT_EQ(TakeEvents(), Events{});
    EXPECT_EQ(codes.size(), 3u);  // the keys were still reported

    grid.SetGridCol(4);
    EXPECT_FALSE(lstUOM.Visible);  // its list does not open on entering
    grid.UserKey('B');
    EXPECT_TRUE(lstUOM.Visible);
    EXPECT_FALSE(grid.Editing());
    grid.SetGridCol(6);
    EXPECT_FALSE(lstUOM.Visible);
}

TEST_F(NewNoteGridKeys, KeysTypeAndBackspaceTakesTheLastCharacterBack) {
    grid.UserKey('A');
    grid.UserKey(56, 1);   // Shift+8
    grid.UserKey('C', 2);  // Ctrl+C types nothing
    EXPECT_EQ(grid.EditText(), "a*");
    grid.UserKey(8);
    EXPECT_EQ(grid.EditText(), "a");

    // On a cell with no editor open, Backspace edits the cell's own text.
    grid.SetCell(1, 2, "Café");
    grid.SetGridCol(2);
    grid.UserKey(8);
    EXPECT_EQ(grid.EditText(), "Caf");
    EXPECT_EQ(grid.GetCell(1, 2), "Café");
}

TEST_F(NewNoteGridKeys, ArrowsEndTheEditMoveAndStopAtTheEdges) {
    grid.SetGridRows(2);
    grid.UserType("A100");
    TakeEvents();
    grid.UserKey(40);
    EXPECT_EQ(TakeEvents(), (Events{"AfterColUpdate 1 1", "RowColChange 2 1"}));
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
    EXPECT_FALSE(grid.Editing());
    EXPECT_EQ(grid.GetCell(1, 1), "");
    EXPECT_EQ(ErrorNumberOf([&] { grid.SetGridRow(4); }), 381);
    EXPECT_EQ(ErrorNumberOf([&] { grid.SetGridCol(0); }), 381);
}

TEST_F(NewNoteGridKeys, AGridOnADisabledPageTakesNoKeys) {
    page.Enabled = false;
    grid.UserType("A");
    grid.UserKey(13);
    EXPECT_TRUE(codes.empty());
    EXPECT_EQ(events, Events{});
}

TEST_F(NewNoteGridKeys, AChoiceFromTheUnitListLandsAsTypedAndClosesTheList) {
    grid.SetGridRows(2);
    grid.SetGridCol(4);
    grid.UserKey(115);  // F4 drops the list
    ASSERT_TRUE(lstUOM.Visible);
    TakeEvents();
    EXPECT_TRUE(grid.ChooseFromList("Box"));
    EXPECT_EQ(grid.GetCell(1, 4), "Box");
    EXPECT_FALSE(lstUOM.Visible);
    EXPECT_FALSE(grid.Editing());
    // No Change: the unit was chosen, not typed by hand.
    EXPECT_EQ(TakeEvents(), Events{"AfterColUpdate 1 4"});
    EXPECT_EQ(grid.GridCol(), 4);

    // A refused choice keeps the list and the editor.
    grid.UserKey('X');
    refusedText = "Crate";
    EXPECT_FALSE(grid.ChooseFromList("Crate"));
    EXPECT_TRUE(lstUOM.Visible);
    EXPECT_EQ(grid.EditText(), "Crate");
    EXPECT_TRUE(grid.ChooseFromList("Box", true));
    EXPECT_TRUE(lstUOM.Visible);  // asked to stay open
}

TEST_F(NewNoteGridKeys, AnAutomaticListOpensOnEnteringItsColumnAndAShownListIsTheProgramsToHide) {
    grid.SetGridRows(2);
    grid.SetColListAuto(4, true);
    grid.SetGridCol(4);
    EXPECT_TRUE(lstUOM.Visible);
    grid.UserKey(27);
    EXPECT_FALSE(lstUOM.Visible);
    grid.SetGridCol(5);
    grid.UserGoto(2, 4);
    EXPECT_TRUE(lstUOM.Visible);
    grid.UserGoto(2, 6);
    EXPECT_FALSE(lstUOM.Visible);

    lstUOM.Visible = true;
    grid.SetGridCol(5);
    EXPECT_TRUE(lstUOM.Visible);
}

}  // namespace
