// The procedures a note is filled from, on the demo data: the ladder form of a
// pending quantity, and what a line finds in stock by batch and by price.
#include <gtest/gtest.h>

#include "server/procedure_context.h"
#include "server/procedures/loading_procedures.h"
#include "server_test_support.h"

namespace server {
namespace {

platform::Parameter P(const char* text) { return {text, platform::adtype::VarChar}; }
platform::Parameter P(int number) { return {number, platform::adtype::Integer}; }

class LoadingProcedures : public testkit::DemoDatabase {
protected:
    std::string Rows(const std::string& name, const platform::ParameterList& parameters) {
        const auto results = db().CallProcedure(name, parameters);
        return results.empty() ? "(none)" : testkit::RowsText(results.back());
    }
};

TEST_F(LoadingProcedures, PendingQuantitiesTakeTheItemsLadderLargestUnitFirst) {
    ProcedureContext context(db(), "GetQtyAsMultiple");
    EXPECT_EQ(
        std::tuple(loading::GetQtyAsMultiple(context, "FD001", 240 + 48 + 5),
                   loading::GetQtyAsMultiple(context, "FD004", 12), loading::GetQtyAsMultiple(context, "FD004", 7.5),
                   loading::GetQtyAsMultiple(context, "FD003", 48)),
        std::tuple("1*2*5", "1*0", "0*7.5", "48"));
    EXPECT_EQ(loading::GetQtyAsMultiple(context, "FD099", 10), "10");  // gone from the master
    EXPECT_EQ(loading::GetQtyAsMultiple(context, "FD001", 0), "");
}

TEST_F(LoadingProcedures, ConfirmationListsAreReadAsNumbersOnly) {
    EXPECT_EQ(Rows("SP_Get_SODetailForDispatch", {P(" 9 ,")}), "PC003||74r||0r|0r|PCS|1");
    EXPECT_EQ(Rows("SP_Get_SODetailForDispatch", {P("")}), "");
    EXPECT_NE(testkit::Refusal([&] {
                  db().CallProcedure("SP_Get_SODetailForDispatch", {P("1,x")});
              }).find("Conversion failed"),
              std::string::npos);
    EXPECT_EQ(Text("SELECT COUNT(*) FROM SODetail"), "25");
}

TEST_F(LoadingProcedures, ALineStandsOnItsBatchOrTheFirstOfferedAndOnThePriceAsked) {
    // The batch named is gone: nothing of it is left, the row still comes.
    EXPECT_EQ(Rows("sp_get_stock", {P("FD002"), P("CB099"), P(60), P(1)}), "0r|CB099|13r|60|156r");
    // None named: the first batch offered (the one expiring first), for the sales unit.
    EXPECT_EQ(Rows("sp_get_stock", {P("FD002"), P(""), P(0), P(1)}), "144r|CB102|13r|0|156r");
    EXPECT_EQ(Rows("sp_get_stock", {P("FD003"), P("X"), P(48), P(0)}), "500r||19.5r|48|19.5r");
    EXPECT_EQ(Rows("sp_get_stock", {P("FD099"), P(""), P(10), P(0)}), "");
    // Batch-priced: the row at the price asked first, else the first offered.
    EXPECT_EQ(Rows("sp_get_stock_csp", {P("HC001"), P("PCM24A"), P(19), P(0), P(1), P(1)}), "500r|PCM24A|19r|0|190r");
    EXPECT_EQ(Rows("sp_get_stock_csp", {P("HC001"), P("PCM24A"), P(18), P(0), P(1), P(3)}),
              "1000r|PCM24A|17.5r|0|175r");
    EXPECT_EQ(Rows("sp_get_stock_csp", {P("HC001"), P("PCM23X"), P(18), P(5), P(1), P(3)}), "0r|PCM23X|18r|5|180r");
}

TEST_F(LoadingProcedures, LoadTimeSchemesComeOnlyWhenAQuantityReachesThem) {
    const auto find = [&](const char* item, double quantity) {
        return db().CallProcedure("sp_get_schemeIDDispatch_MUOM", {P(item),
                                                                   {Today(), platform::adtype::Date},
                                                                   {quantity, platform::adtype::Double},
                                                                   P(17),
                                                                   P(18),
                                                                   P("C002")});
    };
    EXPECT_EQ(std::tuple(find("FD001", 99).empty(), testkit::RowsText(find("FD001", 150).front()),
                         testkit::RowsText(find("FD001", 480).front())),
              std::tuple(true, "0", "1"));
    EXPECT_EQ(testkit::RowsText(find("PC001", 143).empty() ? platform::ResultSet{} : find("PC001", 143).back()), "");
    EXPECT_EQ(Rows("sp_get_SchemeItemsDetail_MUOM", {P(103), P("PC001")}),
              "1031|144r|287r|10r|PC002|103;"
              "1032|288r|99999r|30r|PC002|103");
    EXPECT_EQ(Rows("sp_get_SchemeItemsDetail_MUOM", {P(103), P("FD001")}), "");
}

}  // namespace
}  // namespace server
