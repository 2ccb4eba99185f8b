// Which invoices the receipt screen's listing gives for the forms asked and still
// outstanding.
#include <gtest/gtest.h>

#include <string>

#include "platform/convert.h"
#include "server_test_support.h"

namespace server {
namespace {

class ReceiptProcedures : public testkit::DemoDatabase {
protected:
    // The invoice numbers listed since 2000, "IN504,IN510,...".
    std::string Listed(const std::string& customer, long show, long flags) {
        auto rs =
            db().RunProcedure("sp_Get_ReceiptFormInvoice", {{customer, platform::adtype::VarChar},
                                                            {platform::DateSerial(2000, 1, 1), platform::adtype::Date},
                                                            {platform::DayEndOf(Today()), platform::adtype::Date},
                                                            {show, platform::adtype::Integer},
                                                            {flags, platform::adtype::Integer}});
        std::string numbers;
        for (; !rs->Eof(); rs->MoveNext()) numbers += (numbers.empty() ? "" : ",") + platform::ToText(rs->Fields(1));
        return numbers;
    }
};

TEST_F(ReceiptProcedures, TheFormsAskedAndOutstandingNarrowTheList) {
    // Every live invoice that needs a form, oldest first; 512 is cancelled.
    EXPECT_EQ(Listed("%", 0, 0), "IN504,IN510,IN506,IN508,IN509,IN503,IN511,IN513");
    EXPECT_EQ(Listed("%", 8, 0), "IN504,IN508,IN511,IN513");
    // Outstanding: the forms asked that have not come.
    EXPECT_EQ(std::tuple(Listed("%", 4, 32), Listed("%", 12, 96), Listed("C014", 0, 0)),
              std::tuple("IN508,IN509,IN503,IN513", "IN508,IN509,IN503,IN511,IN513", "IN508,IN509"));
}

}  // namespace
}  // namespace server
