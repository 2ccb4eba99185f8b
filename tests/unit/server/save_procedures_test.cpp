// The save's procedures around the lines: the note's abstract and its number, the
// reference and the document type's count, the sales confirmations the note was made
// from, and the credit gate ahead of it all.
#include <string>

#include "platform/convert.h"
#include "save_test_support.h"

namespace server::save_test {
namespace {

using platform::adtype::Date;
using platform::adtype::Double;
using platform::adtype::Integer;
using platform::adtype::VarChar;

// The abstract's parameters as the screen sends them for a note from sales
// confirmation 1 of Ravi Stores; the amendment's old document number goes second.
platform::ParameterList AbstractParameters(bool withGroup, const std::string* oldReference = nullptr) {
    const platform::Parameter day{platform::DateTime(2024, 3, 1, 10, 45, 0), Date};
    platform::ParameterList list{
        {"1", VarChar},        day,           {"C005", VarChar},     {"12 Gandhi Road", VarChar},
        {"Godown 3", VarChar}, {1, Integer},  {"SC101", VarChar},    {"Memo one", VarChar},
        {"Memo two", VarChar}, {"", VarChar}, {"TN/DN/43", VarChar}, {1, Integer},
        {1, Integer}};
    if (oldReference) list.insert(list.begin() + 1, {*oldReference, VarChar});
    if (withGroup) list.push_back({"1,2", VarChar});
    return list;
}

const char* const kLastDispatchNumber = "SELECT LastNumber FROM DocumentNumbers WHERE DocType = 5";

using SaveAbstract = SaveDatabase;

// The new-note session reads the answer, the serial spent and the next one proposed;
// here every other value the screen sent.
TEST_F(SaveAbstract, TheReplacementOfAnAmendedNoteKeepsTheOldNumber) {
    const std::string old = "45";
    EXPECT_EQ(testkit::RowsText(Call("sp_Save_DispatchAbstract_Amend", AbstractParameters(true, &old)).back()),
              "10|50");
    EXPECT_EQ(Text("SELECT OriginalReference, RefNumber, NewRefNumber, DocReference, GroupID FROM DispatchAbstract "
                   "WHERE DispatchID = 10"),
              "45|1|SC101|TN/DN/43|1,2");
}

TEST_F(SaveAbstract, RefusesABadNoteAndSpendsNothing) {
    const std::tuple<int, platform::Value, std::string> changes[] = {
        {2, "C999", "Customer 'C999' does not exist."},
        {5, 129, "A dispatch is stored open; status 129 cannot be given to a new note."},
        {11, 99, "DispatchAbstract: unknown salesman or beat"}};
    for (const auto& [index, value, message] : changes) {
        platform::ParameterList parameters = AbstractParameters(true);
        parameters[index].value = value;
        EXPECT_EQ(Refusal("sp_Save_DispatchAbstract", parameters), message);
    }
    platform::ParameterList tooShort = AbstractParameters(false);
    tooShort.pop_back();
    EXPECT_EQ(Refusal("sp_Save_DispatchAbstract", tooShort),
              "Procedure or function 'sp_Save_DispatchAbstract' expects parameter '@BeatID', which was not supplied.");
    // The amendment's list is one longer: the new note's full list is short for it.
    EXPECT_EQ(
        Refusal("sp_Save_DispatchAbstract_Amend", AbstractParameters(false)),
        "Procedure or function 'sp_Save_DispatchAbstract_Amend' expects parameter '@BeatID', which was not supplied.");

    EXPECT_EQ(Text(kLastDispatchNumber), "49");
    EXPECT_EQ(Text("SELECT COUNT(*) FROM DispatchAbstract"), "9");
}

class TransactionSerial : public SaveDatabase {
protected:
    static platform::ParameterList Parameters(const std::string& type, long long note, const std::string& reference,
                                              int sameReference) {
        return {{5, Integer}, {type, VarChar}, {note, Integer}, {reference, VarChar}, {sameReference, Integer}};
    }
    // The answer for a new note given the type and reference.
    platform::Value Serial(const std::string& type, const std::string& reference, int sameReference = 0) {
        last = NewNote();
        return Answer("sp_Update_TransactionSerial", Parameters(type, last, reference, sameReference));
    }
    std::string Stored() {
        return Text("SELECT DocReference, DocumentType FROM DispatchAbstract WHERE DispatchID = " +
                    std::to_string(last));
    }
    std::string Counts() {
        return Text(
            "SELECT group_concat(DocumentType || '=' || LastCount, ' ') FROM "
            "(SELECT * FROM TransactionDocNumber ORDER BY DocumentType)");
    }
    long long last = 0;
};

TEST_F(TransactionSerial, WritesTheReferenceAndMovesTheCountOfTheTypeSent) {
    // The proposed reference kept: the type's count moves, the user is told the dispatch number.
    EXPECT_EQ(Serial("dn-tn", " TN/DN/43 ", 1), platform::Value("DN50"));
    EXPECT_EQ(std::tuple(Counts(), Stored()), std::tuple("DN-KA=7 DN-OLD=112 DN-TN=43 SC-TN=113", "TN/DN/43|dn-tn"));
    // Changed after the prefix, the reference still spends the type's number.
    EXPECT_EQ(Serial("DN-KA", "KA/DN/8A"), platform::Value("DN51"));
    EXPECT_EQ(Counts(), "DN-KA=8 DN-OLD=112 DN-TN=43 SC-TN=113");

    // Without a type no count moves; a note left without a reference is known by its number.
    EXPECT_EQ(Serial("", "  "), platform::Value("DN52"));
    const long long unreferenced = last;
    EXPECT_EQ(Stored(), "DN52|");

    // A reference that comes without a type but is a type's prefix and a number
    // belongs to that type: its count moves up to the number, never down.
    Serial("", "TN/DN/44");
    EXPECT_EQ(Stored(), "TN/DN/44|DN-TN");
    for (const char* reference : {"TN/DN/40", "TN/DN/4x", "OLD/500" /* a closed type */}) Serial("", reference);
    EXPECT_EQ(Counts(), "DN-KA=8 DN-OLD=112 DN-TN=44 SC-TN=113");

    // A type of another transaction, and an unknown note, are refused with nothing changed.
    EXPECT_EQ(Refusal("sp_Update_TransactionSerial", Parameters("SC-TN", unreferenced, "TN/SC/114", 1)),
              "Document type 'SC-TN' of transaction type 5 does not exist.");
    EXPECT_EQ(Refusal("sp_Update_TransactionSerial", Parameters("DN-TN", 999, "TN/DN/44", 1)),
              "Dispatch 999 does not exist.");
    EXPECT_EQ(Counts(), "DN-KA=8 DN-OLD=112 DN-TN=44 SC-TN=113");
    last = unreferenced;
    EXPECT_EQ(Stored(), "DN52|");
}

using SalesConfirmations = SaveDatabase;

TEST_F(SalesConfirmations, PendingGoesDownLineByLineAndNeverBelowZero) {
    // Confirmation 1 holds Marie Biscuit at 240 pending; give it a second priced line
    // and a free one. Confirmation 4 holds Marie at 48 pending.
    db().ExecuteScript(
        "INSERT INTO SODetail (SOLineID, SONumber, Product_Code, SalePrice, Quantity, Pending, UOM, UOMQty, UOMPrice) "
        "VALUES (101, 1, 'FD001', 9.00, 48, 48, 1, 48, 9.00), (102, 1, 'FD001', 0, 24, 24, 2, 1, 0);");
    const std::string pending =
        "SELECT group_concat(SOLineID || '=' || Pending, ' ') FROM (SELECT * FROM SODetail WHERE Product_Code = "
        "'FD001' AND Pending > 0 OR SOLineID IN (1, 11, 101, 102) ORDER BY SOLineID)";
    auto lower = [&](double quantity, const std::string& confirmations, int free) {
        return Call("sp_update_sopending",
                    {{"fd001", VarChar}, {quantity, Double}, {confirmations, VarChar}, {free, Integer}});
    };

    // 250 priced pieces: line 1 is emptied and line 101 gives the other 10; the free
    // line and the other confirmation are left alone.
    const auto results = lower(250, "1", 0);
    ASSERT_EQ(results.size(), 1u);
    EXPECT_EQ(results.front().rowsAffected, 2);
    EXPECT_EQ(Text(pending), "1=0.0 11=48.0 101=38.0 102=24.0");
    // Free goods lower the free line, and more than is pending stops at 0.
    lower(30, "1", 1);
    EXPECT_EQ(Text(pending), "1=0.0 11=48.0 101=38.0 102=0.0");
    // Across two confirmations, in the order the lines were entered.
    lower(50, " 1, 4 ", 0);
    EXPECT_EQ(Text(pending), "1=0.0 11=0.0 101=36.0 102=0.0");

    EXPECT_EQ(Refusal("sp_update_sopending", {{"FD001", VarChar}, {5, Double}, {"1;4", VarChar}, {0, Integer}}),
              "'1;4' is not a sales confirmation number.");
    EXPECT_EQ(Refusal("sp_update_sopending", {{"FD001", VarChar}, {-5, Double}, {"4", VarChar}, {0, Integer}}),
              "The dispatched quantity of item 'FD001' cannot be negative.");
    EXPECT_EQ(Text(pending), "1=0.0 11=0.0 101=36.0 102=0.0");
}

// Closing confirmation 1 and pointing it at the note is read by the screen's save
// from a confirmation; here what that save never meets.
TEST_F(SalesConfirmations, ClosingKeepsACancelledConfirmationCancelledAndRefusesAnUnknownOne) {
    Call("sp_close_so", {{12, Integer}});
    EXPECT_EQ(Text("SELECT Status || ':' || DispatchDocID FROM SOAbstract WHERE SONumber = 12"), "192:0");
    EXPECT_EQ(Refusal("sp_close_so", {{99, Integer}}), "Sales confirmation 99 does not exist.");
    EXPECT_EQ(Refusal("sp_update_soRefNumber", {{99, Integer}, {50, Integer}}),
              "Sales confirmation 99 does not exist.");
}

class CreditGate : public SaveDatabase {
protected:
    static platform::ParameterList Parameters(const std::string& customer, const std::string& group, double exposure) {
        return {{2, Integer},     {1, Integer},    {1, Integer},       {customer, VarChar},
                {group, VarChar}, {100.0, Double}, {exposure, Double}, {0.0, Double}};
    }
    long long Exceeds(const std::string& customer, const std::string& group, double exposure) {
        return Answer("sp_CheckCreditLimitExceeds_QAX", Parameters(customer, group, exposure)).AsInteger();
    }
    void AddBill(int id, const std::string& customer, int dueOffset) {
        db().ExecuteScript(
            "INSERT INTO InvoiceAbstract (InvoiceID, DocumentID, InvoiceDate, PaymentDate, CustomerID, "
            "NetValue, Balance) VALUES (" +
            std::to_string(id) + ", " + std::to_string(id) +
            ", datetime(date('now', 'localtime', '-40 days')), datetime(date('now', 'localtime', '" +
            std::to_string(dueOffset) + " days')), '" + customer + "', 500, 500);");
    }
};

TEST_F(CreditGate, StopsAnExposureAboveTheLimitOrOverdueBillsOfTheFirstGroupThatHasTerms) {
    // Deepam Supermarket: 5000 on Foods, and 5000 of its own; up to the limit is allowed.
    // Bharat Traders has no limit; City Medicals a large one. The limit the screen
    // sends (0 here) is not the server's measure. Sakthi Agencies' bill 504 is 30 days
    // overdue, and its Foods and Beverages terms allow none; another group has no
    // terms, and its ample limit lets it through.
    const std::tuple<const char*, const char*, double, long long> cases[] = {
        {"C004", "1", 5300, 1}, {"C004", "1", 5000, 0},  {"C004", "3", 5300, 1},
        {"C002", "1", 1e9, 0},  {"C003", "4", 49000, 0}, {"C003", "4", 50001, 1},
        {"C006", "1,2", 0, 1},  {"C006", "3", 0, 0},     {"C006", "3, 2", 0, 1}};
    for (const auto& [customer, group, exposure, exceeds] : cases)
        EXPECT_EQ(Exceeds(customer, group, exposure), exceeds) << customer << " " << group << " " << exposure;
    EXPECT_EQ(Refusal("sp_CheckCreditLimitExceeds_QAX", Parameters("C999", "1", 0)), "Customer 'C999' does not exist.");
}

TEST_F(CreditGate, CountsOverdueAndOpenBillsByTheGroupsTerms) {
    // Lakshmi Provisions on Health Care: 15 days allowed, 3 open bills at most.
    AddBill(901, "C009", -15);
    AddBill(902, "C009", 10);
    EXPECT_EQ(Exceeds("C009", "4", 100), 0) << "15 days overdue is within the terms";
    db().ExecuteScript(
        "UPDATE InvoiceAbstract SET PaymentDate = datetime(date('now', 'localtime', '-16 days')) "
        "WHERE InvoiceID = 901;");
    EXPECT_EQ(Exceeds("C009", "4", 100), 1);
    db().ExecuteScript("UPDATE InvoiceAbstract SET Balance = 0 WHERE InvoiceID = 901;");  // paid
    EXPECT_EQ(Exceeds("C009", "4", 100), 0);
    AddBill(903, "C009", 20);
    AddBill(904, "C009", 20);
    EXPECT_EQ(Exceeds("C009", "4", 100), 1) << "three open bills reach the most allowed";
    // A cancelled bill counts for nothing.
    db().ExecuteScript("UPDATE InvoiceAbstract SET Status = 192 WHERE InvoiceID = 904;");
    EXPECT_EQ(Exceeds("C009", "4", 100), 0);
}

}  // namespace
}  // namespace server::save_test
