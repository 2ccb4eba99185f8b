// The refusals of the party boxes: a name typed rather than chosen (4, 6, 8), all
// categories with a salesman (173), and the checks against the masters.
#include "screen_fixture.h"

namespace screen_test {
namespace {

class PartyRefusals : public PartiesTest {};

TEST_F(PartyRefusals, ANameTypedButNotChosenIsRefusedWithSixForASalesmanAndFourForABeat) {
    Pick(f.txtSalesman, "Arun", "");  // typed, the list closed without a choice
    EnterSalesman();
    EXPECT_EQ(Refusal(f.txtSalesman), "6 [] txtSalesman");

    Pick(f.txtBeat, "Adyar", "");
    EnterBeat();
    EXPECT_EQ(Refusal(f.txtBeat), "4 [] txtBeat");
    Pick(f.txtBeat, "Ady", "");
    f.txtBeat_LostFocus();
    EXPECT_EQ(std::tuple(Numbered(), f.txtBeat.Text()), std::tuple(std::vector<long>{4}, ""));
}

TEST_F(PartyRefusals, LeavingTheSalesmanBoxTakesANameTheMasterKnows) {
    f.txtSalesman.SetText("chitra devi");
    f.txtSalesman_LostFocus();
    // The Enter that runs by hand fills the salesman's one beat.
    EXPECT_EQ(std::tuple(Numbered().empty(), f.txtSalesman.Tag, f.txtBeat.Text()), std::tuple(true, "3", "Velachery"));

    f.txtSalesman.SetText("Nobody");
    f.txtSalesman.Tag.clear();
    f.txtSalesman_LostFocus();
    EXPECT_EQ(Refusal(f.txtSalesman), "6 [] txtSalesman");
}

TEST_F(PartyRefusals, AnEmptyBeatGivesNoError) {
    f.txtBeat.Tag = "4";
    f.txtBeat_LostFocus();
    EXPECT_EQ(f.txtBeat.Tag, "");
    EnterBeat();
    EXPECT_EQ(std::tuple(Numbered().empty(), Focused()), std::tuple(true, "txtCustomer"));
}

TEST_F(PartyRefusals, ACategoryGroupMustBeChosenOrBeAllCategoriesInAnyCase) {
    EnterCategory();
    EXPECT_EQ(Numbered(), std::vector<long>{8});

    f.txtCategory.SetText("Foods");
    EnterCategory();
    EXPECT_EQ(Numbered(), std::vector<long>{8});
    f.txtCategory_LostFocus();
    EXPECT_EQ(Numbered(), std::vector<long>{8});

    f.txtCategory.SetText("all CATEGORIES");
    EnterCategory();
    EXPECT_EQ(std::tuple(Numbered().empty(), f.txtCategory.Tag, f.szPrevGroupID, Focused()),
              std::tuple(true, "0", "0", "txtref"));
}

TEST_F(PartyRefusals, AllCategoriesWithASalesmanIsRefusedWith173) {
    Pick(f.txtCategory, "All categories", "0");
    EXPECT_FALSE(f.DSTypeNotMapped(""));
    EXPECT_TRUE(Numbered().empty());

    Pick(f.txtSalesman, "Arun Kumar", "1");
    EXPECT_TRUE(f.DSTypeNotMapped(""));
    EXPECT_EQ(Numbered(), std::vector<long>{173});

    Pick(f.txtCategory, "Foods", "1");
    EXPECT_FALSE(f.DSTypeNotMapped(""));
}

TEST_F(PartyRefusals, TypingABeatUnderAllCategoriesAndASalesmanEmptiesIt) {
    Pick(f.txtSalesman, "Arun Kumar", "1");
    Pick(f.txtCategory, "All Categories", "0");
    f.txtBeat.SetText("T");  // the change handler runs with the typing
    EXPECT_EQ(Refusal(f.txtBeat), "173 [] txtSalesman");
}

TEST_F(PartyRefusals, TheMastersKnowTheNamesAndTheDeactivatedBeat) {
    Pick(f.txtSalesman, "Bala Murugan", "2");
    Pick(f.txtBeat, "Porur", "7");
    Pick(f.txtCategory, "Health Care", "4");
    EXPECT_EQ(std::tuple(f.ValidSalesman(), f.ValidBeat(), f.ValidCatGroup()), std::tuple(true, true, true));
    EXPECT_EQ(std::tuple(f.isBeatDeactivated(7), f.isBeatDeactivated(4), f.isBeatDeactivated(99)),
              std::tuple(true, false, false));

    Pick(f.txtSalesman, "Bala", "2");
    Pick(f.txtCategory, "Health", "4");
    EXPECT_EQ(std::pair(f.ValidSalesman(), f.ValidCatGroup()), std::pair(false, false));
    f.bAllCategories = true;
    EXPECT_TRUE(f.ValidCatGroup());
}

TEST_F(PartyRefusals, AccessorsReadAKeyOnlyWhileTheBoxShowsAName) {
    Pick(f.txtSalesman, "Bala Murugan", "2");
    Pick(f.txtBeat, "  ", "4");
    EXPECT_EQ(std::to_string(f.GetSalesmanID()) + " " + f.GetSalesmanName(), "2 Bala Murugan");
    EXPECT_EQ(std::to_string(f.GetBeatID()) + " " + f.GetBeatName(), "0 ");
}

TEST_F(PartyRefusals, ACustomerWithoutTinIsWarnedOfInANewNote) {
    settings.Set("GetTinCheckEnabled", "true");
    Pick(f.txtCustomer, "Priya Traders", "C012");
    f.CheckTinNumber();
    EXPECT_EQ(Messages(), std::vector<std::string>{"TIN number does not exist for this customer"});
    Pick(f.txtCustomer, "Anand Stores", "C001");
    f.CheckTinNumber();
    EXPECT_TRUE(Messages().empty());

    settings.Set("GetTinCheckEnabled", "false");
    Pick(f.txtCustomer, "Priya Traders", "C012");
    f.CheckTinNumber();
    EXPECT_TRUE(Messages().empty());

    // A list page's customer is a filter: only a note keyed or amended is warned of.
    settings.Set("GetTinCheckEnabled", "true");
    for (long mode : {screen::mode::FromSalesConfirmation, screen::mode::Amendment}) {
        auto& g = Open(mode);
        g.txtCustomer.Tag = "C012";
        g.CheckTinNumber();
        EXPECT_EQ(Messages().size(), mode == screen::mode::Amendment ? 1u : 0u) << mode;
    }
}

}  // namespace
}  // namespace screen_test
