// Choosing the customer, what comes with it, and the credit line.
#include "screen_fixture.h"

namespace screen_test {
namespace {

using screen::Zuro_frmDispatch_Dispatch;

class CustomerEntry : public ScreenTest {
protected:
    Zuro_frmDispatch_Dispatch& f = Open(2);
};

TEST_F(CustomerEntry, AChosenCustomerBringsCategoryAndPriceHeading) {
    Type(f.txtCustomer, "City");
    Pick(1);
    Key(f.txtCustomer, 13);
    EXPECT_EQ(std::tuple(f.txtCustomerID.Text(), f.nCustomerCategory), std::tuple("C003", 3));
    // The demo's label table shortens the heading.
    EXPECT_EQ(f.lstAvailable.ColumnHeaders[2].Text, "Spl. Price");
}

TEST_F(ScreenTest, TheListPageOffersAllCustomersButANewNoteDoesNot) {
    Zuro_frmDispatch_Dispatch& listPage = Open(1);
    Type(listPage.txtCustomer, "A");
    EXPECT_EQ(ListRows().at(0), "ALL CUSTOMERS");
    listPage.Close();

    Zuro_frmDispatch_Dispatch& note = Open(2);
    Type(note.txtCustomer, "A");
    EXPECT_NE(ListRows().at(0), "ALL CUSTOMERS");
}

TEST_F(CustomerEntry, EnterWithTheListOpenTakesItsHighlightedRow) {
    Type(f.txtCustomer, "Anand");
    Key(f.txtCustomer, 13);
    EXPECT_EQ(std::tuple(f.txtCustomer.Tag, f.txtCustomerID.Text()), std::tuple("C001", "C001"));
}

TEST_F(CustomerEntry, ClearingTheNameClearsTheCodeOnLeaving) {
    f.txtCustomerID.SetText("C005");
    Type(f.txtCustomer, "");
    f.txtSalesman.SetFocus();
    EXPECT_EQ(f.txtCustomerID.Text(), "");
}

TEST_F(CustomerEntry, SmallHelpers) {
    EXPECT_EQ(Zuro_frmDispatch_Dispatch::DoubleQuotes("Devi's O'Mart"), "Devi''s O''Mart");
    int key = 'q';
    Zuro_frmDispatch_Dispatch::ToUpperKey(key);
    EXPECT_EQ(std::tuple(key, f.IsTradeCustomer("C001"), f.IsTradeCustomer("C007")), std::tuple('Q', true, false));
}

TEST_F(CustomerEntry, CtrlF7AsksForAFormTheScreenNeverMakes) {
    int key = 118;
    f.HandleCtrlF7(key, 2);
    EXPECT_TRUE(TranscriptHas("error 91 Global : HandleCtrlF7 : "));
    EXPECT_EQ(f.FieldText("nCustomerEntrySource"), "0");
    int other = 118;
    f.HandleCtrlF7(other, 0);
    expectedErrors = 1;
}

TEST_F(CustomerEntry, TheCustomerFormHandsBackACustomer) {
    f.nCustomerEntrySource = 2;
    f.CustomerCallBack("C009", "Lakshmi Provisions");
    EXPECT_EQ(std::tuple(Box(f.txtCustomerID), f.ActiveControl()), std::tuple("C009|C009", &f.txtCustomerID));
    f.nCustomerEntrySource = 1;
    f.CustomerCallBack("C009", "Lakshmi Provisions");
    EXPECT_EQ(Box(f.txtCustomer), "Lakshmi Provisions|C009");
}

TEST_F(CustomerEntry, TheFiguresOfTheCreditLine) {
    // A limit and a limit of -1 (N/A) are read by the customer-refusals session.
    // A customer in credit shows a negative amount owed.
    EXPECT_GT(f.GetOutstandingBalance("C011"), 0);
    f.ShowCustomerCredit("Nila Enterprises", false);
    EXPECT_NE(LastStatus().find("Net O/S: -"), std::string::npos);
    // Overdue bills and cheques in hand.
    EXPECT_GT(f.GetCustomerOverDue("C006", 1), 0);
    EXPECT_DOUBLE_EQ(f.GetChequesInHand("C014"), 3500);
    f.ShowCustomerCredit("Sundar & Sons", true);
    EXPECT_NE(LastStatus().find("Chqs in Hand: 3500, No.of Bills O/S: "), std::string::npos);
}

TEST_F(CustomerEntry, AnUnknownCustomerReadsZeroEverywhere) {
    f.ShowCustomerCredit("No Such Customer", true);
    EXPECT_EQ(
        LastStatus(),
        "Net Cr Limit: 0.00, Net O/S: 0.00, Not Overdue: 0.00, Overdue: 0.00, Chqs in Hand: 0, No.of Bills O/S: 0");
}

}  // namespace
}  // namespace screen_test
