// Opening the screen in each mode, the grid's columns, and closing it.
#include "platform/convert.h"
#include "screen_fixture.h"

namespace screen_test {
namespace {

using screen::Zuro_frmDispatch_Dispatch;

class FormSpine : public ScreenTest {};

TEST_F(FormSpine, TheGridHasItsFortyThreeColumns) {
    Zuro_frmDispatch_Dispatch& f = Open(2);
    auto& grid = f.DTFlexDispatch;
    ASSERT_EQ(grid.GridCols(), 43);
    // The clerk sees six columns, in twips; the rest are the rows' hidden memory.
    const int kShownWidths[] = {1200, 2500, 1000, 800, 1200, 1000};
    for (int col = 1; col <= 43; ++col) EXPECT_EQ(grid.ColWidth(col), col <= 6 ? kShownWidths[col - 1] : 0) << col;
    EXPECT_EQ(
        std::tuple(grid.ColLocked(grid::colBatch), grid.ColLocked(grid::colUOM), grid.ColLocked(grid::colSalePrice),
                   grid.ColLocked(grid::colQuantity), grid.ColInputClass(grid::colQuantity),
                   grid.ColNext(grid::colItemName), grid.ColListAuto(grid::colUOM)),
        std::tuple(true, true, true, false, 4, grid::colQuantity, false));
}

TEST_F(FormSpine, EachModeTitlesItsFrameAndSetsUpItsGrid) {
    using Expected = std::tuple<long, const char*, bool, int, bool, bool>;
    for (const auto& [mode, title, itemsLocked, lastEntryCol, addRows, deleteRows] :
         {Expected{1, "Dispatch from Sales Confirmation", true, 5, false, true},
          Expected{2, "Generate New Dispatch", false, 5, true, true},
          Expected{3, "Dispatch from Purchase Order", true, 5, false, true},
          Expected{6, "Dispatch from Sales Confirmation", true, 5, false, true},
          Expected{7, "Dispatch Amendment", false, 2, true, true}, Expected{4, "View Dispatch", false, 0, false, false},
          Expected{5, "Cancel Dispatch", false, 0, false, false}}) {
        SCOPED_TRACE("mode " + std::to_string(mode));
        Zuro_frmDispatch_Dispatch& f = Open(mode);
        EXPECT_EQ(std::tuple(f.FieldText("objLink"), f.DTFlexDispatch.ColLocked(grid::colItemCode),
                             f.DTFlexDispatch.ColLocked(grid::colItemName), f.DTFlexDispatch.LastEntryCol,
                             f.DTFlexDispatch.AllowAddRows, f.DTFlexDispatch.AllowDeleteRows),
                  std::tuple(title, itemsLocked, itemsLocked, lastEntryCol, addRows, deleteRows));
        f.Close();
    }
}

TEST_F(FormSpine, ClosingWithALineAsksAndYesKeepsTheScreen) {
    Zuro_frmDispatch_Dispatch& f = Open(2);
    f.DTFlexDispatch.SetCell(1, grid::colItemCode, "ITM001");
    f.cmdSave.Enabled = false;
    answers.Queue("ConfirmSaveOnExit", {"true"});
    EXPECT_TRUE(f.Close());  // refused, even with Save disabled
    EXPECT_TRUE(f.IsLoaded());
    ASSERT_TRUE(f.objLink);
    EXPECT_EQ(f.objLink->Staus(), 1);

    answers.Queue("ConfirmSaveOnExit", {"false"});
    EXPECT_FALSE(f.Close());
    EXPECT_FALSE(f.IsLoaded());
}

// Closing asks nothing with only the blank row, nor in View and Cancel.
TEST_F(FormSpine, ClosingWithoutLinesOrInViewAndCancelAsksNothing) {
    EXPECT_FALSE(Open(2).Close());
    EXPECT_FALSE(form->IsLoaded());
    for (long mode : {4L, 5L}) {
        Zuro_frmDispatch_Dispatch& f = Open(mode);
        f.DTFlexDispatch.SetGridRows(2);
        f.DTFlexDispatch.SetCell(1, grid::colItemCode, "ITM001");
        EXPECT_FALSE(f.Close());
    }
    EXPECT_FALSE(TranscriptHas("ConfirmSaveOnExit"));
}

TEST_F(FormSpine, TheMemoButtonKeepsWhatTheUserAccepted) {
    Zuro_frmDispatch_Dispatch& f = Open(2);
    answers.Queue("ShowMemoDialog", {"first", "second", "third", "ok"});
    f.cmdMemo.Click.Raise();
    EXPECT_EQ(std::tuple(f.szMemo1, f.szMemo3, LastStatus()),
              std::tuple("first", "third", "Memo fields added successfully"));
    EXPECT_EQ(f.ActiveControl(), &f.cmdSave);

    answers.Queue("ShowMemoDialog", {"changed", "", "", "cancel"});
    f.cmdMemo.Click.Raise();
    EXPECT_EQ(f.szMemo1, "first");
}

TEST_F(FormSpine, AnErrorInARoutineIsLoggedWithItsPrefix) {
    expectedErrors = 1;
    Open(2);
    const int before = Errors();
    Scalar("ALTER TABLE Customer RENAME TO CustomerGone");
    EXPECT_EQ(form->GetCreditLimit("C001"), 0);
    EXPECT_EQ(Errors(), before + 1);
    EXPECT_TRUE(TranscriptHas("Dispatch: GetCreditLimit - ")) << ErrorLines();
}

}  // namespace
}  // namespace screen_test
