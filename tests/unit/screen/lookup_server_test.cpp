// The server objects behind the item grid, over the demo data: the items a dispatch
// may sell, whether a typed item is among them, and an item's unit ladder.
#include <gtest/gtest.h>

#include <string>

#include "parties_test_fixture.h"
#include "platform/convert.h"

namespace {

class ItemServerObjects : public screen_test::ScreenTest {
protected:
    std::string Rows(const platform::RecordsetPtr& rs) { return parties_test::RowsText(rs); }
    std::string Codes(const std::string& source) {
        return Rows(database->Execute("Select Product_Code From " + source + " Order By Product_Code"));
    }
    std::string Call(const std::string& name, const platform::ParameterList& parameters) {
        return Rows(database->RunProcedure(name, parameters));
    }
    static platform::Parameter Int(long n) { return {platform::Value(n), platform::adtype::Integer}; }
    static platform::Parameter Text(const std::string& s) { return {platform::Value(s), platform::adtype::VarChar}; }
};

TEST_F(ItemServerObjects, GroupsGiveTheActiveItemsOfTheirCategories) {
    EXPECT_EQ(Codes("dbo.Fn_Get_Items_QAX('2')"), "BV001;BV002;BV003");
    EXPECT_EQ(Codes("dbo.Fn_Get_Items_QAX('2, 4')"), "BV001;BV002;BV003;HC001;HC002;HC003");
    EXPECT_EQ(Codes("dbo.Fn_Get_Items_QAX('')"), "");
    // A switched-off item is not offered; the switched-off group's items are not in all groups.
    database->Execute("Update Items Set Active = 0 Where Product_Code = 'BV002'");
    EXPECT_EQ(Codes("dbo.Fn_Get_Items_QAX('2')"), "BV001;BV003");
    const std::string all = Codes("dbo.Fn_Get_Items_QAX_AllCat()");
    EXPECT_EQ(all.find("FS001"), std::string::npos);
    EXPECT_EQ(all.find("BV002"), std::string::npos);
    EXPECT_NE(all.find("PM002"), std::string::npos);
    // Both columns, by name.
    EXPECT_EQ(Rows(database->Execute("Select ProductName From dbo.Fn_Get_Items_QAX('2') Where Product_Code = 'BV003'")),
              "Drinking Water 1L");
}

TEST_F(ItemServerObjects, AnAmendmentAlsoOffersWhatTheNoteHolds) {
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

TEST_F(ItemServerObjects, ACategoryMappedDSTypeSellsItsCategories) {
    EXPECT_EQ(Codes("dbo.Fn_Get_DSTypeWiseSKU(3, 1)"), "HC001;HC002;HC003;PC001;PC002;PC003");
    // A type that is not mapped to categories sells nothing this way.
    EXPECT_EQ(Codes("dbo.Fn_Get_DSTypeWiseSKU(1, 1)"), "");
    database->Execute("Update Items Set Active = 0 Where Product_Code = 'PC003'");
    EXPECT_EQ(Codes("dbo.Fn_Get_DSTypeWiseSKU(3, 1)"), "HC001;HC002;HC003;PC001;PC002");
    EXPECT_EQ(Codes("dbo.Fn_Get_DSTypeWiseSKU(3, 0)"), "HC001;HC002;HC003;PC001;PC002;PC003");
}

TEST_F(ItemServerObjects, TheChecksAnswerOneForAnItemThatMayBeSold) {
    EXPECT_EQ(Call("sp_CheckItemExists_QAX", {Text("1,2"), Text("bv001")}), "1");
    EXPECT_EQ(Call("sp_CheckItemExists_QAX", {Text("3"), Text("FD001")}), "0");
    EXPECT_EQ(Call("sp_CheckItemExists_QAX", {Text("1"), Text("NOSUCH")}), "0");
    EXPECT_EQ(Call("sp_CheckItemExists_DSType", {Int(3), Text("PC002")}), "1");
    EXPECT_EQ(Call("sp_CheckItemExists_DSType", {Int(3), Text("FD001")}), "0");
}

TEST_F(ItemServerObjects, TheUnitLadderStartsWithTheSalesUnit) {
    EXPECT_EQ(Call("sp_get_item_uom", {Text("FD001")}), "2|BOX|24;1|PCS|1;2|BOX|24;3|CASE|240");
    EXPECT_EQ(Call("sp_get_item_uom", {Text("FD004")}), "5|BTL|1;5|BTL|1;6|CTN|12");
    EXPECT_EQ(Call("sp_get_item_uom", {Text("HC001")}), "2|BOX|10;4|STRIP|1;2|BOX|10;3|CASE|500");
    EXPECT_EQ(Call("sp_get_item_uom", {Text("FD003")}), "1|PCS|1;1|PCS|1");
    EXPECT_EQ(Call("sp_get_item_uom", {Text("NOSUCH")}), "");
}

}  // namespace
