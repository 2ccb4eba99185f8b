// The grid's keys and rows: free rows that cannot be typed in, deleting a line with
// its free rows, the links that close up behind it, and the grid's two ends.
#include "host/auto_list.h"
#include "screen_fixture.h"

namespace screen_test {
namespace {

using namespace grid;

class GridKeysRows : public ScreenTest {
protected:
    screen::Zuro_frmDispatch_Dispatch& OpenNote() {
        Open(2);
        // Until the form wires the grid itself.
        if (!form->Routines().Find("GetMaxSchemeGridID")) form->WireGridKeysAndRows();
        return *form;
    }

    struct Line {
        std::string code, serial, itemCheck;
        bool free = false;
    };
    // The lines from row 1 down, then the blank entry row.
    void Lines(const std::vector<Line>& lines) {
        auto& grid = form->DTFlexDispatch;
        grid.SetGridRows(0);
        grid.SetGridRows(static_cast<int>(lines.size()) + 1);
        int row = 1;
        for (const auto& line : lines) {
            grid.SetCell(row, colItemCode, line.code);
            grid.SetCell(row, colItemName, line.code + " name");
            grid.SetCell(row, colQuantity, "5");
            grid.SetCell(row, colSerialNo, line.serial);
            grid.SetCell(row, colItemCheck, line.itemCheck);
            grid.SetCell(row, colFreeItem, line.free ? "1" : "0");
            grid.SetCell(row, colFreeRow, line.free ? "1" : "0");
            ++row;
        }
    }
    // A key through the grid's key handler; what is left of it, 0 when it was eaten.
    int KeyCode(int key, int shift = 0) {
        form->DTFlexDispatch_KeyCode(key, shift);
        return key;
    }
    // "code:itemCheck" of each row but the blank one, joined with blanks.
    std::string Rows() const {
        const auto& grid = form->DTFlexDispatch;
        std::string rows;
        for (int row = 1; row <= grid.GridRows(); ++row) {
            if (grid.IsBlankRow(row)) continue;
            rows += (rows.empty() ? "" : " ") + grid.GetCell(row, colItemCode) + ":" + grid.GetCell(row, colItemCheck);
        }
        return rows;
    }
};

// The next link is one above the highest (a link list read by the number conversion,
// "1,2" as 12); closing a gap brings down only the links above it.
TEST_F(GridKeysRows, TheNextLinkAndTheGapThatCloses) {
    const std::vector<std::tuple<std::vector<Line>, long, int, std::string, long>> cases = {
        {{{"A", "1", "3"}, {"B", "2", ""}, {"C", "3", "5"}, {"D", "4", "4"}}, 6, 4, "A:3 B: C:4 D:4", 5},
        {{{"A", "1", "3"}, {"SF", "3", "1,2", true}}, 13, 3, "A:3 SF:11", 12},
        {{}, 1, 0, "", 1},
    };
    OpenNote();
    for (const auto& [lines, nextBefore, gap, after, nextAfter] : cases) {
        SCOPED_TRACE(nextBefore);
        Lines(lines);
        long next = 99;
        form->GetMaxSchemeGridID(next);
        EXPECT_EQ(next, nextBefore);
        if (gap) form->AdjustRow(gap);
        EXPECT_EQ(Rows(), after);
        form->GetMaxSchemeGridID(next);
        EXPECT_EQ(next, nextAfter);
    }
}

TEST_F(GridKeysRows, AFreeRowTakesOnlyTheMovingKeys) {
    auto& f = OpenNote();
    Lines({{"FD001", "1", "2"}, {"FD001", "2", "1", true}});
    auto& grid = f.DTFlexDispatch;
    grid.UserGoto(2, colItemCode);
    grid.UserType("X");
    EXPECT_EQ(std::tuple(grid.Editing(), grid.GetCell(2, colItemCode)), std::tuple(false, "FD001"));

    for (int key : {8, 46, 32, 191}) EXPECT_EQ(KeyCode(key), 0) << "key " << key;  // Backspace, Delete, Space, slash
    grid.UserKey(38);                                                              // Up still moves
    EXPECT_EQ(grid.GridRow(), 1);

    // The same key on the primary row reaches the grid.
    EXPECT_EQ(KeyCode('X'), 'X');
}

TEST_F(GridKeysRows, SpaceInTheQuantityShowsTheItemsSchemesWithTheStoredNoteOfAnAmendmentOnly) {
    auto& f = OpenNote();
    Lines({{"FD001", "1", ""}, {"FD002", "2", ""}});
    f.txtCustomer.Tag = "C005";
    f.nDispatchID = 42;
    f.DTFlexDispatch.UserGoto(2, colQuantity);
    KeyCode(32);
    EXPECT_TRUE(TranscriptHas("ShowItemSchemes \"FD002\" 2026-11-22 \"C005\" [")) << ErrorLines();
    EXPECT_EQ(std::tuple(TranscriptHas("] 0 -> ok"), f.bSchemeViewKey), std::tuple(true, false));

    f.nMode = screen::mode::Amendment;
    f.DTFlexDispatch.SetCell(2, colQuantity, "0");
    KeyCode(32);
    EXPECT_TRUE(TranscriptHas("\"C005\" [] 42 -> ok")) << "no quantity, no total";
}

TEST_F(GridKeysRows, PastingLeavesTheItemListToTheUser) {
    auto& f = OpenNote();
    Lines({});
    f.DTFlexDispatch.UserGoto(1, colItemCode);
    KeyCode('V', 2);  // Ctrl+V
    auto* list = dynamic_cast<host::PlainAutoList*>(f.objItemList.get());
    ASSERT_NE(list, nullptr);
    EXPECT_FALSE(list->ProgramWriting());
    EXPECT_EQ(Rows(), "") << "the copy's lines are gone by the time of the paste";
}

TEST_F(GridKeysRows, SlashInTheQuantityNeverLandsInIt) {
    auto& f = OpenNote();
    Lines({{"FD001", "1", ""}});
    auto& grid = f.DTFlexDispatch;
    grid.SetCell(1, colPrevQty, "5");
    grid.UserGoto(1, colQuantity);
    for (int key : {111, 191}) EXPECT_EQ(KeyCode(key), 0) << "key " << key;
    EXPECT_EQ(grid.GetCell(1, colPrevQty), "");
    EXPECT_EQ(grid.GetCell(1, colQuantity).find('/'), std::string::npos);
}

// Deleting a primary takes its free rows; with other group free items the links above
// its own close up by one, without them they stay. A free row above its primary does not
// misdirect the deletion.
TEST_F(GridKeysRows, DeletingAPrimaryTakesItsFreeRows) {
    using Case = std::tuple<const char*, std::vector<Line>, int, std::string>;
    const std::vector<Case> cases = {
        {"true", {{"A", "1", "3"}, {"B", "2", "4"}, {"AF", "3", "1", true}, {"BF", "4", "2", true}}, 1, "B:3 BF:2"},
        {"true", {{"X", "1", ""}, {"AF", "3", "2", true}, {"A", "2", "3"}, {"Y", "4", ""}}, 3, "X: Y:"},
        {"false", {{"A", "1", "3"}, {"B", "2", "4"}, {"AF", "3", "1", true}, {"BF", "4", "2", true}}, 1, "B:4 BF:2"},
    };
    for (const auto& [ocg, lines, row, after] : cases) {
        SCOPED_TRACE(after);
        settings.Set("GetOCGEnabled", ocg);
        OpenNote();
        Lines(lines);
        form->DTFlexDispatch.UserDeleteRow(row);
        EXPECT_EQ(Rows(), after);
    }
}

TEST_F(GridKeysRows, DeletingAFreeRowLeavesThePrimaries) {
    settings.Set("GetOCGEnabled", "true");
    OpenNote();
    Lines({{"A", "1", "2"}, {"AF", "2", "1", true}});
    form->DTFlexDispatch.SetCell(1, colPrevQty, "5");
    form->DTFlexDispatch.UserDeleteRow(2);
    EXPECT_EQ(Rows(), "A:2");
    // The free row's link named row 1, and its previous quantity is forgotten.
    EXPECT_EQ(form->DTFlexDispatch.GetCell(1, colPrevQty), "");

    // A link may name the grid's last row, here the blank entry row.
    Lines({{"A", "1", ""}, {"AF", "2", "3", true}});
    form->DTFlexDispatch.SetCell(3, colPrevQty, "5");
    form->DTFlexDispatch.UserDeleteRow(2);
    EXPECT_EQ(form->DTFlexDispatch.GetCell(2, colPrevQty), "");
}

TEST_F(GridKeysRows, CheckSchemeGathersTheSpecialCategoryAndOwnFreeRows) {
    OpenNote();
    Lines({{"A", "1", "4"}, {"B", "2", ""}, {"SF", "3", "1,2", true}, {"AF", "4", "1", true}});
    auto& grid = form->DTFlexDispatch;
    grid.SetCell(1, colSplCategoryScheme, "1");
    grid.SetCell(1, colSplCatSerial, "3,");
    // Kept row: only the special category free row goes, its own link stays.
    form->CheckScheme(1, false, grid);
    EXPECT_EQ(std::tuple(Rows(), grid.GetCell(1, colSplCatSerial)), std::tuple("A:4 B: AF:1", ""));

    form->CheckScheme(1, true, grid);
    EXPECT_EQ(Rows(), "A: B:");
    // Rows outside the lines, the headings included, are left alone.
    form->CheckScheme(0, true, grid);
    form->CheckScheme(99, true, grid);
    EXPECT_EQ(grid.GetCell(0, colItemCheck), "Item Check");
}

TEST_F(GridKeysRows, TheLastRowDeletedForgetsTheSchemeRuns) {
    auto& f = OpenNote();
    Lines({{"A", "1", ""}});
    f.arrPrevSKU.push_back(
        {platform::Value("A"), platform::Value(5.0), platform::Value(0.0), platform::Value(1), platform::Value(1)});
    f.arrCurrSKU = f.arrPrevSKU;
    f.nPrevSKUCount = 1;
    f.nCurrSKUCount = 1;
    f.nPrimaryRowCount = 1;
    f.bSplCatRefused = true;
    f.bSplCatFreeMissing = true;
    f.txtCustomer.Tag = "C003";
    f.DTFlexDispatch.UserDeleteRow(1);
    ASSERT_EQ(f.DTFlexDispatch.GridRows(), 1);
    EXPECT_EQ(std::tuple(f.arrPrevSKU.empty(), f.arrCurrSKU.empty(), f.nPrevSKUCount, f.nCurrSKUCount,
                         f.nPrimaryRowCount, f.bSplCatRefused, f.bSplCatFreeMissing, f.szSchemeCustomer),
              std::tuple(true, true, 0, 0, 0, false, false, "C003"));
}

TEST_F(GridKeysRows, PastTheLastRowOfLinesSaveTakesTheFocus) {
    auto& f = OpenNote();
    // Nothing entered is refused in the grid keys session.
    Lines({{"A", "1", ""}});
    f.cmdSave.Enabled = true;
    f.cmdSave.Visible = true;
    f.DTFlexDispatch_AtLastRow();
    EXPECT_EQ(f.ActiveControl(), &f.cmdSave);
}

TEST_F(GridKeysRows, TheSchemeCustomerComesFromTheLabelOnlyForAConfirmation) {
    auto& f = OpenNote();
    f.txtCustomer.Tag = "C001";
    f.lblCustomerId.Caption = "C009";
    EXPECT_EQ(f.GetCustomerForScheme(), "C001");
    f.nMode = 1;
    EXPECT_EQ(f.GetCustomerForScheme(), "C009");
}

}  // namespace
}  // namespace screen_test
