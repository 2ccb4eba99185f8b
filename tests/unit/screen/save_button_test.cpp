// The save button's checks of the lines and parties: the health care gate, each line's
// quantity and name, the mapping of salesman, beat and customer, the items a group or a
// DS type sells, and a line whose item was taken away. Nothing refused is written.
#include "platform/recording_connection.h"
#include "screen_fixture.h"

namespace screen_test {
namespace {

using namespace grid;

class SaveButton : public PartiesTest {
protected:
    // Ravi Stores as the clerk chooses them (Arun Kumar, Anna Nagar, Foods and
    // Beverages come with them), with a box of Salt Crackers and two of Marie keyed.
    void RaviNote() {
        Type(f.txtCustomer, "Ravi");
        ScreenTest::Pick(1);
        Key(f.txtCustomer, 13);
        KeyLine(1, "FD003", "5");
        KeyLine(2, "FD001", "2");
        Numbered();
    }
    std::string Notes() { return Scalar("SELECT Count(*) FROM DispatchAbstract"); }
};

TEST_F(SaveButton, ASalesmanOffTheBeatAndLinesTheGroupOrDSTypeDoesNotSellAreRefused) {
    RaviNote();
    const std::string notes = Notes();
    const std::tuple<std::string, std::string, std::string, std::string, long> cases[] = {
        {"Chitra Devi", "3", "Foods", "1", 35},  // Chitra serves Velachery only
        {"Arun Kumar", "1", "Beverages", "2", 13},
        // Chitra's DS type sells health and personal care, whatever group the note shows.
        {"Chitra Devi", "3", "Foods", "1", 13},
    };
    for (const auto& [salesman, salesmanID, group, groupTag, number] : cases) {
        SCOPED_TRACE(number);
        if (number == 13 && salesmanID == "3") Scalar("INSERT INTO SalesmanBeat (SalesmanID, BeatID) VALUES (3, 1)");
        Pick(f.txtSalesman, salesman, salesmanID);
        Pick(f.txtCategory, group, groupTag);
        f.cmdSave_Click();
        EXPECT_EQ(Numbered(), std::vector<long>{number});
        EXPECT_EQ(Focused(), "cmdSave");
    }
    EXPECT_EQ(Notes(), notes);

    // Under all categories the parties are not looked at.
    f.bAllCategories = true;
    f.cmdSave_Click();
    EXPECT_TRUE(Numbered().empty());
    EXPECT_NE(Notes(), notes);
}

TEST_F(SaveButton, ALineWhoseItemWasTakenAwayStopsTheSaveAtItsRow) {
    RaviNote();
    SetCell(colItemCode, "");
    f.cmdSave_Click();
    EXPECT_EQ(std::tuple(LastStatus(), f.DTFlexDispatch.GridRow(), f.DTFlexDispatch.GridCol(), Notes()),
              std::tuple("Invalid Item selected", 1, colItemName, "9"));
}

TEST_F(SaveButton, HealthCareItemsWithAPriceNeedACustomerWithADrugLicence) {
    auto& grid = f.DTFlexDispatch;
    grid.SetGridRows(2);
    for (auto [col, text] : {std::pair{colItemCode, "HC001"}, {colSalePrice, "0"}, {colQuantity, "1"}})
        SetCell(col, text);
    EXPECT_TRUE(f.ValidateHealthCareItems("C005")) << "a free row is passed over";
    SetCell(colSalePrice, "18");
    EXPECT_TRUE(f.ValidateHealthCareItems("C010")) << "one licence number is enough";
    EXPECT_TRUE(Messages().empty());
}

// The chain's checks of the lines, each stopping the save before anything is written.
TEST_F(SaveButton, AHealthCareLineForACustomerWithoutADrugLicenceOrAZeroQuantityStopsTheSave) {
    RaviNote();
    SetCell(colQuantity, "0", 2);
    f.cmdSave_Click();
    EXPECT_EQ(std::tuple(LastStatus(), Focused()), std::tuple("Invalid quantity", "DTFlexDispatch"));

    SetCell(colItemCode, "HC001", 2);
    SetCell(colSalePrice, "18", 2);
    SetCell(colQuantity, "1", 2);
    f.cmdSave_Click();
    EXPECT_EQ(Messages(),
              std::vector<std::string>{
                  "Customer do not have the DL Number, delete the Healthcare Items for saving the Transaction"});
    EXPECT_EQ(Notes(), "9");
}

TEST_F(SaveButton, EveryLineNeedsTheNameOfItsCode) {
    auto& grid = f.DTFlexDispatch;
    grid.SetGridRows(2);
    for (auto [col, text] :
         {std::pair{colItemCode, "FD003"}, {colItemName, "salt crackers 200G"}, {colUOMID, "1"}, {colQuantity, "5"}})
        SetCell(col, text);
    EXPECT_TRUE(f.ValidateQty(1)) << "names match in any case";

    SetCell(colItemName, "Salt Crackers");
    EXPECT_FALSE(f.ValidateQty(1));
    EXPECT_EQ(LastStatus(), "Invalid ItemCode / ItemName ");
    EXPECT_EQ(f.DTFlexDispatch.GridCol(), colItemName);
}

// A customer code typed with a statement behind it goes to the server as the screen
// writes the statement; the server runs one statement a call, so the handler logs the
// refusal and nothing is written.
TEST_F(ScreenTest, ACustomerCodeCarryingAStatementMeetsTheServersRefusal) {
    expectedErrors = 1;
    auto recorder = std::make_shared<platform::RecordingConnection>(database);
    UseConnection(recorder);
    Open(2);
    form->DTFlexDispatch.SetGridRows(2);
    for (auto [col, text] : {std::pair{colItemCode, "HC001"}, {colSalePrice, "18"}, {colQuantity, "1"}})
        SetCell(col, text);
    form->txtCustomerID.SetText("C005'; DELETE FROM Customer --");
    form->cmdSave_Click();
    EXPECT_TRUE(TranscriptHas(
        "Dispatch: cmdSave_Click - Only one statement may be run here; found more: DELETE FROM Customer --'"))
        << ErrorLines();
    EXPECT_EQ(Scalar("SELECT Count(*) FROM Customer"), "15");
    const std::string sent =
        "Select isnull(rtrim(ltrim(DLNumber)),'') from customer where CustomerID= 'C005'; DELETE FROM Customer --'";
    bool found = false;
    for (const auto& call : recorder->Calls()) found = found || call.text == sent;
    EXPECT_TRUE(found);
}

}  // namespace
}  // namespace screen_test
