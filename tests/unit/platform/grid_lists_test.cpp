// The unit list attached to column 4: when it drops down, how a choice lands in
// the cell, when it closes.
#include "grid_new_note.h"

namespace {

using Events = std::vector<std::string>;

class NewNoteGridList : public grid_test::NewNoteGrid {
protected:
    void SetUp() override {
        NewNoteGrid::SetUp();
        grid.SetGridRows(2);
        TakeEvents();
    }
};

TEST_F(NewNoteGridList, AChoiceFromTheListLandsAsTypedAndClosesTheList) {
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
}

TEST_F(NewNoteGridList, ARefusedChoiceKeepsTheListAndTheEditor) {
    grid.SetGridCol(4);
    grid.UserKey('X');
    refusedText = "Crate";
    EXPECT_FALSE(grid.ChooseFromList("Crate"));
    EXPECT_TRUE(lstUOM.Visible);
    EXPECT_EQ(grid.EditText(), "Crate");
    EXPECT_TRUE(grid.ChooseFromList("Box", true));
    EXPECT_TRUE(lstUOM.Visible);  // asked to stay open
}

TEST_F(NewNoteGridList, AnAutomaticListOpensOnEnteringItsColumn) {
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
}

TEST_F(NewNoteGridList, AListThatTheProgramShowedIsTheProgramsToHide) {
    lstUOM.Visible = true;
    grid.SetGridCol(6);
    EXPECT_TRUE(lstUOM.Visible);
}

}  // namespace
