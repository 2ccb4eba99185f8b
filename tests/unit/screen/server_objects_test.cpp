// The server objects behind the party fields and the item grid, over the demo data:
// who is mapped to whom, which groups a salesman's DS type sells, the items a dispatch
// may sell, whether a typed item is among them.
#include <gtest/gtest.h>

#include "platform/convert.h"
#include "screen_fixture.h"

namespace {

class ServerObjects : public screen_test::ScreenTest {
protected:
    // A result's rows as "a|b;c|d", each value as the runtime writes it.
    static std::string Rows(const platform::RecordsetPtr& rs) {
        std::string text;
        for (; rs && rs->IsOpen() && !rs->Eof(); rs->MoveNext()) {
            if (!text.empty()) text += ";";
            for (int i = 0; i < rs->FieldCount(); ++i) text += (i ? "|" : "") + platform::ToText(rs->Fields(i));
        }
        return text;
    }
    std::string Query(const std::string& sql) { return Rows(database->Execute(sql)); }
    std::string Codes(const std::string& source) {
        return Query("Select Product_Code From " + source + " Order By Product_Code");
    }
    std::string Call(const std::string& name, const platform::ParameterList& parameters) {
        return Rows(database->RunProcedure(name, parameters));
    }
    static platform::Parameter Int(long n) { return {platform::Value(n), platform::adtype::Integer}; }
    static platform::Parameter Text(const std::string& s) { return {platform::Value(s), platform::adtype::VarChar}; }
};

TEST_F(ServerObjects, MappingNarrowsEachPartyAndZeroLeavesItOpen) {
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

TEST_F(ServerObjects, MappingNeverOffersInactiveCustomersOrCategoriesFourAndFive) {
    database->ExecuteScript(
        "INSERT INTO BeatCustomer (BeatID, CustomerID) VALUES (5, 'C007'), (5, 'C008'), (5, 'C015');");
    EXPECT_EQ(Query("Select Distinct CustomerID From dbo.Fn_Get_MappedSalemanBeatAndCustomer_QAX(0,5,'') "
                    "Where IsNull(Company_Name,'') <> '' Order By CustomerID"),
              "C003;C010");
}

TEST_F(ServerObjects, CategoryGroupsOfTheSalesmansDSType) {
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

TEST_F(ServerObjects, ItemsOfAListOfGroups) {
    const std::string items = Query("Select Product_Code From dbo.Sp_Get_Items_QAX('1,2') Order By Product_Code");
    EXPECT_NE(items.find("FD001"), std::string::npos);
    EXPECT_NE(items.find("BV001"), std::string::npos);
    EXPECT_EQ(Query("Select Count(*) From dbo.Sp_Get_Items_QAX('1,2') Where Product_Code Like 'HC%'"), "0");
    EXPECT_EQ(Query("Select Count(*) From dbo.Sp_Get_Items_QAX('')"), "0");
}

TEST_F(ServerObjects, GroupsGiveTheActiveItemsOfTheirCategories) {
    EXPECT_EQ(std::tuple(Codes("dbo.Fn_Get_Items_QAX('2')"), Codes("dbo.Fn_Get_Items_QAX('2, 4')"),
                         Codes("dbo.Fn_Get_Items_QAX('')")),
              std::tuple("BV001;BV002;BV003", "BV001;BV002;BV003;HC001;HC002;HC003", ""));
    // A switched-off item is not offered; the switched-off group's items are not in all groups.
    database->Execute("Update Items Set Active = 0 Where Product_Code = 'BV002'");
    EXPECT_EQ(Codes("dbo.Fn_Get_Items_QAX('2')"), "BV001;BV003");
    const std::string all = Codes("dbo.Fn_Get_Items_QAX_AllCat()");
    EXPECT_EQ(std::tuple(all.find("FS001"), all.find("BV002")), std::tuple(std::string::npos, std::string::npos));
    EXPECT_NE(all.find("PM002"), std::string::npos);
    // Both columns, by name.
    EXPECT_EQ(Rows(database->Execute("Select ProductName From dbo.Fn_Get_Items_QAX('2') Where Product_Code = 'BV003'")),
              "Drinking Water 1L");
}

TEST_F(ServerObjects, AnAmendmentAlsoOffersWhatTheNoteHolds) {
    const std::string held = Rows(database->Execute(
        "Select Distinct Product_Code From DispatchDetail Where DispatchID = 2 Order By Product_Code"));
    ASSERT_FALSE(held.empty());
    const std::string first = held.substr(0, held.find(';'));
    database->Execute("Update Items Set Active = 0 Where Product_Code = '" + first + "'");

    EXPECT_EQ(Codes("dbo.Fn_Get_Items_QAX('2')").find(first), std::string::npos);
    EXPECT_NE(Codes("dbo.Fn_Get_DispatchItems_QAX('2',2)").find(first), std::string::npos);
    EXPECT_NE(Codes("dbo.Fn_Get_DispatchItems_QAX_AllCat('2')").find(first), std::string::npos);
    EXPECT_NE(Codes("dbo.Fn_Get_DSTypeWiseSKU_Amend(3,2, 1)").find(first), std::string::npos);
    // Another note's items are not added.
    EXPECT_EQ(Codes("dbo.Fn_Get_DispatchItems_QAX('2',999)"), "BV001;BV002;BV003");
}

TEST_F(ServerObjects, ACategoryMappedDSTypeSellsItsCategories) {
    EXPECT_EQ(Codes("dbo.Fn_Get_DSTypeWiseSKU(3, 1)"), "HC001;HC002;HC003;PC001;PC002;PC003");
    // A type that is not mapped to categories sells nothing this way.
    EXPECT_EQ(Codes("dbo.Fn_Get_DSTypeWiseSKU(1, 1)"), "");
    database->Execute("Update Items Set Active = 0 Where Product_Code = 'PC003'");
    EXPECT_EQ(Codes("dbo.Fn_Get_DSTypeWiseSKU(3, 1)"), "HC001;HC002;HC003;PC001;PC002");
    EXPECT_EQ(Codes("dbo.Fn_Get_DSTypeWiseSKU(3, 0)"), "HC001;HC002;HC003;PC001;PC002;PC003");
}

TEST_F(ServerObjects, TheChecksAnswerOneForAnItemThatMayBeSold) {
    EXPECT_EQ(Call("sp_CheckItemExists_QAX", {Text("1,2"), Text("bv001")}), "1");
    EXPECT_EQ(Call("sp_CheckItemExists_QAX", {Text("3"), Text("FD001")}), "0");
    EXPECT_EQ(Call("sp_CheckItemExists_QAX", {Text("1"), Text("NOSUCH")}), "0");
    EXPECT_EQ(Call("sp_CheckItemExists_DSType", {Int(3), Text("PC002")}), "1");
    EXPECT_EQ(Call("sp_CheckItemExists_DSType", {Int(3), Text("FD001")}), "0");
}

}  // namespace
