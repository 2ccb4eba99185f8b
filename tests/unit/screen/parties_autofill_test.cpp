// Whichever party the clerk fills, the others narrow to what the mapping allows;
// a single candidate fills itself, and a previous choice that is still allowed
// comes back.
#include "parties_test_fixture.h"

namespace parties_test {
namespace {

class PartiesAutofill : public PartiesTest {};

TEST_F(PartiesAutofill, ASalesmanMappedToEveryGroupGetsAllCategoriesAndIsRefused) {
    auto& f = Form();
    Pick(f.txtSalesman, "Dinesh Raj", "4");
    EnterSalesman();

    EXPECT_EQ(f.txtCategory.Text(), f.szLblAllCategories);
    EXPECT_EQ(f.txtCategory.Tag, "0");
    // All categories does not go with a salesman: message 173, and focus stays.
    EXPECT_EQ(Numbered(), std::vector<long>{173});
    EXPECT_EQ(Focused(), "txtSalesman");
}

TEST_F(PartiesAutofill, ABeatWithOneCustomerFillsBothCustomerBoxesAndTheAddresses) {
    // Nila Enterprises alone on Adyar once Devi's Mart has closed.
    Sql("UPDATE Customer SET Active = 0 WHERE CustomerID = 'C013';");
    auto& f = Form();
    Pick(f.txtBeat, "Adyar", "4");
    EnterBeat();

    EXPECT_EQ(f.txtSalesman.Text(), "Bala Murugan");
    EXPECT_EQ(f.txtCustomer.Text(), "Nila Enterprises");
    EXPECT_EQ(f.txtCustomer.Tag, "C011");
    EXPECT_EQ(f.txtCustomerID.Text(), "C011");
    EXPECT_EQ(f.txtCustomerID.Tag, "C011");
    EXPECT_EQ(f.txtBillingAddress.Text(), "18 Gandhi Nagar, Adyar, Chennai");
    EXPECT_EQ(f.txtCategory.Text(), "Personal Care");
    // Every party filled: focus moves on past them.
    EXPECT_EQ(Focused(), "txtref");
    EXPECT_EQ(f.szPrevCustomerCode, "C011");
}

TEST_F(PartiesAutofill, LoadBeatRestoresThePreviousBeatOnlyWhileItIsAllowed) {
    auto& f = Form();
    // Anand Stores stands on two of Arun Kumar's beats.
    Pick(f.txtSalesman, "Arun Kumar", "1");
    Pick(f.txtCustomer, "Anand Stores", "C001");
    Pick(f.txtBeat, "Mylapore", "3");
    f.LoadPreviousValues();
    f.LoadBeat();
    EXPECT_EQ(f.txtBeat.Text(), "Mylapore");
    EXPECT_EQ(f.txtBeat.Tag, "3");

    // T Nagar is not one of them: with two candidates left the box is emptied.
    Pick(f.txtBeat, "T Nagar", "2");
    f.LoadPreviousValues();
    f.LoadBeat();
    EXPECT_EQ(f.txtBeat.Text(), "");
    EXPECT_EQ(f.txtBeat.Tag, "");
    EXPECT_EQ(f.txtCustomer.Tag, "C001");
}

TEST_F(PartiesAutofill, LoadBeatLetsGoACustomerOnNoneOfTheSalesmansBeats) {
    auto& f = Form();
    Pick(f.txtSalesman, "Chitra Devi", "3");
    Pick(f.txtCustomer, "Anand Stores", "C001");
    Pick(f.txtCustomerID, "C001", "C001");
    f.LoadBeat();
    EXPECT_EQ(f.txtCustomer.Text(), "");
    EXPECT_EQ(f.txtCustomerID.Text(), "");
    // With the customer gone, the salesman's one beat fills itself.
    EXPECT_EQ(f.txtBeat.Text(), "Velachery");
    EXPECT_TRUE(f.bPartyAutoFilled);
}

TEST_F(PartiesAutofill, LoadSalesmanRestoresThePreviousSalesmanAmongSeveral) {
    auto& f = Form();
    // T Nagar is worked by Arun Kumar and Bala Murugan.
    Pick(f.txtBeat, "T Nagar", "2");
    Pick(f.txtSalesman, "Bala Murugan", "2");
    f.LoadPreviousValues();
    f.LoadSalesman();
    EXPECT_EQ(f.txtSalesman.Text(), "Bala Murugan");
    EXPECT_EQ(f.txtSalesman.Tag, "2");

    f.ClearSalesman();
    f.LoadPreviousValues();
    f.LoadSalesman();
    EXPECT_EQ(f.txtSalesman.Text(), "");
    EXPECT_FALSE(f.bPartyAutoFilled);
}

TEST_F(PartiesAutofill, LoadCustomerRestoresThePreviousCustomerIntoBothBoxes) {
    auto& f = Form();
    Pick(f.txtSalesman, "Arun Kumar", "1");
    Pick(f.txtBeat, "Anna Nagar", "1");
    Pick(f.txtCustomer, "Ravi Stores", "C005");
    f.LoadPreviousValues();
    Pick(f.txtCustomerID, "", "");
    f.LoadCustomer();
    EXPECT_EQ(f.txtCustomer.Text(), "Ravi Stores");
    EXPECT_EQ(f.txtCustomer.Tag, "C005");
    EXPECT_EQ(f.txtCustomerID.Text(), "C005");
    EXPECT_EQ(f.txtCustomerID.Tag, "C005");
}

TEST_F(PartiesAutofill, TheSameSalesmanAgainMovesOnWithoutReloading) {
    auto& f = Form();
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

TEST_F(PartiesAutofill, DefaultsOfASourceDocument) {
    auto& f = Form();
    f.SetDefaultSalesman(2);
    f.SetDefaultBeat(4);
    f.SetDefaultCatGroup("3,1");
    EXPECT_EQ(f.txtSalesman.Text(), "Bala Murugan");
    EXPECT_EQ(f.txtSalesman.Tag, "2");
    EXPECT_EQ(f.txtBeat.Text(), "Adyar");
    EXPECT_EQ(f.txtCategory.Text(), "Personal Care,Foods");
    EXPECT_EQ(f.txtCategory.Tag, "3,1");
    f.SetDefaultCatGroup("0");
    EXPECT_EQ(f.txtCategory.Text(), f.szLblAllCategories);
    EXPECT_EQ(f.txtCategory.Tag, "0");
    // The programme's writes never open a list.
    EXPECT_EQ(host->VisibleList(), nullptr);
}

}  // namespace
}  // namespace parties_test
