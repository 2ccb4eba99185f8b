// The screen's own statements, put together as the screen puts them together, run
// through the connection on a small database.
#include <algorithm>
#include <sstream>

#include <gtest/gtest.h>

#include "platform/convert.h"
#include "platform/runtime_error.h"
#include "server/procedure_context.h"
#include "server_test_support.h"

namespace server {
namespace {

using testkit::RowsText;

// The mapping of salesmen, beats and customers, as the server's function answered it:
// 0 and the empty name mean no restriction.
platform::ResultSet MappedSalesmanBeatAndCustomer(ProcedureContext& context, const std::vector<platform::Value>& args) {
    return context.Query(
        "SELECT m.SalesmanID, m.Salesman_Name, m.BeatID, m.BeatName, m.CustomerID, c.Company_Name, "
        "c.BillingAddress AS Address FROM SalesmanBeatCustomer m JOIN Customer c ON c.CustomerID = m.CustomerID "
        "WHERE (?1 = 0 OR m.SalesmanID = ?1) AND (?2 = 0 OR m.BeatID = ?2) AND (?3 = '' OR c.Company_Name = ?3) "
        "ORDER BY m.SalesmanID, m.BeatID",
        {args.at(0), args.at(1), args.at(2)});
}

platform::ResultSet ListCategoryGroup(ProcedureContext& context, const std::vector<platform::Value>& args) {
    return context.Query("SELECT GroupID, GroupName FROM SalesmanBeatCustomer WHERE SalesmanID = ? ORDER BY GroupID",
                         {args.at(0)});
}

platform::ResultSet ItemsOfAllCategories(ProcedureContext& context, const std::vector<platform::Value>&) {
    return context.Query("SELECT Product_Code, ProductName FROM Items ORDER BY Product_Code");
}

class ScreenStatements : public ::testing::Test {
protected:
    ScreenStatements() {
        registry_.RegisterTableFunction("Fn_Get_MappedSalemanBeatAndCustomer_QAX", &MappedSalesmanBeatAndCustomer);
        registry_.RegisterTableFunction("fn_ListCategoryGroup", &ListCategoryGroup);
        registry_.RegisterTableFunction("Fn_Get_Items_QAX_AllCat", &ItemsOfAllCategories);
        connection_ = testkit::MakeSmallDatabase(folder_.File("small.db"), registry_);
    }

    std::string Rows(const std::string& sql) { return RowsText(connection_->Execute(sql)); }
    // For statements with no Order By: the rows as a set.
    std::string SortedRows(const std::string& sql) {
        std::vector<std::string> rows;
        std::stringstream all(Rows(sql));
        for (std::string row; std::getline(all, row, ';');) rows.push_back(row);
        std::sort(rows.begin(), rows.end());
        std::string out;
        for (const auto& row : rows) out += (out.empty() ? "" : ";") + row;
        return out;
    }
    std::string Native(const std::string& sql) { return RowsText(connection_->ExecuteNative(sql)); }

    testkit::ScratchFolder folder_;
    ProcedureRegistry registry_;
    std::shared_ptr<EmbeddedConnection> connection_;
};

TEST_F(ScreenStatements, CustomerAndSourceDocumentLookUps) {
    std::string id = "c001";  // keys compare without regard to case, as on the server
    EXPECT_EQ(Rows("Select top 1 BillingAddress,ShippingAddress, CustomerCategory from customer Where CustomerID = N'" +
                   id + "'"),
              "1 Mill Road|Dock 4|2");
    std::string name = "O''Brien & Sons";  // as EscapeQuotes leaves it
    EXPECT_EQ(Rows("Select top 1 BillingAddress,ShippingAddress, CustomerCategory from customer Where Company_Name = N'" +
                   name + "'"),
              "9 Quay|NULL|3");
    EXPECT_EQ(Rows("SELECT CustomerCategory FROM Customer WHERE CustomerID = N'" + std::string("C002") + "'"), "3");
    EXPECT_EQ(Rows("SELECT CreditLimit FROM Customer WHERE CustomerID = N'" + std::string("C001") + "'"), "50000r");
    EXPECT_EQ(Rows("Select isnull(rtrim(ltrim(DLNumber)),'') from customer where CustomerID= '" + std::string("C001") + "'"),
              "DL-77");
    EXPECT_EQ(Rows("Select isnull(rtrim(ltrim(DLNumber21)),'') from customer where CustomerID= '" + std::string("C001") + "'"),
              "");

    std::string poNumbers = "21,22";
    EXPECT_EQ(SortedRows("Select [BillingAddress],[ShippingAddress] from [POAbstractReceived] Where [PONumber]  in (" +
                         poNumbers + ")"),
              "PO bill 2|PO ship 2;PO bill|PO ship");
    std::string soNumbers = "11,12";
    EXPECT_EQ(SortedRows("Select [BillingAddress],[ShippingAddress],IsNull([SalesmanID],0),IsNull([BeatID],0),"
                         "IsNull([GroupID],-1) from [SOAbstract] Where [SONumber]  in (" +
                         soNumbers + ")"),
              "SO bill 2|SO ship 2|0|5|2;SO bill|SO ship|3|0|-1");
    EXPECT_EQ(Rows("SELECT Distinct(PODetailReceived.Product_Code)From PODetailReceived WHERE PONumber IN (" + poNumbers +
                   ") AND PODetailReceived.Product_Code not in (select Alias from items)"),
              "UNKNOWN9");
    EXPECT_EQ(SortedRows("Select Items.Product_Code, SUM(PODetailReceived.Quantity) From PODetailReceived, Items WHERE "
                         "PODetailReceived.PONumber In ( " +
                         std::string("21") + ") AND PODetailReceived.Product_Code = Items.Alias GROUP BY Items.Product_Code"),
              "CHOC1|15r;SOAP3|2r");
}

TEST_F(ScreenStatements, MappedPartiesThroughTableFunctions) {
    auto mapped = [](long salesman, long beat, const std::string& customer) {
        return "dbo.Fn_Get_MappedSalemanBeatAndCustomer_QAX(" + std::to_string(salesman) + "," + std::to_string(beat) +
               ",'" + customer + "')";
    };
    EXPECT_EQ(Rows("Select Distinct CustomerID,Company_Name,Address From " + mapped(1, 0, "") +
                   " Where IsNull(Company_Name,'') <> '' And Company_Name Like '" + "ac" + "%'"),
              "C001|Acme Traders|1 Mill Road");
    EXPECT_EQ(Rows("Select Distinct SalesmanID,Salesman_Name From " + mapped(0, 0, "Acme Traders") +
                   " Where IsNull(Salesman_Name,'') <> '' And Salesman_Name Like '%%' Order By Salesman_Name"),
              "2|Asha;1|Ravi");
    // Asha's only beat for Acme has no name, so the count is 0 and the screen clears the customer.
    EXPECT_EQ(Rows("Select Count(Distinct BeatID) From " + mapped(2, 0, "Acme Traders") +
                   " Where IsNull(BeatName,'') <> '' "),
              "0");
    EXPECT_EQ(Rows("Select Distinct BeatID,BeatName From " + mapped(1, 0, "") +
                   " Where IsNull(BeatName,'') <> '' Order By BeatName"),
              "5|North;6|South");
    EXPECT_EQ(Rows("Select Distinct CustomerID,Company_Name From dbo.Fn_Get_MappedSalemanBeatAndCustomer_QAX(" +
                   std::string("2") + "," + "6" + ",''" + ") Where IsNull(Company_Name,'') <> '' And Company_Name Like '%%' "
                   "Order By Company_Name"),
              "C002|O'Brien & Sons");
    EXPECT_EQ(SortedRows("Select Distinct GroupID,GroupName From dbo.fn_ListCategoryGroup(" + std::string("1") +
                         ") Where IsNull(GroupName,'') <> '' And GroupName Like '%%'"),
              "1|Foods;2|Home care");
    EXPECT_EQ(SortedRows("Select Product_Code,ProductName From dbo.Fn_Get_Items_QAX_AllCat() Where ProductName Like '" +
                         std::string("ch") + "%'"),
              "CHIP2|Chips Large;CHOC1|Choco Bar");
    // The temporary tables are gone after each statement.
    EXPECT_EQ(Native("SELECT count(*) FROM temp.sqlite_master"), "0");
}

TEST_F(ScreenStatements, ItemAndBatchLookUps) {
    std::string code = "choc1";
    EXPECT_EQ(Rows("SELECT Track_Batches, Sale_Price, Price_Option, Track_Inventory, PTS, PTR, Company_Price FROM Items, "
                   "ItemCategories WHERE Product_Code = N'" +
                   code + "' AND ItemCategories.CategoryID = Items.CategoryID"),
              "1|12.5r|1|1|10r|11r|9.75r");
    EXPECT_EQ(Rows("SELECT ItemCategories.Price_Option,Items.Productname,items.Track_batches, ItemCategories.Track_Inventory"
                   " FROM ItemCategories,Items where Items.CategoryID = ItemCategories.CategoryID and "
                   "(((Items.Product_Code)= N'" +
                   code + "'));"),
              "1|Choco Bar|1|1");
    EXPECT_EQ(Rows("SELECT ISNULL(Virtual_Track_Batches, 0) FROM Items WHERE Product_Code = N'" + code + "'"), "0");
    EXPECT_EQ(Rows("SELECT TrackPKD, IsNull(Virtual_Track_Batches,0) FROM Items WHERE Product_Code = N'CHIP2'"), "1|1");
    EXPECT_EQ(Rows("Select IsNull(UOM1_Conversion,1) From Items Where Product_code =N'" + std::string("CHIP2") + "'"), "1");
    EXPECT_EQ(Rows("Select UOM1_Conversion From Items Where Product_Code = '" + std::string("SOAP3") + "'"), "4r");
    EXPECT_EQ(Rows("Select top 1 Batch_Code, IsNull(Free, 0) as Free, PTS, PTR, ECP, Company_Price, TaxSuffered, "
                   "ApplicableOn, PartofPercentage from Batch_Products Where Batch_Code=" +
                   std::to_string(7)),
              "7|0|10r|11r|13r|9.75r|4r|1|100r");
    EXPECT_EQ(Rows("Select count(*) from DispatchDetail where Dispatchid=" + std::to_string(5) + " and Product_code=N'" +
                   code + "'"),
              "2");
    int first = (3 - 1) * 5 + 10;
    EXPECT_EQ(Rows("Select colwidth from formatinfo where formatid>=" + std::to_string(first) +
                   "and formatid<=" + std::to_string(first + 4)),
              "");
    first = (1 - 1) * 5 + 10;
    EXPECT_EQ(Rows("Select colwidth from formatinfo where formatid>=" + std::to_string(first) +
                   "and formatid<=" + std::to_string(first + 4)),
              "1200;900;700");
}

TEST_F(ScreenStatements, SettingsMessagesAndDocumentTypes) {
    EXPECT_EQ(Rows("Select Isnull(sum(flag),1) from tbl_Zuro_ConfigAbstract Where ScreenCode = 'ValidateHealthCareItem'"),
              "1");
    EXPECT_EQ(Rows("Select Message From ErrorMessages Where ErrorID = " + std::to_string(10)),
              "The category group is not mapped to the salesman. Continue?");
    // The stored spelling comes back, which is how the screen puts the case right.
    EXPECT_EQ(Rows("Select DocumentType From TransactionDocNumber Where documenttype = N'" + std::string("inv") + "'"),
              "INV");
    EXPECT_EQ(Rows("Select Active From TransactionDocNumber Where DocumentType=N'" + std::string("OLD") +
                   "' And  TransactionType=" + std::to_string(5)),
              "0");
    EXPECT_EQ(Rows("SELECT ISNULL(HasSlabs, 0) FROM Schemes WHERE SchemeID = " + std::to_string(2)), "0");
    EXPECT_EQ(Rows("Select CustomerID From DispatchAbstract Where DispatchID = " + std::to_string(5) +
                   " And Status & 128 = 0"),
              "C001");
    EXPECT_EQ(Rows("Select CustomerID From DispatchAbstract Where DispatchID = " + std::to_string(6) +
                   " And Status & 128 = 0"),
              "");
}

TEST_F(ScreenStatements, ChangesReportTheirRowsAndLandInTheDatabase) {
    auto closed = connection_->Execute("Update [POAbstractReceived] set Status = Status | 128 where [PONumber] IN (" +
                                       std::string("21,22") + ")");
    EXPECT_EQ(closed->RowsAffected(), 2);
    EXPECT_EQ(Native("SELECT Status FROM POAbstractReceived ORDER BY PONumber"), "128;130");

    std::string remarks = "Rate ''fixed''";
    connection_->Execute("UPDATE DispatchAbstract SET Status = Status | 384, Remarks = N'" + remarks +
                         "' WHERE DispatchID = " + "5");
    EXPECT_EQ(Native("SELECT Status, Remarks FROM DispatchAbstract WHERE DispatchID = 5"), "385|Rate 'fixed'");

    auto cancelled = connection_->Execute(
        "UPDATE DispatchAbstract SET Status = Status | 192, Remarks = N'" + std::string("Wrong goods") +
        "',CancelUserName = N'" + "clerk" + "',CancelDate = getdate() WHERE DispatchID = " + "6");
    EXPECT_EQ(cancelled->RowsAffected(), 1);
    auto row = connection_->Execute("Select Status, CancelUserName, CancelDate From DispatchAbstract Where DispatchID = 6");
    EXPECT_EQ(row->Fields(0), platform::Value(194));
    EXPECT_EQ(row->Fields(1), platform::Value("clerk"));
    ASSERT_EQ(row->Fields(2).kind(), platform::Value::Kind::Date);
    EXPECT_NEAR(row->Fields(2).AsDate().serial, testkit::LocalNow().serial, 5.0 / (24 * 60));

    connection_->Execute("UPDATE Batch_Products SET Quantity = Quantity + " + platform::NumberToText(12.5) +
                         " WHERE Batch_Code = " + std::to_string(7));
    connection_->Execute("UPDATE Batch_Products SET Quantity = Quantity + " + platform::NumberToText(-2.5) +
                         " WHERE Batch_Code = " + std::to_string(7));
    EXPECT_EQ(Native("SELECT Quantity FROM Batch_Products WHERE Batch_Code = 7"), "110r");

    // An update that matches nothing says so.
    EXPECT_EQ(connection_->Execute("Update [POAbstractReceived] set Status = 0 where [PONumber] IN (99)")->RowsAffected(), 0);
}

TEST_F(ScreenStatements, AnEmptyDocumentListFailsAsOnTheServer) {
    std::string poNumbers;
    try {
        connection_->Execute("Update [POAbstractReceived] set Status = Status | 128 where [PONumber] IN (" + poNumbers + ")");
        FAIL() << "an empty list must fail";
    } catch (const platform::RuntimeError& error) {
        EXPECT_EQ(error.Number(), platform::err::DatabaseError);
    }
    EXPECT_EQ(Native("SELECT Status FROM POAbstractReceived ORDER BY PONumber"), "0;2");
}

TEST_F(ScreenStatements, SeveralStatementsInOneCallEachGiveAResult) {
    auto recordset = connection_->Execute("Update Schemes Set SchemeType = 9 Where SchemeID = 1; "
                                          "Select SchemeType From Schemes Where SchemeID = 1");
    EXPECT_EQ(recordset->RowsAffected(), 1);
    ASSERT_TRUE(recordset->NextRecordset());
    EXPECT_EQ(recordset->Fields(0), platform::Value(9));
}

TEST_F(ScreenStatements, BuiltInFunctionsGiveTheServersAnswers) {
    auto row = connection_->Execute(
        "Select Len('ab  '), Right('abcdef', 2), Right('abc', 0), Left('abcdef', 2), Charindex('c', 'abc'), "
        "Convert(varchar(10), '2026-11-22 10:30:00', 103), Cast('12.345' as decimal(10,2)), Cast(12.7 as int), "
        "Cast('2026-11-22' as datetime), Substring('abcdef', 2, 3), Convert(bit, 5)");
    EXPECT_EQ(RowsText(row), "2|ef||ab|3|22/11/2026|12.35r|12|D:2026-11-22 00:00:00|bcd|1");

    connection_->Execute("Insert Into Schemes (SchemeID, SchemeType) Values (40, 1)");
    EXPECT_EQ(Rows("Select @@IDENTITY"), "40");
}

}  // namespace
}  // namespace server
