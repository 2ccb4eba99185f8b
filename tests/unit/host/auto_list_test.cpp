#include <stdexcept>

#include "host_fixture.h"
#include "platform/controls.h"

namespace host_test {
namespace {

constexpr int kEnter = 13, kEscape = 27, kUp = 38, kDown = 40;

class AutoListTest : public HostTest, public host_services::AutoListOwner {
protected:
    AutoListTest() {
        Sql(R"(
            INSERT INTO Customer (CustomerID, Company_Name, BillingAddress, CustomerCategory) VALUES
                ('C1', 'Acme Traders', '1 Mill Road', 2), ('C2', 'O''Brien Stores', 'Quay Street', 1),
                ('C3', 'Acorn Depot', '', 4), ('C4', 'Abbey Mart', 'High Street', 3);
        )");
        list = services().newAutoList();
        list->SetOwner(*this);
        list->AttachControl(box);
        list->SetTableName("Customer");
        list->SetKeyField("CustomerID");
        list->SetDisplayField("Company_Name");
        list->SetFilter(" customercategory not in (4,5) ");
        connection->Clear();
    }
    void AutoListCallBack() override { ++callBacks; }
    void CustomerCallBack(const std::string&, const std::string&) override {}

    std::vector<std::string> Shown() {
        host::OpenList* open = host->VisibleList();
        return open ? open->RowTexts() : std::vector<std::string>{};
    }

    TestForm form;
    platform::TextBox box{form, "txtCustomer"};
    int callBacks = 0;
    std::unique_ptr<host_services::AutoList> list;
};

TEST_F(AutoListTest, TypedTextRunsTheTableQueryWithItsQuotesDoubled) {
    list->ShowList("O'B");
    EXPECT_EQ(Shown(), std::vector<std::string>{"O'Brien Stores"});
    EXPECT_TRUE(list->GetVisible());
    list->ShowList("Zz");
    EXPECT_FALSE(list->GetVisible()) << "nothing found opens nothing";
    EXPECT_EQ(host->VisibleList(), nullptr);

    connection->Clear();
    list->SetEnabled(true);  // while the program writes the box
    list->ShowList("A");
    EXPECT_EQ(std::tuple(list->GetVisible(), Statements().empty()), std::tuple(false, true));
    list->SetEnabled(false);
    list->ShowList("A");
    EXPECT_TRUE(list->GetVisible());
}

TEST_F(AutoListTest, RowsComeInDisplayOrderAfterTheAllOption) {
    list->SetAllOption(true);
    list->SetAllOptionText("ALL CUSTOMERS");
    list->ShowList("A");
    // Acorn Depot is of category 4: the filter keeps it out.
    EXPECT_EQ(Shown(), (std::vector<std::string>{"ALL CUSTOMERS", "Abbey Mart", "Acme Traders"}));
    EXPECT_THROW(host->VisibleList()->Pick(4), std::out_of_range);
    EXPECT_THROW(host->VisibleList()->Pick(0), std::out_of_range);
    EXPECT_EQ(box.Text(), "") << "a pick outside the list changes nothing";
    EXPECT_EQ(callBacks, 0);
    host->VisibleList()->Pick(1);
    EXPECT_EQ(std::tuple(box.Text(), box.Tag, list->GetSelectedKey()), std::tuple("ALL CUSTOMERS", "%", "%"));
}

TEST_F(AutoListTest, APickWritesTextThenTagWithTheListShut) {
    std::string tagDuringChange = "unset";
    box.Tag = "old";
    // As the screen's Change handler does: every change of the box asks for the list.
    box.Change.Connect([&] {
        tagDuringChange = box.Tag;
        list->ShowList(box.Text());
    });
    list->ShowList("Ac");
    host->VisibleList()->Pick(1);
    EXPECT_EQ(std::tuple(tagDuringChange, callBacks), std::tuple("old", 1));
    EXPECT_EQ(Statements().size(), 1u) << "the write must not have run the query again";
    box.SetText("Ab");
    EXPECT_TRUE(list->GetVisible()) << "typing afterwards opens it again";
}

TEST_F(AutoListTest, KeysWalkPickAndClose) {
    list->ShowList("A");  // Abbey Mart, Acme Traders
    int key = kUp;
    list->ListKeyDown(key, 0, 1);
    EXPECT_EQ(key, 0) << "an arrow the list used is swallowed with flag 1";
    key = kDown;
    list->ListKeyDown(key, 0, 0);
    EXPECT_EQ(key, kDown) << "flag 0 leaves the arrow to the box";
    key = kDown;
    list->ListKeyDown(key, 0, 1);  // stays on the last row
    key = kEnter;
    list->ListKeyDown(key, 0, 1);
    EXPECT_EQ(key, kEnter) << "the box's own Enter logic still runs";
    EXPECT_EQ(box.Text(), "Acme Traders") << "Enter picks the row the walk stopped on";

    list->ShowList("Ab");
    key = kEscape;
    list->ListKeyDown(key, 0, 1);
    EXPECT_FALSE(list->GetVisible());
    EXPECT_EQ(box.Text(), "Acme Traders") << "Escape picks nothing";
    EXPECT_EQ(callBacks, 1);
}

TEST_F(AutoListTest, AnExplicitQueryTakesTheTypedTextAndTheClosingWildcard) {
    // The statement stands in place of the table's, so the category filter is gone.
    list->SetQuery("Select CustomerID, Company_Name From Customer Where Company_Name Like '", 0, 1);
    list->ShowList("Ac");
    EXPECT_EQ(Shown(), (std::vector<std::string>{"Acme Traders", "Acorn Depot"}));

    list->SetQuery("", 0, 1);
    list->SetExtraField("Isnull(BillingAddress, '') as Address ");
    list->ShowList("Abb");
    EXPECT_EQ(Statements().back(),
              "Select CustomerID, Company_Name, Isnull(BillingAddress, '') as Address  From Customer Where "
              "Company_Name Like N'Abb%' And  customercategory not in (4,5)  Order By Company_Name");
    EXPECT_EQ(Shown(), std::vector<std::string>{"Abbey Mart"});
}

TEST_F(AutoListTest, OnlyOneListStandsOpen) {
    platform::TextBox itemBox(form, "txtItem");
    auto second = services().newAutoList();
    second->AttachControl(itemBox);
    second->SetTableName("Customer");
    second->SetKeyField("CustomerID");
    second->SetDisplayField("CustomerID");

    list->ShowList("A");
    second->ShowList("C");
    EXPECT_FALSE(list->GetVisible());
    EXPECT_EQ(Shown(), (std::vector<std::string>{"C1", "C2", "C3", "C4"}));
    second.reset();  // a screen may drop its list while it stands open
    EXPECT_EQ(host->VisibleList(), nullptr);
}

}  // namespace
}  // namespace host_test
