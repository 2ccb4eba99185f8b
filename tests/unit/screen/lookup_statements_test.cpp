// The item look-up: which statement the list runs in each mode, when it opens, and a
// pick landing in the grid's cell editor.
#include "host/auto_list.h"
#include "screen_fixture.h"

namespace screen_test {
namespace {

using screen::Zuro_frmDispatch_Dispatch;

class ItemLookup : public ScreenTest {
protected:
    // The salesman and category group as the party fields leave them.
    void Party(const std::string& salesman, const std::string& salesmanID, const std::string& group,
               const std::string& groupTag) {
        Pick(form->txtSalesman, salesman, salesmanID);
        Pick(form->txtCategory, group, groupTag);
    }
    host::PlainAutoList& List() { return dynamic_cast<host::PlainAutoList&>(*form->objItemList); }
    // The statement of the code (1) or name (2) list for the typed text.
    std::string Statement(long nCol, const std::string& typed = "x") {
        form->SetAutolistOption(nCol);
        return List().QueryFor(typed);
    }
};

TEST_F(ItemLookup, OneGroupListsItsItemsByCodeOrByNameAsTypedInTheGridsEditor) {
    Zuro_frmDispatch_Dispatch& f = Open(2);
    ASSERT_NE(f.objItemList, nullptr);
    EXPECT_EQ(std::tuple(List().AttachedBox(), List().LockedToList()), std::tuple(&f.DTFlexDispatch.EditorBox(), true));
    Party("Arun Kumar", "1", "Foods", "1");
    EXPECT_EQ(Statement(1, "FD"),
              "Select Product_Code,Product_Code From dbo.Fn_Get_Items_QAX('1') Where Product_Code Like 'FD%'");
    EXPECT_EQ(List().Caption(), "Item Code");
    EXPECT_EQ(Statement(2, "M"),
              "Select Product_Code,ProductName From dbo.Fn_Get_Items_QAX('1') Where ProductName Like 'M%'");
    EXPECT_EQ(List().Caption(), "Item Name");
}

TEST_F(ItemLookup, AllCategoriesListEveryActiveGroupWhereTheModeAllowsThem) {
    Zuro_frmDispatch_Dispatch& f = Open(3);
    Party("Dinesh Raj", "4", f.szLblAllCategories, "1,2,3,4");
    EXPECT_EQ(Statement(2),
              "Select Product_Code,ProductName From dbo.Fn_Get_Items_QAX_AllCat() Where ProductName Like 'x%'");
    f.SetAutolistOption(2);
    List().ShowList("F");
    EXPECT_TRUE(ListRows().empty());  // the Festive Hamper's group is switched off
    List().ShowList("S");
    EXPECT_EQ(ListRows(),
              (std::vector<std::string>{"Salt Crackers 200g", "Shampoo Sachet", "Shelf Strip", "Sunflower Oil 1L"}));
}

TEST_F(ItemLookup, ACategoryMappedDSTypeSellsItsCategoriesWhateverTheGroup) {
    Zuro_frmDispatch_Dispatch& f = Open(2);
    Party("Chitra Devi", "3", "Health Care", "4");
    EXPECT_EQ(Statement(1),
              "Select Product_Code,Product_Code From dbo.Fn_Get_DSTypeWiseSKU(3, 1) Where Product_Code Like 'x%'");
    f.SetAutolistOption(1);
    List().ShowList("");
    EXPECT_EQ(ListRows(), (std::vector<std::string>{"HC003", "HC002", "PC001", "HC001", "PC002", "PC003"}));
}

TEST_F(ItemLookup, AnAmendmentOffersTheNotesOwnItemsToo) {
    Zuro_frmDispatch_Dispatch& f = Open(7);
    f.nDispatchID = 2;
    Party("Bala Murugan", "2", "Personal Care", "3");
    EXPECT_EQ(Statement(2),
              "Select Product_Code,ProductName From dbo.Fn_Get_DispatchItems_QAX('3',2) Where ProductName Like 'x%'");
    f.bAllCategories = true;
    EXPECT_EQ(
        Statement(1),
        "Select Product_Code,Product_Code From dbo.Fn_Get_DispatchItems_QAX_AllCat('2') Where Product_Code Like 'x%'");
    f.bAllCategories = false;
    Party("Chitra Devi", "3", "Health Care", "4");
    EXPECT_EQ(
        Statement(2),
        "Select Product_Code,ProductName From dbo.Fn_Get_DSTypeWiseSKU_Amend(3,2, 1) Where ProductName Like 'x%'");
}

TEST_F(ItemLookup, NoGroupMeansNoListButTheCellStillTakesTyping) {
    Zuro_frmDispatch_Dispatch& f = Open(2);
    Party("Arun Kumar", "1", "", "");
    f.DTFlexDispatch.UserGoto(1, grid::colItemCode);
    f.DTFlexDispatch.UserType("FD");
    f.SetAutolistOption(1);
    EXPECT_EQ(std::tuple(ListRows().empty(), f.DTFlexDispatch.EditText()), std::tuple(true, "FD"));
}

// An unknown salesman (55), or all categories with a salesman in a new note (173),
// send the user back to the salesman box with no list.
TEST_F(ItemLookup, ASalesmanTheListCannotServeSendsTheUserBackToTheSalesmanBox) {
    for (const auto& [salesman, id, group, groupTag, number] :
         {std::tuple{"Nobody", "", "Foods", "1", 55L},
          std::tuple{"Dinesh Raj", "4", "All Categories", "1,2,3,4", 173L}}) {
        SCOPED_TRACE(salesman);
        Zuro_frmDispatch_Dispatch& f = Open(2);
        Party(salesman, id, group, groupTag);
        f.DTFlexDispatch.UserGoto(1, grid::colItemCode);
        f.SetAutolistOption(1);
        EXPECT_EQ(transcript.TakeNumbered(), std::vector<long>{number});
        EXPECT_EQ(std::tuple(f.ActiveControl(), ListRows().empty()), std::tuple(&f.txtSalesman, true));
    }
}

TEST_F(ItemLookup, APickLandsInTheCellEditorAndEnterPutsItInTheCell) {
    Zuro_frmDispatch_Dispatch& f = Open(2);
    Party("Arun Kumar", "1", "Foods", "1");
    // A name is checked against the group the code column last read.
    f.szGroupID = "1";
    auto& grid = f.DTFlexDispatch;
    grid.UserGoto(1, grid::colItemName);
    grid.UserType("cre");
    f.SetAutolistOption(2);
    ASSERT_EQ(ListRows(), std::vector<std::string>{"Cream Biscuit 75g"});
    Pick(1);
    EXPECT_EQ(grid.EditText(), "Cream Biscuit 75g");
    EXPECT_EQ(grid.GetCell(1, grid::colItemName), "");  // not yet: the edit is still open
    EXPECT_TRUE(grid.CommitEdit());

    // The same item picked again in the next row still lands.
    grid.SetGridRows(2);
    grid.UserGoto(2, grid::colItemName);
    grid.UserType("cre");
    f.SetAutolistOption(2);
    Pick(1);
    EXPECT_EQ(grid.EditText(), "Cream Biscuit 75g");
}

}  // namespace
}  // namespace screen_test
