
#include "host_fixture.h"
#include "platform/convert.h"
#include "platform/fault_connection.h"

namespace host_test {
namespace {

class JournalTest : public HostTest {
protected:
    JournalTest() {
        Sql(R"(
            INSERT INTO UOM (UOM, Description) VALUES (1, 'Piece');
            INSERT INTO ItemCategories (CategoryID, Category_Name) VALUES (1, 'Soaps');
            INSERT INTO Items (Product_Code, ProductName, CategoryID, UOM, BaseUOM) VALUES ('SOAP1', 'Soap', 1, 1, 1);
            INSERT INTO Customer (CustomerID, Company_Name) VALUES ('C1', 'Acme Traders');
            INSERT INTO DispatchAbstract (DispatchID, DispatchDate, CustomerID) VALUES
                (15, '2026-11-20 10:15:00', 'C1'), (16, '2026-11-21 00:00:00', 'C1');
            INSERT INTO DispatchDetail (DispatchID, Product_Code, Quantity, SalePrice, UOM) VALUES
                (15, 'SOAP1', 10, 12.5, 1), (15, 'SOAP1', 2, 0, 1);
        )");
    }

    host_services::JournalService& journal() { return global().GetJournalService(); }

    // Account|Debit|Credit|PostingDate|Counter|Narration of each posting, in order.
    std::vector<std::string> Postings() {
        auto rows = database->ExecuteNative(
            "SELECT Account, Debit, Credit, PostingDate, Counter, Narration, UserName FROM JournalPostings "
            "ORDER BY PostingID");
        std::vector<std::string> postings;
        for (const auto& row : rows.rows) {
            std::string line;
            for (const auto& value : row) line += (line.empty() ? "" : "|") + platform::ToText(value);
            postings.push_back(line);
        }
        return postings;
    }
};

// The customer is debited and sales credited with the note's value; a cancellation
// turns the sides round and goes on the note's own date.
TEST_F(JournalTest, ADatedPostingAndACancellation) {
    std::string error;
    ASSERT_TRUE(journal().Journal(1, 15, error, platform::DateSerial(2026, 11, 18))) << error;
    ASSERT_TRUE(journal().Journal(global().GetCancelCounter(), 15, error)) << error;
    EXPECT_EQ(Postings(), (std::vector<std::string>{
                              "C1|125|0|18/11/2026|1|Dispatch 15|Admin", "Sales|0|125|18/11/2026|1|Dispatch 15|Admin",
                              "C1|0|125|20/11/2026 10:15:00|3|Cancellation of Dispatch 15|Admin",
                              "Sales|125|0|20/11/2026 10:15:00|3|Cancellation of Dispatch 15|Admin"}));
}

TEST_F(JournalTest, NothingIsPostedForADispatchThatIsNotThereOrHasNoValue) {
    std::string error;
    EXPECT_FALSE(journal().Journal(2, 99, error));
    EXPECT_NE(error.find("99"), std::string::npos) << error;
    error.clear();
    EXPECT_FALSE(journal().Journal(2, 16, error)) << "a note without lines";
    EXPECT_EQ(std::tuple(error.empty(), Postings().empty()), std::tuple(false, true));
}

TEST_F(JournalTest, AServerErrorGivesFalseAndTheReason) {
    auto faulty = std::make_shared<platform::FaultInjectingConnection>(database);
    host::PlainHost faultyHost(faulty, settings, transcript, answers);
    // Posting alone: abstract, value, begin, first row, second row.
    faulty->FailNthCall(5);
    std::string error;
    EXPECT_FALSE(faultyHost.Global().GetJournalService().Journal(2, 15, error));
    EXPECT_EQ(std::tuple(error.empty(), faulty->InTransaction()), std::tuple(false, false));
    EXPECT_TRUE(Postings().empty()) << "the first row went back with the second";
}

}  // namespace
}  // namespace host_test
