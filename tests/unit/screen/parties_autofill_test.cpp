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

    EXPECT_EQ(Box(f.txtCategory), f.szLblAllCategories + "|0");
    // All categories does not go with a salesman: message 173, and focus stays.
    EXPECT_EQ(Numbered(), std::vector<long>{173});
    EXPECT_EQ(Focused(), "txtSalesman");
}

TEST_F(PartiesAutofill, ABeatWithOneCustomerFillsBothCustomerBoxesAndTheAddresses) {
    // Nila Enterprises alone on Adyar once Devi's Mart has closed.
    database->ExecuteScript("UPDATE Customer SET Active = 0 WHERE CustomerID = 'C013';");
    Pick(f.txtBeat, "Adyar", "4");
    EnterBeat();

    EXPECT_EQ(f.txtSalesman.Text(), "Bala Murugan");
    EXPECT_EQ(Box(f.txtCustomer), "Nila Enterprises|C011");
    EXPECT_EQ(Box(f.txtCustomerID), "C011|C011");
    EXPECT_EQ(f.txtBillingAddress.Text(), "18 Gandhi Nagar, Adyar, Chennai");
    EXPECT_EQ(f.txtCategory.Text(), "Personal Care");
    // Every party filled: focus moves on past them.
    EXPECT_EQ(Focused(), "txtref");
    EXPECT_EQ(f.szPrevCustomerCode, "C011");
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
    EXPECT_EQ(Box(f.txtBeat), "|");
    EXPECT_EQ(f.txtCustomer.Tag, "C001");
}

TEST_F(PartiesAutofill, LoadBeatLetsGoACustomerOnNoneOfTheSalesmansBeats) {
    Pick(f.txtSalesman, "Chitra Devi", "3");
    Pick(f.txtCustomer, "Anand Stores", "C001");
    Pick(f.txtCustomerID, "C001", "C001");
    f.LoadBeat();
    EXPECT_EQ(f.txtCustomer.Text() + f.txtCustomerID.Text(), "");
    // With the customer gone, the salesman's one beat fills itself.
    EXPECT_EQ(f.txtBeat.Text(), "Velachery");
    EXPECT_TRUE(f.bPartyAutoFilled);
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
    EXPECT_EQ(f.txtSalesman.Text(), "");
    EXPECT_FALSE(f.bPartyAutoFilled);
}

TEST_F(PartiesAutofill, LoadCustomerRestoresThePreviousCustomerIntoBothBoxes) {
    Pick(f.txtSalesman, "Arun Kumar", "1");
    Pick(f.txtBeat, "Anna Nagar", "1");
    Pick(f.txtCustomer, "Ravi Stores", "C005");
    f.LoadPreviousValues();
    Pick(f.txtCustomerID, "", "");
    f.LoadCustomer();
    EXPECT_EQ(Box(f.txtCustomer), "Ravi Stores|C005");
    EXPECT_EQ(Box(f.txtCustomerID), "C005|C005");
}

TEST_F(PartiesAutofill, TheSameSalesmanAgainMovesOnWithoutReloading) {
    Pick(f.txtSalesman, "Arun Kumar", "1");
    EnterSalesman();
    Pick(f.txtBeat, "Anna Nagar", "1");
    f.LoadPreviousValues();
    f.txtSalesman.SetFocus();
    EnterSalesman();
    // Nothing changed: the beat is not cleared and reloaded.
    EXPECT_EQ(f.txtBeat.Text(), "Anna Nagar");
    EXPECT_EQ(Focused(), "txtBeat");
}

}  // namespace
}  // namespace screen_test
