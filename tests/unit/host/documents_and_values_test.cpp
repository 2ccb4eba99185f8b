#include <gtest/gtest.h>

#include "canned_connection.h"
#include "host_fixture.h"
#include "platform/controls.h"
#include "platform/convert.h"

namespace host_test {
namespace {

class DocumentsTest : public HostTest {
protected:
    DocumentsTest() {
        Sql(R"(
            INSERT INTO TransactionDocNumber (TransactionType, DocumentType, Prefix, LastCount, Active, IsDefault) VALUES
                (5, 'DN-A', 'DA', 41, 1, 1),
                (5, 'OLD', 'OL', 3, 0, 0),
                (5, 'Quo''te', 'Q', 0, 1, 0),
                (6, 'OTHER', 'OT', 1, 1, 1);
            INSERT INTO Customer (CustomerID, Company_Name) VALUES ('C2', 'O''Brien Stores');
            INSERT INTO SOAbstract (SONumber, SODate, CustomerID) VALUES (12, '2026-11-01 00:00:00', 'C2');
        )");
    }
};

TEST_F(DocumentsTest, TheDefaultTypeIsTheActiveOneMarkedSo) {
    EXPECT_EQ(global().GetDefaultDocumentType(5), "DN-A");
    EXPECT_EQ(global().GetDefaultDocumentType(6), "OTHER");
    EXPECT_EQ(global().GetDefaultDocumentType(7), "");
    Sql("UPDATE TransactionDocNumber SET Active = 0 WHERE DocumentType = 'DN-A'");
    EXPECT_EQ(global().GetDefaultDocumentType(5), "");
}

TEST_F(DocumentsTest, TheNextReferenceIsThePrefixAndTheCountAfterTheLast) {
    EXPECT_EQ(global().GetNextDocumentReference("DN-A", 5), "DA42");
    EXPECT_EQ(global().GetNextDocumentReference("dn-a", 5), "DA42");
    EXPECT_EQ(global().GetNextDocumentReference("OLD", 5), "OL4");
    EXPECT_EQ(global().GetNextDocumentReference("Quo'te", 5), "Q1");
    EXPECT_EQ(global().GetNextDocumentReference("OTHER", 5), "") << "a type of another transaction";
    EXPECT_EQ(global().GetNextDocumentReference("NONE", 5), "");
}

TEST_F(DocumentsTest, ReferencesSplitIntoLeadAndNumber) {
    EXPECT_EQ(global().ParseDocumentNumber("DN1234"), 1234);
    EXPECT_EQ(global().ParseDocumentNumber("1234"), 1234);
    EXPECT_EQ(global().ParseDocumentNumber("DN/12X3"), 12);
    EXPECT_EQ(global().ParseDocumentNumber("DN"), 0);
    EXPECT_EQ(global().ParseDocumentNumber(""), 0);
    EXPECT_EQ(global().GetDocumentPrefixLength("DN1234"), 2);
    EXPECT_EQ(global().GetDocumentPrefixLength("DN/12"), 3);
    EXPECT_EQ(global().GetDocumentPrefixLength("1234"), 0);
    EXPECT_EQ(global().GetDocumentPrefixLength("DN"), 2);
}

TEST_F(DocumentsTest, VoucherPrefixesByTheirKeys) {
    EXPECT_EQ(global().GetVoucherPrefix(global().GetDispatchPrefixKey()), "DN");
    EXPECT_EQ(global().GetVoucherPrefix(global().GetSCPrefixKey()), "SC");
    EXPECT_EQ(global().GetVoucherPrefix(global().GetPOPrefixKey()), "PO");
    EXPECT_EQ(global().GetVoucherPrefix("NO SUCH"), "");
}

TEST_F(DocumentsTest, LookupsEscapeTheirValues) {
    EXPECT_EQ(global().LookupName("Customer", "CustomerID", "Company_Name", "C2"), "O'Brien Stores");
    EXPECT_EQ(global().LookupCode("Customer", "CustomerID", "Company_Name", "O'Brien Stores"), "C2");
    EXPECT_EQ(global().LookupCode("Customer", "CustomerID", "Company_Name", "x' Or '1' = '1"), "");
    EXPECT_EQ(global().LookupName("Customer", "CustomerID", "Company_Name", "C9"), "");
    EXPECT_TRUE(global().LookupValue(*connection, "Select Company_Name From Customer Where 1 = 0").IsNull());
}

TEST_F(DocumentsTest, ADocumentIsFoundByItsReference) {
    EXPECT_EQ(global().LookupFieldByKey("SOAbstract", "SONumber", "SC12"), 12);
    EXPECT_EQ(global().LookupFieldByKey("SOAbstract", "SONumber", "12"), 12);
    EXPECT_EQ(global().LookupFieldByKey("SOAbstract", "SONumber", "SC99"), 0);
    EXPECT_EQ(global().LookupFieldByKey("SOAbstract", "SONumber", "SC"), 0);
}

TEST_F(DocumentsTest, AComboIsFilledInTheTableOrderWithTheConditionAppended) {
    TestForm form;
    platform::ComboBox combo(form, "cbodocumenttype");
    combo.AddItem("Select A Document Type");
    combo.SetListIndex(0);
    connection->Clear();
    global().FillComboBox("TransactionDocNumber", "DocumentType", "DocumentType", combo, 0, 0,
                          "And TransactionType=5");
    EXPECT_EQ(Statements(), std::vector<std::string>{
                                "Select DocumentType From TransactionDocNumber Where 1 = 1 And TransactionType=5"});
    ASSERT_EQ(combo.ListCount(), 4);
    EXPECT_EQ(combo.ListIndex(), 0) << "filling leaves the index alone";
}

TEST(NextRecordsetTest, SkipsTheLeadingRowCountsAndKeepsWhatFollows) {
    using platform::ResultSet;
    using platform::Value;
    ResultSet rowCount{{}, {}, 1};
    ResultSet empty{{"a"}, {}};
    ResultSet answer{{"b"}, {{Value(7)}}};
    ResultSet after{{"c"}, {{Value(8)}}};
    auto call = std::make_shared<platform::Recordset>(std::vector<ResultSet>{rowCount, empty, answer, after});

    host::Settings settings;
    host::Transcript transcript;
    host::DialogAnswers answers;
    host::PlainHost host(std::make_shared<CannedConnection>(), settings, transcript, answers);

    auto result = host.Global().NextRecordset(call);
    ASSERT_TRUE(result);
    EXPECT_EQ(result->FieldName(0), "b");
    EXPECT_EQ(platform::ToNumber(result->Fields(0)), 7);
    ASSERT_TRUE(result->NextRecordset());
    EXPECT_EQ(result->FieldName(0), "c");
    EXPECT_EQ(call->FieldCount(), 0) << "the caller's recordset stays on its own result";

    auto noRows = std::make_shared<platform::Recordset>(std::vector<ResultSet>{rowCount, empty});
    result = host.Global().NextRecordset(noRows);
    ASSERT_TRUE(result);
    EXPECT_EQ(result->FieldName(0), "a");
    EXPECT_TRUE(result->Eof());
    EXPECT_EQ(host.Global().NextRecordset(nullptr), nullptr);
}

TEST_F(DocumentsTest, NumberFormatsReadBackWithVal) {
    EXPECT_EQ(global().GetNumberFormat(0), "0.00");
    EXPECT_EQ(global().GetNumberFormat(3), "0.000");
    std::string quantity = global().GetNumberFormat(-1);
    for (double value : {5.0, 1234567.0, 2.5, 0.125}) {
        std::string shown = platform::Format(platform::Value(value), quantity);
        EXPECT_EQ(shown.find(','), std::string::npos) << shown;
        EXPECT_NE(shown.back(), '.') << shown;
        EXPECT_EQ(platform::Val(shown), value) << shown;
    }
    EXPECT_EQ(platform::Format(platform::Value(12.5), global().GetNumberFormat(0)), "12.50");
}

TEST_F(DocumentsTest, TheWorkingDateIsTheSessionsAndTransactionsGoByItsDay) {
    host->SetServerDate(platform::DateTime(2026, 11, 22, 10, 30, 0));
    EXPECT_EQ(global().GetCurrentDate(0), platform::DateTime(2026, 11, 22, 10, 30, 0));
    EXPECT_EQ(global().GetTransactionDate(), platform::DateSerial(2026, 11, 22));
    settings.Set("GetTransactionDate", "2026-11-20");
    EXPECT_EQ(global().GetTransactionDate(), platform::DateSerial(2026, 11, 20));
}

}  // namespace
}  // namespace host_test
