// Whichever party the clerk fills, the others narrow to what the mapping allows;
// a single candidate fills itself, and a previous choice that is still allowed
// comes back.
#include "screen_fixture.h"

namespace screen_test {
namespace {

class PartiesAutofill : public PartiesTest {};

TEST_F(PartiesAutofill, ASalesmanMappedToEveryGroupGetsAllCategoriesAndIsRefused) {
    Pick(f.txtSalesman, "Dinesh Raj", "4");
    EnterSalesman();

    // All categories does not go with a salesman: message 173, and focus stays.
    EXPECT_EQ(std::tuple(Box(f.txtCategory), Numbered(), Focused()),
              std::tuple(f.szLblAllCategories + "|0", std::vector<long>{173}, "txtSalesman"));
}

TEST_F(PartiesAutofill, ABeatWithOneCustomerFillsBothCustomerBoxesAndTheAddresses) {
    // Nila Enterprises alone on Adyar once Devi's Mart has closed.
    database->ExecuteScript("UPDATE Customer SET Active = 0 WHERE CustomerID = 'C013';");
    Pick(f.txtBeat, "Adyar", "4");
    EnterBeat();

    EXPECT_EQ(std::tuple(f.txtSalesman.Text(), Box(f.txtCustomer), Box(f.txtCustomerID), f.txtCategory.Text()),
              std::tuple("Bala Murugan", "Nila Enterprises|C011", "C011|C011", "Personal Care"));
    EXPECT_EQ(f.txtBillingAddress.Text(), "18 Gandhi Nagar, Adyar, Chennai");
    // Every party filled: focus moves on past them.
    EXPECT_EQ(std::tuple(Focused(), f.szPrevCustomerCode), std::tuple("txtref", "C011"));
}

TEST_F(PartiesAutofill, LoadBeatRestoresThePreviousBeatOnlyWhileItIsAllowed) {
    // Anand Stores stands on two of Arun Kumar's beats.
    Pick(f.txtSalesman, "Arun Kumar", "1");
    Pick(f.txtCustomer, "Anand Stores", "C001");
    Pick(f.txtBeat, "Mylapore", "3");
    f.LoadPreviousValues();
    f.LoadBeat();
    EXPECT_EQ(Box(f.txtBeat), "Mylapore|3");

    // T Nagar is not one of them: with two candidates left the box is emptied.
    Pick(f.txtBeat, "T Nagar", "2");
    f.LoadPreviousValues();
    f.LoadBeat();
    EXPECT_EQ(std::tuple(Box(f.txtBeat), f.txtCustomer.Tag), std::tuple("|", "C001"));
}

TEST_F(PartiesAutofill, LoadBeatLetsGoACustomerOnNoneOfTheSalesmansBeats) {
    Pick(f.txtSalesman, "Chitra Devi", "3");
    Pick(f.txtCustomer, "Anand Stores", "C001");
    Pick(f.txtCustomerID, "C001", "C001");
    f.LoadBeat();
    EXPECT_EQ(f.txtCustomer.Text() + f.txtCustomerID.Text(), "");
    // With the customer gone, the salesman's one beat fills itself.
    EXPECT_EQ(std::tuple(f.txtBeat.Text(), f.bPartyAutoFilled), std::tuple("Velachery", true));
}

TEST_F(PartiesAutofill, LoadSalesmanRestoresThePreviousSalesmanAmongSeveral) {
    // T Nagar is worked by Arun Kumar and Bala Murugan.
    Pick(f.txtBeat, "T Nagar", "2");
    Pick(f.txtSalesman, "Bala Murugan", "2");
    f.LoadPreviousValues();
    f.LoadSalesman();
    EXPECT_EQ(Box(f.txtSalesman), "Bala Murugan|2");

    f.ClearSalesman();
    f.LoadPreviousValues();
    f.LoadSalesman();
    EXPECT_EQ(std::tuple(f.txtSalesman.Text(), f.bPartyAutoFilled), std::tuple("", false));
}

TEST_F(PartiesAutofill, LoadCustomerRestoresThePreviousCustomerIntoBothBoxes) {
    Pick(f.txtSalesman, "Arun Kumar", "1");
    Pick(f.txtBeat, "Anna Nagar", "1");
    Pick(f.txtCustomer, "Ravi Stores", "C005");
    f.LoadPreviousValues();
    Pick(f.txtCustomerID, "", "");
    f.LoadCustomer();
    EXPECT_EQ(Box(f.txtCustomer) + " " + Box(f.txtCustomerID), "Ravi Stores|C005 C005|C005");
}

TEST_F(PartiesAutofill, TheSameSalesmanAgainMovesOnWithoutReloading) {
    Pick(f.txtSalesman, "Arun Kumar", "1");
    EnterSalesman();
    Pick(f.txtBeat, "Anna Nagar", "1");
    f.LoadPreviousValues();
    f.txtSalesman.SetFocus();
    EnterSalesman();
    // Nothing changed: the beat is not cleared and reloaded.
    EXPECT_EQ(std::tuple(f.txtBeat.Text(), Focused()), std::tuple("Anna Nagar", "txtBeat"));
}

}  // namespace
}  // namespace screen_test
