// A grid that has lines guards them against a party change that would not suit the
// items taken: the clerk either drops the lines or gets the old party back.
#include <utility>

#include "screen/host_services/host_messages.h"
#include "screen_fixture.h"

namespace screen_test {
namespace {

using host_services::msgbox::AnswerNo;
using host_services::msgbox::AnswerYes;

const std::string kMessage10 =
    "The items entered do not belong to the new category group and will be removed. Do you want to continue?";
const std::string kMessage11 = "Changing the category group will remove the items entered. Do you want to continue?";

class PartyGuards : public PartiesTest {
protected:
    // Arun Kumar on Anna Nagar selling Foods, with one line in the grid and the blank
    // row for entry under it, as an earlier Enter left it.
    void FoodsNoteWithALine() {
        Pick(f.txtSalesman, "Arun Kumar", "1");
        Pick(f.txtBeat, "Anna Nagar", "1");
        Pick(f.txtCategory, "Foods", "1");
        f.LoadPreviousValues();
        f.DTFlexDispatch.SetGridRows(2);
        SetCell(grid::colItemCode, "FD001");
        SetCell(grid::colItemName, "Marie Biscuit 100g");
    }
    // The lines of the grid, without the blank row for entry.
    int GridLines() const {
        const int rows = f.DTFlexDispatch.GridRows();
        return rows > 0 && f.DTFlexDispatch.IsBlankRow(rows) ? rows - 1 : rows;
    }
    // Bala Murugan, whose type sells Personal Care alone, put over the Foods note, the
    // user's answer queued and the grid's check run; whether it refused him.
    bool BalaOverFoods(int answer, long filledBy) {
        FoodsNoteWithALine();
        Pick(f.txtSalesman, "Bala Murugan", "2");
        Answer(answer);
        bool bRefused = false;
        f.CheckForGridItem(filledBy, bRefused);
        return bRefused;
    }
};

TEST_F(PartyGuards, ANewSalesmanWhoseTypeDoesNotSellTheGroupAsksAndNoBringsTheOldOneBack) {
    EXPECT_TRUE(BalaOverFoods(AnswerNo, 0));
    EXPECT_EQ(Messages(), std::vector<std::string>{kMessage10});
    EXPECT_EQ(std::tuple(Box(f.txtSalesman), GridLines(), f.szCurrentGroupID), std::tuple("Arun Kumar|1", 1, "1"));
}

TEST_F(PartyGuards, AnsweringNoToASalesmanTheProgramFilledEmptiesTheSalesman) {
    EXPECT_TRUE(BalaOverFoods(AnswerNo, 2));
    EXPECT_EQ(std::tuple(f.txtSalesman.Text(), f.bGroupClearedSalesman, Focused()),
              std::tuple("", true, "txtSalesman"));
}

TEST_F(PartyGuards, AnsweringYesDropsTheLinesAndReloadsTheGroups) {
    EXPECT_FALSE(BalaOverFoods(AnswerYes, 2));
    EXPECT_EQ(std::tuple(GridLines(), f.DTFlexDispatch.GridRows(), Box(f.txtCategory), f.bPartyAutoFilled),
              std::tuple(0, 1, "Personal Care|3", true));
}

TEST_F(PartyGuards, NoQuestionWhileTheGroupSuitsOrTheGridIsEmpty) {
    FoodsNoteWithALine();
    // Ezhil Mani's type sells Foods too.
    Pick(f.txtSalesman, "Ezhil Mani", "5");
    bool bRefused = false;
    f.CheckForGridItem(0, bRefused);
    EXPECT_TRUE(Messages().empty());

    f.DTFlexDispatch.ClearGrid();
    f.DTFlexDispatch.SetGridRows(1);
    Pick(f.txtSalesman, "Bala Murugan", "2");
    f.CheckForGridItem(0, bRefused);
    EXPECT_EQ(std::tuple(Messages().empty(), bRefused, f.txtSalesman.Text()), std::tuple(true, false, "Bala Murugan"));
}

TEST_F(PartyGuards, ASalesmanChangedUnderAFilledGridCanBeTakenBack) {
    FoodsNoteWithALine();
    Pick(f.txtSalesman, "Bala Murugan", "2");
    Answer(AnswerNo);
    EnterSalesman();

    EXPECT_EQ(std::tuple(f.txtSalesman.Text(), f.txtBeat.Text(), f.txtCategory.Text(), GridLines()),
              std::tuple("Arun Kumar", "Anna Nagar", "Foods", 1));
}

TEST_F(PartyGuards, ChangingTheGroupAsksWithMessageElevenAndNoRestoresIt) {
    FoodsNoteWithALine();
    Pick(f.txtCategory, "Beverages", "2");
    Answer(AnswerNo);
    EnterCategory();

    EXPECT_EQ(Messages(), std::vector<std::string>{kMessage11});
    EXPECT_EQ(std::tuple(Box(f.txtCategory), f.bGroupReset, GridLines()), std::tuple("Foods|1", false, 1));
}

TEST_F(PartyGuards, ChangingTheGroupAndAnsweringYesDropsTheLines) {
    FoodsNoteWithALine();
    Pick(f.txtCategory, "Beverages", "2");
    Answer(AnswerYes);
    EnterCategory();

    EXPECT_EQ(std::tuple(f.bGroupReset, GridLines(), f.txtCategory.Tag, f.szPrevGroupID),
              std::tuple(true, 0, "2", "2"));
    EXPECT_EQ(f.szItemNameQuery,
              "Select Product_Code,ProductName From dbo.Sp_Get_Items_QAX('2') Where ProductName Like '");
    EXPECT_EQ(Focused(), "txtref");
}

TEST_F(PartyGuards, AGroupListThatStillHoldsEveryOldGroupNeedsNoQuestion) {
    FoodsNoteWithALine();
    f.CheckForGroupChange("2,1", 1);
    EXPECT_EQ(std::tuple(Messages().empty(), f.bGroupReset, GridLines()), std::tuple(true, true, 1));
}

TEST_F(PartyGuards, AnsweringNoToANewSalesmansGroupsBringsEveryPartyBack) {
    FoodsNoteWithALine();
    Pick(f.txtCustomer, "Anand Stores", "C001");
    f.LoadPreviousValues();
    Pick(f.txtSalesman, "Bala Murugan", "2");
    Pick(f.txtBeat, "Adyar", "4");
    Pick(f.txtCustomer, "Nila Enterprises", "C011");
    Answer(AnswerNo);
    f.CheckForGroupChange("3", 1);

    EXPECT_EQ(Messages(), std::vector<std::string>{kMessage10});
    EXPECT_EQ(std::tuple(f.txtSalesman.Tag, f.txtBeat.Text(), f.txtCustomer.Text(), f.txtCustomerID.Text(),
                         f.txtCategory.Tag),
              std::tuple("1", "Anna Nagar", "Anand Stores", "C001", "1"));
}

TEST_F(PartyGuards, ResetCatGrpEmptiesTheItemStatementsForAllCategories) {
    Pick(f.txtCategory, "Foods", "1,2");
    f.ResetCatGrp();
    EXPECT_EQ(f.szItemCodeQuery,
              "Select Product_Code,Product_Code From dbo.Sp_Get_Items_QAX('1,2') Where Product_Code Like '");
    Pick(f.txtCategory, f.szLblAllCategories, "0");
    f.ResetCatGrp();
    EXPECT_EQ(f.szItemCodeQuery + f.szItemNameQuery, "");
}

// The comma lists the party fields lean on: the sort of a list of serials or group IDs,
// and whether the groups of one list stand in another.

using Form = screen::Zuro_frmDispatch_Dispatch;

TEST(GetSerialInAscOrder, SortsNumericallyAndWritesNumbers) {
    // Numbers, not texts: 9 before 10 before 100. The list LoadCategoryGroup gathers has
    // a blank after each comma. At the edges the largest at the very end and the smallest
    // at the very start must both move; an empty element reads 0; only one trailing comma
    // is cut.
    const std::pair<const char*, const char*> cases[] = {
        {"100,9,10", "9,10,100"},   {"007,3", "3,7"}, {"2,1,2,1", "1,1,2,2"},
        {"4, 1, 3", "1,3,4"},       {"", ""},         {"5,", "5"},
        {"9,5,4,3,1", "1,3,4,5,9"}, {",5", "0,5"},    {"3,1,,", "0,1,3"},
    };
    for (const auto& [list, sorted] : cases) EXPECT_EQ(Form::GetSerialInAscOrder(list), sorted) << '"' << list << '"';
}

TEST(GrpExists, ComparesEveryOldGroupWithEveryNewOne) {
    const std::tuple<const char*, const char*, bool, bool> cases[] = {
        {"1,2", "2,1", true, true},                                  // the same groups in another order
        {"1,2", "2", false, true},                                   // one kept, one lost
        {"1,2,3", "1,2", false, true},                               // the last old one lost
        {"3", "1,2,3", true, true},                                  // found at the last new place
        {"1", "2,3", false, false},    {"12", "1,2", false, false},  // whole entries, not digits
        {"", "1", true, false},                                      // nothing before: nothing lost
        {"4", "", false, false},
    };
    for (const auto& [szOld, szNew, allKept, anyKept] : cases) {
        bool bAll = false, bAny = true;
        Form::GrpExists(szOld, szNew, bAll, bAny);
        EXPECT_EQ(std::pair(bAll, bAny), std::pair(allKept, anyKept)) << szOld << " in " << szNew;
    }
}

}  // namespace
}  // namespace screen_test
