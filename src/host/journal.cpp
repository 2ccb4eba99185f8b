#include "host/journal.h"

#include <cmath>

#include "host/sql_text.h"
#include "platform/convert.h"
#include "platform/runtime_error.h"

namespace host {
namespace {

struct DispatchToPost {
    std::string customer;
    double value = 0;
    platform::Date date;
};

std::string PostingRow(long counter, long dispatchID, platform::Date date, const std::string& account, double debit,
                       double credit, const std::string& narration, const std::string& user) {
    return "Insert Into JournalPostings (Counter, DocumentID, PostingDate, Account, Debit, Credit, Narration, "
           "UserName, CreationTime) Values (" +
           std::to_string(counter) + ", " + std::to_string(dispatchID) + ", " + SqlDate(date) + ", " +
           SqlText(account) + ", " + SqlNumber(debit) + ", " + SqlNumber(credit) + ", " + SqlText(narration) + ", " +
           SqlText(user) + ", getdate())";
}

}  // namespace

bool PlainJournal::Journal(long nCounter, long nDispatchID, std::string& szError) {
    return Post(nCounter, nDispatchID, szError, nullptr);
}

bool PlainJournal::Journal(long nCounter, long nDispatchID, std::string& szError, platform::Date dtPostDate) {
    return Post(nCounter, nDispatchID, szError, &dtPostDate);
}

bool PlainJournal::Post(long counter, long dispatchID, std::string& error, const platform::Date* postDate) {
    // Posting alone (no save around it) still writes both rows or neither.
    bool ownTransaction = !connection_.InTransaction();
    try {
        auto rs = connection_.Execute("Select CustomerID, DispatchDate From DispatchAbstract Where DispatchID = " +
                                      std::to_string(dispatchID));
        if (!rs || !rs->IsOpen() || rs->Eof()) {
            error = "Dispatch " + std::to_string(dispatchID) + " not found for posting";
            return false;
        }
        DispatchToPost dispatch;
        dispatch.customer = platform::ToText(rs->Fields(0));
        const platform::Value& date = rs->Fields(1);
        dispatch.date = date.kind() == platform::Value::Kind::Date
                            ? date.AsDate()
                            : platform::ParseIsoDate(platform::ToText(date)).value_or(platform::Date{});
        rs->Close();

        // The note's value: its lines in base units at base prices. A note without
        // lines has no value (the sum is Null) and is not posted.
        auto lines = connection_.Execute("Select Sum(Quantity * SalePrice) From DispatchDetail Where DispatchID = " +
                                         std::to_string(dispatchID));
        platform::Value value = lines && lines->IsOpen() && !lines->Eof() ? lines->Fields(0) : platform::Value::Null();
        if (!platform::IsNumeric(value) || !std::isfinite(platform::ToNumber(value))) {
            error = "Dispatch " + std::to_string(dispatchID) + " has no value to post";
            return false;
        }
        dispatch.value = platform::ToNumber(value);

        platform::Date on = postDate ? *postDate : dispatch.date;
        bool cancelling = counter == settings_.Integer("GetCancelCounter");
        std::string salesAccount = settings_.Text("SalesAccount");
        std::string user = settings_.Text("UserName");
        std::string narration = (cancelling ? "Cancellation of Dispatch " : "Dispatch ") + std::to_string(dispatchID);
        double debitCustomer = cancelling ? 0 : dispatch.value;
        double creditCustomer = cancelling ? dispatch.value : 0;

        if (ownTransaction) connection_.BeginTrans();
        connection_.Execute(
            PostingRow(counter, dispatchID, on, dispatch.customer, debitCustomer, creditCustomer, narration, user));
        connection_.Execute(
            PostingRow(counter, dispatchID, on, salesAccount, creditCustomer, debitCustomer, narration, user));
        if (ownTransaction) connection_.CommitTrans();
        return true;
    } catch (const platform::RuntimeError& failure) {
        if (ownTransaction && connection_.InTransaction()) connection_.RollbackTrans();
        error = failure.Description();
        return false;
    }
}

}  // namespace host
