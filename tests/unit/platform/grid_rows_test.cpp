// Deleting rows as the user does it, and the current cell when rows go.
#include "grid_new_note.h"

namespace {

using grid_test::NewNoteGrid;
using Events = std::vector<std::string>;
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
        Codes codes;
        for (int row = 1; row <= grid.GridRows(); ++row) codes.push_back(grid.GetCell(row, 1));
        return codes;
    }
    int deleteInstead = 0;
    bool cancelDelete = false;
};

TEST_F(NewNoteGridRows, DeleteAsksFirstThenRemovesThenTells) {
    int rowsSeenAfter = -1;
    grid.AfterDelete.Connect([&] { rowsSeenAfter = grid.GridRows(); });
    grid.UserDeleteRow(2);
    EXPECT_EQ(TakeEvents(), (Events{"BeforeDelete 2", "AfterDelete"}));
    EXPECT_EQ(ItemCodes(), (Codes{"ITEM1", "ITEM3", ""}));
    EXPECT_EQ(rowsSeenAfter, 3);
}

TEST_F(NewNoteGridRows, TheHandlerMayCancelOrChooseAnotherRowAndTheGridMayAllowNone) {
    cancelDelete = true;
    grid.UserDeleteRow(2);
    EXPECT_EQ(TakeEvents(), Events{"BeforeDelete 2"});
    EXPECT_EQ(grid.GridRows(), 4);

    cancelDelete = false;
    deleteInstead = 3;
    grid.UserDeleteRow(1);
    EXPECT_EQ(ItemCodes(), (Codes{"ITEM1", "ITEM2", ""}));

    deleteInstead = 0;
    grid.UserDeleteRow(3);  // the entry row: a new one is offered
    EXPECT_EQ(grid.GridRows(), 3);
    EXPECT_TRUE(grid.IsBlankRow(3));

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
