// The pending confirmations on the demo data: which still wait, in what order, what
// each is still worth, and where the period ends.
#include <string>

#include "platform/convert.h"
#include "server_test_support.h"

namespace server {
namespace {

using platform::adtype::Date;
using platform::adtype::Double;
using platform::adtype::Integer;
using platform::adtype::VarChar;

class ListProcedures : public testkit::DemoDatabase {
protected:
    // The period from `from` days before today to the end of `to` days before it.
    platform::ParameterList Period(int from, int to) const {
        const double today = Today().serial;
        return {{platform::Date{today - from}, Date}, {platform::DayEndOf(platform::Date{today - to}), Date}};
    }
    // The chosen columns of each row, "a,b;c,d".
    std::string Columns(const std::string& procedure, const platform::ParameterList& parameters,
                        std::initializer_list<int> columns) {
        const platform::RecordsetPtr answer = db().RunProcedure(procedure, parameters);
        const platform::ResultSet& result = answer->Current();
        std::string text;
        for (const auto& row : result.rows) {
            if (!text.empty()) text += ";";
            for (const int& column : columns)
                text += (&column == columns.begin() ? "" : ",") + platform::ToText(row.at(column));
        }
        return text;
    }
    platform::ParameterList ForCustomer(const std::string& customer, platform::ParameterList period) const {
        period.insert(period.begin(), {customer, VarChar});
        return period;
    }
};

TEST_F(ListProcedures, ConfirmationsWaitUntilClosedAndAreWorthWhatIsStillPending) {
    // Closed 10 and 13 and cancelled 12 never show; 9 has nothing pending and is worth 0.
    EXPECT_EQ(Columns("sp_get_allSOabstract", Period(45, 0), {2, 1, 4}),
              "4,Anand Stores,1800;2,Bharat Traders,3828;3,City Medicals,2627;5,Deepam Supermarket,3312;"
              "9,Devi's Mart,0;7,Lakshmi Provisions,390;8,Nila Enterprises,2250;1,Ravi Stores,5532;"
              "6,Sakthi Agencies,1536;11,Sundar & Sons,1872");

    db().RunProcedure("sp_update_sopending", {{"FD001", VarChar}, {100.0, Double}, {"1", VarChar}, {0, Integer}});
    EXPECT_EQ(Columns("sp_get_Sos", ForCustomer("c005", Period(45, 0)), {2, 4, 6, 7}), "1,4632,RS/118,101");
    db().RunProcedure("sp_close_so", {{1, Integer}});
    EXPECT_EQ(Columns("sp_get_Sos", ForCustomer("C005", Period(45, 0)), {2}), "");
}

}  // namespace
}  // namespace server
