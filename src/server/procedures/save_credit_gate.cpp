// Whether a customer may take a dispatch on credit. The customer's terms for the
// note's category group decide: a limit on what he may owe, a number of days a bill
// may stand past its due date, and a number of bills he may leave open. Without terms
// for the group his own credit limit alone applies. -1 switches a rule off.
#include <string>

#include "platform/convert.h"
#include "server/procedure_arguments.h"
#include "server/procedure_context.h"
#include "server/procedures/save_checks.h"
#include "server/procedures/save_procedures.h"

namespace server::save {

namespace {

constexpr double kNoLimit = -1;

struct CreditTerms {
    double creditLimit = kNoLimit;
    long long overdueDaysAllowed = -1;
    long long maxOpenBills = -1;
};

// The terms of the first group of the list that has some; the customer's own limit
// when none has.
CreditTerms TermsFor(ProcedureContext& context, const std::string& customer, const std::string& groups) {
    for (const std::string& element : platform::Split(groups, ",")) {
        const std::string group = platform::Trim(element);
        if (group.empty() || group.find_first_not_of("0123456789") != std::string::npos) continue;
        const platform::ResultSet terms = context.Query(
            "SELECT CreditLimit, OverdueDaysAllowed, MaxOpenBills FROM CustomerCreditTerm "
            "WHERE CustomerID = ? AND GroupID = CAST(? AS INTEGER)",
            {customer, group});
        if (!terms.rows.empty()) {
            const auto& row = terms.rows.front();
            return {platform::ToNumber(row[0]), row[1].AsInteger(), row[2].AsInteger()};
        }
    }
    CreditTerms own;
    own.creditLimit =
        platform::ToNumber(context.Scalar("SELECT CreditLimit FROM Customer WHERE CustomerID = ?", {customer}));
    return own;
}

// Bills that still count against the customer: not cancelled, something unpaid.
constexpr const char* kOpenBills = "FROM InvoiceAbstract WHERE CustomerID = ? AND (Status & 64) = 0 AND Balance > 0";

bool HasBillOverdueBeyond(ProcedureContext& context, const std::string& customer, long long daysAllowed) {
    const std::string sql = std::string("SELECT 1 ") + kOpenBills +
                            " AND PaymentDate IS NOT NULL"
                            " AND julianday(date('now', 'localtime')) - julianday(date(PaymentDate)) > ? LIMIT 1";
    return !context.Scalar(sql, {customer, daysAllowed}).IsNull();
}

long long OpenBills(ProcedureContext& context, const std::string& customer) {
    return context.Scalar(std::string("SELECT COUNT(*) ") + kOpenBills, {customer}).AsInteger();
}

}  // namespace

// (kind of document, salesman, beat, customer, category group or comma list, dispatch
// value, exposure, credit limit): one row, 1 when the dispatch must be stopped: the
// exposure (what the customer would owe with it) is above his limit for the group, or
// a bill of his is overdue by more than the days allowed, or his open bills reach the
// number allowed; else 0. The server judges by its own terms: the limit the screen
// sends, the dispatch value, the salesman and the beat do not change the answer.
std::vector<platform::ResultSet> CheckCreditLimitExceeds(ProcedureContext& context,
                                                         const platform::ParameterList& parameters) {
    const ProcedureArguments args(
        "sp_CheckCreditLimitExceeds_QAX", parameters,
        {"@Kind", "@SalesmanID", "@BeatID", "@CustomerID", "@GroupID", "@DispatchValue", "@Exposure", "@CreditLimit"});
    args.ExpectAtMost(8);
    RequireSupplied(args, 8);
    const std::string customer = platform::Trim(args.TextOr(3, ""));
    const double exposure = args.FloatOr(6, 0);
    RequireCustomer(context, customer);

    const CreditTerms terms = TermsFor(context, customer, args.TextOr(4, ""));
    const bool overLimit = terms.creditLimit != kNoLimit && exposure > terms.creditLimit;
    const bool overdue =
        terms.overdueDaysAllowed >= 0 && HasBillOverdueBeyond(context, customer, terms.overdueDaysAllowed);
    const bool tooManyBills = terms.maxOpenBills >= 0 && OpenBills(context, customer) >= terms.maxOpenBills;

    platform::ResultSet answer;
    answer.columns = {"Exceeds"};
    answer.rows.push_back({platform::Value(static_cast<long long>(overLimit || overdue || tooManyBills ? 1 : 0))});
    return {answer};
}

}  // namespace server::save
