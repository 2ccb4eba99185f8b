// The scheme button over item (SKU) schemes: what a first run adds, that a run with
// nothing changed touches nothing, that a change reruns its item alone, and the
// refusals. Item schemes applied to one line (FindDispatchSchemes) at the end.
#include "schemes_fixture.h"

namespace screen_test {
namespace {

using namespace grid;

class SkuSchemes : public SchemeNote {
protected:
    void SetUp() override {
        SchemeNote::SetUp();
        AddScheme(901, 1, {{"FD003", 0}}, 10, 10, 1, "PM002");  // one free for every 10 from 10 up
        AddScheme(902, 1, {{"PC003", 0}}, 5, 0, 2, "PM002");    // two free once, from 5 up
    }
};

TEST_F(SkuSchemes, TheButtonRerunsOnlyTheItemsWhoseTotalsChanged) {
    Line("FD003", 25);
    Line("PC003", 6);
    Line("FD003", 5);
    Choose("PM002", 2);
    Click();
    ASSERT_EQ(Errors(), 0) << ErrorLines();

    // One free row an item, under the lines, each followed by a blank row that the
    // next free row takes; both lines of FD003 link to FD003's free row.
    EXPECT_EQ(form->DTFlexDispatch.GridRows(), 6);
    // 30 counts three steps of 10; a step of 0 gives the free quantity once.
    EXPECT_EQ(Row(4, {colQuantity, colItemCheck, colMultiSchemeDetail}), "3|1,3|901|9011|0|0");
    EXPECT_EQ(Row(5, {colQuantity, colItemCheck}), "2|2");
    for (const auto& [row, check, scheme] : {std::tuple{1, ",4", "901"}, {3, ",4", "901"}, {2, ",5", "902"}})
        EXPECT_EQ(Row(row, {colItemCheck, colSchemeID}), std::string(check) + "|" + scheme) << row;
    EXPECT_TRUE(form->bSchemesApplied);
    EXPECT_EQ(form->ActiveControl(), &form->cmdSave);

    const auto before = Rows();
    Click();
    EXPECT_EQ(std::tuple(FreeItemDialogs(), Rows()), std::tuple(2, before));

    // PC003 to 40: only PC003 is asked again, and still earns its two once.
    SetQuantity(2, 40);
    Choose("PM002");
    Click();
    EXPECT_EQ(std::tuple(FreeItemDialogs(), FreeItemDialogs("902")), std::tuple(3, 2));
    ASSERT_EQ(FreeRowsOf("PM002").size(), 2u);
    EXPECT_TRUE(form->bFlushRow);
    ExpectLinksHold();

    // FD003 below its slab: its free row goes and its lines forget the scheme.
    SetQuantity(1, 1);
    SetQuantity(3, 1);
    Click();
    EXPECT_EQ(FreeItemDialogs(), 3);
    ASSERT_EQ(FreeRowsOf("PM002").size(), 1u);
    EXPECT_EQ(Cell(FreeRowsOf("PM002")[0], colItemCheck), "2");
    EXPECT_EQ(Row(1, {colSchemeID, colItemCheck}), "0|");
    ExpectLinksHold();
}

TEST_F(SkuSchemes, DeletingALineTakesTheFreeRowsItAloneClaimed) {
    Line("FD003", 10);
    Line("PC003", 5);
    Choose("PM002", 2);
    Click();
    ASSERT_EQ(FreeRowsOf("PM002").size(), 2u);

    form->DTFlexDispatch.UserDeleteRow(2);
    ASSERT_EQ(FreeRowsOf("PM002").size(), 1u);
    EXPECT_EQ(Cell(FreeRowsOf("PM002")[0], colItemCheck), "1");
    ExpectLinksHold();

    // One line fewer: every item afresh, and FD003 earns its row once more, under the
    // next serial of the note; the serials standing are not given out again.
    Choose("PM002");
    Click();
    ASSERT_EQ(FreeRowsOf("PM002").size(), 1u);
    EXPECT_EQ(Cell(FreeRowsOf("PM002")[0], colSerialNo), "5");
    ExpectLinksHold();
}

TEST_F(SkuSchemes, AGoneFreeRowIsMissedAndARevertKeepsTheMarksOfALastLineWithoutABlankRow) {
    const int first = Line("FD003", 5);
    const int last = Line("FD003", 6);
    auto& grid = form->DTFlexDispatch;
    grid.SetGridRows(last);
    for (int row : {first, last}) grid.SetCell(row, colSchemeID, "901");
    // A link list as the button writes it, with its lead comma, to a row that has gone.
    grid.SetCell(first, colItemCheck, ",9");
    EXPECT_FALSE(form->FreeItemExits("FD003", std::to_string(first)));
    form->ReverSKUScheme("FD003", std::to_string(first) + "," + std::to_string(last));
    EXPECT_EQ(std::tuple(Cell(first, colSchemeID), Cell(last, colSchemeID)), std::tuple("0", "901"));
}

TEST_F(SkuSchemes, NotesFromPurchaseOrdersAndAlertsKeepTheFocusOnTheButton) {
    for (long mode : {screen::mode::FromPurchaseOrder, screen::mode::FromAlert}) {
        SCOPED_TRACE(mode);
        Open(mode);
        form->SetFrame(2);
        form->txtCustomer.Tag = "C005";
        form->szCustomerCode = "C005";
        Line("FD003", 25);
        Choose("PM002");
        form->cmdApplyScheme.SetFocus();
        Click();
        EXPECT_EQ(std::tuple(FreeRowsOf("PM002").size(), form->ActiveControl()), std::tuple(1u, &form->cmdApplyScheme));
    }
}

TEST_F(SkuSchemes, AFreeItemThatCannotBeHadStopsTheItemAndIsRetriedNextTime) {
    AddScheme(903, 1, {{"FS001", 0}}, 1, 0, 1, "FD005");
    const std::tuple<std::string, std::string, std::string> cases[] = {
        {"FD005", "", "Free SKU is not available/Selected For the Primary Item - FS001"},  // no stock
        // switched off in the master with stock still on the shelf
        {"FD006", "", "Free SKU is not available/Selected For the Primary Item - FS001"},
        {"PM002", "none", "Free Item Not selected For The Primary Item -  FS001"},
    };
    for (const auto& [freeItem, answer, words] : cases) {
        SCOPED_TRACE(freeItem);
        Scalar("UPDATE SchemeFreeItems SET Free_Item_Code = '" + freeItem + "' WHERE SlabID = 9031");
        form->ResetSchemeMemory();
        form->DTFlexDispatch.ClearGrid();
        form->DTFlexDispatch.SetGridRows(1);
        Line("FS001", 3);
        if (!answer.empty()) Choose(answer);
        Click();
        EXPECT_EQ(std::tuple(LastStatus(), form->szFailedSKU, form->bFreeItemMissing),
                  std::tuple(words, "FS001", true));
        EXPECT_FALSE(form->bSchemeRunning);
        EXPECT_EQ(std::tuple(form->bSchemesApplied, form->ActiveControl(), FreeRowsOf("PM002").size()),
                  std::tuple(false, &form->cmdApplyScheme, 0u));
    }
    // Chosen this time: the item that failed gets its row.
    Choose("PM002");
    SetQuantity(1, 4);
    Click();
    EXPECT_EQ(std::tuple(FreeRowsOf("PM002").size(), form->szFailedSKU, form->bSchemesApplied),
              std::tuple(1u, "", true));
    ExpectLinksHold();
}

TEST_F(SkuSchemes, ALineOnItsOwnEarnsOrIsMarked) {
    AddScheme(903, 1, {{"FS001", 0}}, 1, 0, 1, "FD005");
    const int fd003 = Line("FD003", 25);
    const int fs001 = Line("FS001", 2);
    Choose("PM002");
    form->FindDispatchSchemes("FD003", 25, Today(), fd003, "");
    form->FindDispatchSchemes("FS001", 2, Today(), fs001, "");
    ASSERT_EQ(Errors(), 0) << ErrorLines();

    // The blank row became the free row; its link is the line's serial, no comma.
    const auto free = FreeRowsOf("PM002");
    ASSERT_EQ(free.size(), 1u);
    EXPECT_EQ(Cell(free[0], colQuantity), "2");
    EXPECT_EQ(Cell(fd003, colItemCheck), Cell(free[0], colSerialNo));
    EXPECT_EQ(std::tuple(Cell(fd003, colSchemeID), Cell(free[0], colSchemeID), Cell(fd003, colSchemeCustID),
                         Cell(fs001, colFreeItmIgnored)),
              std::tuple("901", "901", form->txtCustomer.Text(), "1"));
    EXPECT_FALSE(form->bSchemeRunning);
}

}  // namespace
}  // namespace screen_test
