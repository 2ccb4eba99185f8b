// The two procedures a printed note is made from: its heading, named by the number
// the user was told, and its lines as they were saved. (A line drawn from two batches
// prints as its two stored rows; save_stock_test shows how they are stored.)
#include "save_test_support.h"

namespace server::save_test {
namespace {

using platform::adtype::Integer;

using PrintDispatch = SaveDatabase;

TEST_F(PrintDispatch, PrintsTheStoredNoteWithItsFreeLinesWorthNothing) {
    // Note 9 of Anand Stores: two cases, ten boxes and 48 pieces sold, two boxes free.
    const auto heading = Call("sp_print_DispatchAbstract", {{9, Integer}});
    ASSERT_EQ(heading.size(), 1u);
    const std::string today = Text("SELECT date('now', 'localtime')");
    EXPECT_EQ(testkit::RowsText(heading.front()),
              "DN49|D:" + today +
                  " 09:30:00|C001|Anand Stores|14 2nd Avenue, Anna Nagar, Chennai|"
                  "14 2nd Avenue, Anna Nagar, Chennai|Arun Kumar|Mylapore||TN/DN/42||||6816r");

    const auto lines = Call("sp_print_DispatchDetail", {{9, Integer}});
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(testkit::RowsText(lines.front()),
              "FD001|Marie Biscuit 100g|MB2401|CASE|2r|2160r|480r|4320r|;"
              "FD002|Cream Biscuit 75g|CB101|BOX|10r|156r|120r|1560r|;"
              "FD003|Salt Crackers 200g||PCS|48r|19.5r|48r|936r|;"
              "FD001|Marie Biscuit 100g|MB2401|BOX|1r|0r|24r|0r|Free;"
              "FD002|Cream Biscuit 75g|CB101|BOX|1r|0r|12r|0r|Free");

    // A note that is not there prints nothing.
    EXPECT_TRUE(Call("sp_print_DispatchAbstract", {{999, Integer}}).front().rows.empty());
    EXPECT_TRUE(Call("sp_print_DispatchDetail", {{999, Integer}}).front().rows.empty());
}

}  // namespace
}  // namespace server::save_test
