// A grid that has lines guards them against a party change that would not suit the
// items taken: the clerk either drops the lines or gets the old party back.
#include <ostream>

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
    EXPECT_EQ(Box(f.txtSalesman), "Arun Kumar|1");
    EXPECT_EQ(GridLines(), 1);
    EXPECT_EQ(f.szCurrentGroupID, "1");
}

TEST_F(PartyGuards, AnsweringNoToASalesmanTheProgramFilledEmptiesTheSalesman) {
    EXPECT_TRUE(BalaOverFoods(AnswerNo, 2));
    EXPECT_EQ(f.txtSalesman.Text(), "");
    EXPECT_TRUE(f.bGroupClearedSalesman);
    EXPECT_EQ(Focused(), "txtSalesman");
}

TEST_F(PartyGuards, AnsweringYesDropsTheLinesAndReloadsTheGroups) {
    EXPECT_FALSE(BalaOverFoods(AnswerYes, 2));
    EXPECT_EQ(GridLines(), 0);
    EXPECT_EQ(f.DTFlexDispatch.GridRows(), 1);
    EXPECT_EQ(Box(f.txtCategory), "Personal Care|3");
    EXPECT_TRUE(f.bPartyAutoFilled);
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
    EXPECT_TRUE(Messages().empty());
    EXPECT_FALSE(bRefused);
    EXPECT_EQ(f.txtSalesman.Text(), "Bala Murugan");
}

TEST_F(PartyGuards, ASalesmanChangedUnderAFilledGridCanBeTakenBack) {
    FoodsNoteWithALine();
    Pick(f.txtSalesman, "Bala Murugan", "2");
    Answer(AnswerNo);
    EnterSalesman();

    EXPECT_EQ(f.txtSalesman.Text(), "Arun Kumar");
    EXPECT_EQ(f.txtBeat.Text(), "Anna Nagar");
    EXPECT_EQ(f.txtCategory.Text(), "Foods");
    EXPECT_EQ(GridLines(), 1);
}

TEST_F(PartyGuards, ChangingTheGroupAsksWithMessageElevenAndNoRestoresIt) {
    FoodsNoteWithALine();
    Pick(f.txtCategory, "Beverages", "2");
    Answer(AnswerNo);
    EnterCategory();

    EXPECT_EQ(Messages(), std::vector<std::string>{kMessage11});
    EXPECT_EQ(Box(f.txtCategory), "Foods|1");
    EXPECT_FALSE(f.bGroupReset);
    EXPECT_EQ(GridLines(), 1);
}

TEST_F(PartyGuards, ChangingTheGroupAndAnsweringYesDropsTheLines) {
    FoodsNoteWithALine();
    Pick(f.txtCategory, "Beverages", "2");
    Answer(AnswerYes);
    EnterCategory();

    EXPECT_TRUE(f.bGroupReset);
    EXPECT_EQ(GridLines(), 0);
    EXPECT_EQ(f.txtCategory.Tag, "2");
    EXPECT_EQ(f.szPrevGroupID, "2");
    EXPECT_EQ(f.szItemNameQuery,
              "Select Product_Code,ProductName From dbo.Sp_Get_Items_QAX('2') Where ProductName Like '");
    EXPECT_EQ(Focused(), "txtref");
}

TEST_F(PartyGuards, AGroupListThatStillHoldsEveryOldGroupNeedsNoQuestion) {
    FoodsNoteWithALine();
    f.CheckForGroupChange("2,1", 1);
    EXPECT_TRUE(Messages().empty());
    EXPECT_TRUE(f.bGroupReset);
    EXPECT_EQ(GridLines(), 1);
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
    EXPECT_EQ(f.txtSalesman.Tag, "1");
    EXPECT_EQ(f.txtBeat.Text(), "Anna Nagar");
    EXPECT_EQ(f.txtCustomer.Text() + "|" + f.txtCustomerID.Text(), "Anand Stores|C001");
    EXPECT_EQ(f.txtCategory.Tag, "1");
}

TEST_F(PartyGuards, ResetCatGrpEmptiesTheItemStatementsForAllCategories) {
    Pick(f.txtCategory, "Foods", "1,2");
    f.ResetCatGrp();
    EXPECT_EQ(f.szItemCodeQuery,
              "Select Product_Code,Product_Code From dbo.Sp_Get_Items_QAX('1,2') Where Product_Code Like '");
    Pick(f.txtCategory, f.szLblAllCategories, "0");
    f.ResetCatGrp();
    EXPECT_EQ(f.szItemCodeQuery, "");
    EXPECT_EQ(f.szItemNameQuery, "");
    EXPECT_EQ(Errors(), 0) << ErrorLines();
}

// The comma lists the party fields lean on: the sort of a list of serials or group IDs,
// and whether the groups of one list stand in another.

using Form = screen::Zuro_frmDispatch_Dispatch;

TEST(GetSerialInAscOrder, SortsNumericallyAndWritesNumbers) {
    // Numbers, not texts: 9 before 10 before 100.
    EXPECT_EQ(Form::GetSerialInAscOrder("100,9,10"), "9,10,100");
    EXPECT_EQ(Form::GetSerialInAscOrder("007,3"), "3,7");
    EXPECT_EQ(Form::GetSerialInAscOrder("2,1,2,1"), "1,1,2,2");
    // The list LoadCategoryGroup gathers has a blank after each comma.
    EXPECT_EQ(Form::GetSerialInAscOrder("4, 1, 3"), "1,3,4");
    // The edges of the list: the largest at the very end and the smallest at the very
    // start must both move; an empty element reads 0; only one trailing comma is cut.
    EXPECT_EQ(Form::GetSerialInAscOrder(""), "");
    EXPECT_EQ(Form::GetSerialInAscOrder("5,"), "5");
    EXPECT_EQ(Form::GetSerialInAscOrder("9,5,4,3,1"), "1,3,4,5,9");
    EXPECT_EQ(Form::GetSerialInAscOrder(",5"), "0,5");
    EXPECT_EQ(Form::GetSerialInAscOrder("3,1,,"), "0,1,3");
}

struct GrpExistsCase {
    const char* szOld;
    const char* szNew;
    bool bAll;
    bool bAny;
};

// Test names carry the lists, not the addresses of their texts.
void PrintTo(const GrpExistsCase& c, std::ostream* out) {
    *out << "old \"" << c.szOld << "\" new \"" << c.szNew << "\"";
}

class GrpExistsTest : public ::testing::TestWithParam<GrpExistsCase> {};

TEST_P(GrpExistsTest, ComparesEveryOldGroupWithEveryNewOne) {
    const auto& c = GetParam();
    bool bAll = false, bAny = true;
    Form::GrpExists(c.szOld, c.szNew, bAll, bAny);
    EXPECT_EQ(bAll, c.bAll) << c.szOld << " in " << c.szNew;
    EXPECT_EQ(bAny, c.bAny) << c.szOld << " in " << c.szNew;
}

INSTANTIATE_TEST_SUITE_P(Lists, GrpExistsTest,
                         ::testing::Values(GrpExistsCase{"1,2", "2,1", true, true},  // the same groups in another order
                                           GrpExistsCase{"1,2", "2", false, true},   // one kept, one lost
                                           GrpExistsCase{"1,2,3", "1,2", false, true},  // the last old one lost
                                           GrpExistsCase{"3", "1,2,3", true, true},     // found at the last new place
                                           GrpExistsCase{"1", "2,3", false, false},
                                           GrpExistsCase{"12", "1,2", false, false},  // whole entries, not digits
                                           GrpExistsCase{"", "1", true, false},       // nothing before: nothing lost
                                           GrpExistsCase{"4", "", false, false}));

}  // namespace
}  // namespace screen_test
