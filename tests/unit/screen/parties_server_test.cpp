// The server objects behind the party fields, over the demo data: who is mapped to
// whom, which groups a salesman's DS type sells, and the answers the screen reads.
#include <gtest/gtest.h>

#include <string>

#include "parties_test_fixture.h"
#include "platform/convert.h"

namespace {

class PartyServerObjects : public screen_test::ScreenTest {
protected:
    // Rows as "a|b;c|d".
    std::string Rows(const platform::RecordsetPtr& rs) { return parties_test::RowsText(rs); }
    std::string Query(const std::string& sql) { return Rows(database->Execute(sql)); }
    std::string Call(const std::string& name, const platform::ParameterList& parameters) {
        return Rows(database->RunProcedure(name, parameters));
    }
    static platform::Parameter Int(long n) { return {platform::Value(n), platform::adtype::Integer}; }
    static platform::Parameter Text(const std::string& s) { return {platform::Value(s), platform::adtype::VarChar}; }
};

TEST_F(PartyServerObjects, MappingNarrowsEachPartyAndZeroLeavesItOpen) {
    const std::string mapped = "From dbo.Fn_Get_MappedSalemanBeatAndCustomer_QAX(";
    // The beats of a salesman, without the deactivated Porur (7).
    EXPECT_EQ(
        Query("Select Distinct BeatID,BeatName " + mapped + "1,0,'') Where IsNull(BeatName,'') <> '' Order By BeatID"),
        "1|Anna Nagar;2|T Nagar;3|Mylapore");
    // The salesmen of a beat.
    EXPECT_EQ(Query("Select Distinct SalesmanID " + mapped + "0,2,'') Order By SalesmanID"), "1;2");
    // The beats of a customer by name, in any case.
    EXPECT_EQ(Query("Select Distinct BeatID " + mapped + "0,0,'anand stores') Order By BeatID"), "1;3");
    // A salesman with no beats still answers, with no beat.
    EXPECT_EQ(Query("Select SalesmanID, IsNull(BeatName,'-') " + mapped + "5,0,'')"), "5|-");
    // Salesman and beat together.
    EXPECT_EQ(Query("Select Distinct CustomerID " + mapped + "3,5,'') Order By CustomerID"), "C003;C010");
}

TEST_F(PartyServerObjects, MappingNeverOffersInactiveCustomersOrCategoriesFourAndFive) {
    database->ExecuteScript(
        "INSERT INTO BeatCustomer (BeatID, CustomerID) VALUES (5, 'C007'), (5, 'C008'), (5, 'C015');");
    EXPECT_EQ(Query("Select Distinct CustomerID From dbo.Fn_Get_MappedSalemanBeatAndCustomer_QAX(0,5,'') "
                    "Where IsNull(Company_Name,'') <> '' Order By CustomerID"),
              "C003;C010");
}

TEST_F(PartyServerObjects, MappingRefusesAShortCall) {
    EXPECT_THROW(database->Execute("Select * From dbo.Fn_Get_MappedSalemanBeatAndCustomer_QAX(1,0)"),
                 platform::RuntimeError);
}

TEST_F(PartyServerObjects, CategoryGroupsOfTheSalesmansDSType) {
    EXPECT_EQ(Query("Select GroupID,GroupName From dbo.fn_ListCategoryGroup(1)"), "1|Foods;2|Beverages");
    // Every active group; the inactive Festive Range (5) is not offered.
    EXPECT_EQ(Query("Select GroupID From dbo.fn_ListCategoryGroup(4)"), "1;2;3;4");
    EXPECT_EQ(Query("Select GroupID From dbo.fn_ListCategoryGroup(0)"), "");

    EXPECT_EQ(Call("sp_CheckForAllCatGrpMapped", {Int(4)}), "1");
    EXPECT_EQ(Call("sp_CheckForAllCatGrpMapped", {Int(1)}), "2");
    EXPECT_EQ(Call("sp_CheckForAllCatGrpMapped", {Int(99)}), "0");

    EXPECT_EQ(Call("sp_get_CatMappedDSTypeID", {Int(3)}), "3");
    EXPECT_EQ(Call("sp_get_CatMappedDSTypeID", {Int(1)}), "0");

    EXPECT_EQ(Call("Sp_CheckGroupExistsForSalesman", {Int(1), Text("1,2")}), "1");
    EXPECT_EQ(Call("Sp_CheckGroupExistsForSalesman", {Int(1), Text("2,3")}), "0");
    EXPECT_EQ(Call("Sp_CheckGroupExistsForSalesman", {Int(4), Text("0")}), "1");
    EXPECT_EQ(Call("Sp_CheckGroupExistsForSalesman", {Int(1), Text("0")}), "0");
    EXPECT_EQ(Call("Sp_CheckGroupExistsForSalesman", {Int(1), Text("")}), "0");

    EXPECT_EQ(Call("Zuro_sp_Get_CGNames", {Text("2,1,2")}), "Beverages;Foods");
}

TEST_F(PartyServerObjects, ItemsOfAListOfGroups) {
    const std::string items = Query("Select Product_Code From dbo.Sp_Get_Items_QAX('1,2') Order By Product_Code");
    EXPECT_NE(items.find("FD001"), std::string::npos);
    EXPECT_NE(items.find("BV001"), std::string::npos);
    EXPECT_EQ(Query("Select Count(*) From dbo.Sp_Get_Items_QAX('1,2') Where Product_Code Like 'HC%'"), "0");
    database->ExecuteScript("UPDATE Items SET Active = 0 WHERE Product_Code = 'FD001';");
    EXPECT_EQ(Query("Select Count(*) From dbo.Sp_Get_Items_QAX('1') Where Product_Code = 'FD001'"), "0");
    EXPECT_EQ(Query("Select Count(*) From dbo.Sp_Get_Items_QAX('')"), "0");
}

TEST_F(PartyServerObjects, DefaultsAndTheActiveBeat) {
    EXPECT_EQ(Call("Sp_Get_BeatSalesMan_QAX", {Text("C011"), Int(1)}), "2|Bala Murugan|4|Adyar");
    // Several beats: the first by number; several salesmen: the first by number.
    EXPECT_EQ(Call("Sp_Get_BeatSalesMan_QAX", {Text("C001"), Int(1)}), "1|Arun Kumar|1|Anna Nagar");
    EXPECT_EQ(Call("Sp_Get_BeatSalesMan_QAX", {Text("C002"), Int(1)}), "1|Arun Kumar|2|T Nagar");
    EXPECT_EQ(Call("Sp_Get_BeatSalesMan_QAX", {Text("C012"), Int(1)}), "");

    EXPECT_EQ(Call("Sp_Get_BeatSalesMan_Cust_QAX", {Int(2)}), "2");
    EXPECT_EQ(Call("Sp_Get_BeatSalesMan_Cust_QAX", {Int(4)}), "");

    EXPECT_EQ(Call("sp_Validate_ActiveBeat", {{platform::Value(7.0), platform::adtype::Double}, Int(1)}), "0");
    EXPECT_EQ(Call("sp_Validate_ActiveBeat", {{platform::Value(1.0), platform::adtype::Double}, Int(1)}), "1");
    EXPECT_EQ(Call("sp_Validate_ActiveBeat", {{platform::Value(99.0), platform::adtype::Double}, Int(1)}), "");
}

}  // namespace
