// Special category schemes: the totals of all the scheme's lines, the free rows they
// share, the pass rebuilt only when something changed, its refusal, and the
// clearing of its free rows with the drift the screen has always had.
#include "platform/recording_connection.h"
#include "schemes_fixture.h"

namespace screen_test {
namespace {

using namespace grid;

class SpecialCategory : public SchemeNote {
protected:
    void SetUp() override {
        recorder = std::make_shared<platform::RecordingConnection>(database);
        UseConnection(recorder);
        SchemeNote::SetUp();
        // 20 together of FD003 (at least 5) and PC003 (at least 1): one free for every 10.
        AddScheme(911, 2, {{"FD003", 5}, {"PC003", 1}}, 20, 10, 1, "PM002");
    }
    // The text argument of the last call of a procedure.
    std::string LastArgument(const std::string& procedure, std::size_t position) {
        std::string text;
        for (const auto& call : recorder->Calls())
            if (call.text == procedure) text = platform::ToText(call.parameters.at(position).value);
        return text;
    }
    std::shared_ptr<platform::RecordingConnection> recorder;
};

TEST_F(SpecialCategory, TheSchemesLinesShareItsFreeRows) {
    Line("FD003", 12, 10);
    Line("PC003", 9, 20);
    Line("FD003", 3, 10);
    Choose("PM002");
    Click();
    ASSERT_EQ(Errors(), 0) << ErrorLines();

    // One element a line, each with its own value: the running value is cleared
    // after every line.
    EXPECT_EQ(LastArgument("Zuro_SP_isAllItemsexistsMinQty", 1), "FD003,12,120|FD003,3,30|PC003,9,180");
    EXPECT_EQ(LastArgument("Zuro_sp_GetDispatch_SchSlabDetails", 4), "0");

    const auto free = FreeRowsOf("PM002");
    ASSERT_EQ(free.size(), 1u);
    const std::string serial = Cell(free[0], colSerialNo);
    // 24 together: two steps of 10.
    EXPECT_EQ(Row(free[0], {colQuantity, colItemCheck, colSplCatSerial, colMultiSpecialCatSchemeDetail}),
              "2||1,3,2|911|9111|0|0");
    for (int row : {1, 2, 3})
        EXPECT_EQ(Row(row, {colSplCatSchemeID, colSplCatSerial, colSplCategoryScheme}), "911|" + serial + ",|1") << row;

    // Nothing changed: the pass is not run again.
    const auto before = Rows();
    Click();
    EXPECT_EQ(std::tuple(Rows(), FreeItemDialogs()), std::tuple(before, 1));

    // A change rebuilds the pass from nothing: still one free row, now of three.
    SetQuantity(2, 20);
    Choose("PM002");
    Click();
    ASSERT_EQ(FreeRowsOf("PM002").size(), 1u);
    EXPECT_EQ(Cell(FreeRowsOf("PM002")[0], colQuantity), "3");
    ExpectLinksHold();

    // Below the slab: the free row goes. A line taken from free stock adds nothing.
    SetQuantity(2, 1);
    SetQuantity(1, 5);
    SetQuantity(3, 1);
    form->DTFlexDispatch.SetCell(Line("FD003", 20), colFreeRow, "1");
    Click();
    EXPECT_EQ(std::tuple(FreeRowsOf("PM002").empty(), LastStatus()), std::tuple(true, "Schemes not available"));
    ExpectLinksHold();
}

TEST_F(SpecialCategory, ARefusedFreeItemStopsThePassUntilItCanBeHad) {
    Scalar("UPDATE SchemeFreeItems SET Free_Item_Code = 'FD005' WHERE SlabID = 9111");  // no stock
    Line("FD003", 20);
    Line("PC003", 1);
    Click();
    EXPECT_EQ(std::tuple(LastStatus(), LastStatusKind(), form->bSplCatRefused, form->bSchemesApplied),
              std::tuple("Free SKU is not available/Selected. You cannot save this Dispatch.", 1, true, false));
    EXPECT_EQ(form->ActiveControl(), &form->cmdSave);

    // Nothing changed, but the refusal asks for the pass again.
    Scalar("UPDATE SchemeFreeItems SET Free_Item_Code = 'PM002' WHERE SlabID = 9111");
    answers.Queue("SelectFreeItem", {"none"});
    Click();
    EXPECT_EQ(std::tuple(LastStatus(), form->bSplCatRefused), std::tuple("Free Item Not selected", true));

    Choose("PM002");
    Click();
    EXPECT_EQ(std::tuple(form->bSplCatRefused, FreeRowsOf("PM002").size()), std::tuple(false, 1u));
    ExpectLinksHold();
}

TEST_F(SpecialCategory, ADeletedFreeRowIsFoundAndGivenBack) {
    Line("FD003", 20);
    Line("PC003", 1);
    Choose("PM002");
    Click();
    ASSERT_EQ(FreeRowsOf("PM002").size(), 1u);
    form->DTFlexDispatch.RemoveRow(FreeRowsOf("PM002")[0]);

    bool gone = false;
    EXPECT_TRUE(form->SplCatFreeItemDeleted(gone));
    EXPECT_TRUE(TranscriptHas("status 1 Free Item Not found."));
    Choose("PM002");
    Click();
    EXPECT_EQ(FreeRowsOf("PM002").size(), 1u);
    ExpectLinksHold();
}

// Free rows collected at 5, 6 and 7 are removed by their old numbers: what stood at
// 5 and 7 goes, and the third removal finds no row 7 any more.
TEST_F(SpecialCategory, ClearingTheFreeRowsDriftsDownTheGrid) {
    for (bool withBlankRow : {true, false}) {
        SCOPED_TRACE(withBlankRow);
        auto& grid = form->DTFlexDispatch;
        grid.ClearGrid();
        grid.SetGridRows(7 + (withBlankRow ? 1 : 0));
        for (int r = 1; r <= 7; ++r) {
            grid.SetCell(r, colItemCode, "R" + std::to_string(r));
            grid.SetCell(r, colFreeItem, r >= 5 ? "1" : "0");
            grid.SetCell(r, colSplCategoryScheme, r >= 5 ? "1" : "");
        }
        form->ClearDispatchFreeItemSch();
        ASSERT_EQ(grid.GridRows(), withBlankRow ? 6 : 5);
        EXPECT_EQ(Cell(5, colItemCode), "R6");
        EXPECT_EQ(Errors(), 0) << ErrorLines();

        // The one left is taken by its mark.
        form->RevertAllSpecialCatScheme(grid);
        EXPECT_EQ(grid.GridRows(), withBlankRow ? 5 : 4);
    }
}

}  // namespace
}  // namespace screen_test
