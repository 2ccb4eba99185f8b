// Where a customer's account stands: what is owed against advances, what of it is
// overdue, cheques not yet banked, bills still open, and whether the customer is a
// trade customer at all.
#include "server/procedure_arguments.h"
#include "server/procedure_context.h"
#include "server/procedures/header_procedures.h"

namespace server::header {

namespace {
// Invoices that still count: not cancelled.
constexpr const char* kLiveInvoice = "(Status & 64) = 0";
}  // namespace

// (customer): advances less unpaid bills; negative when the customer owes. No row
// for a customer the server does not know.
std::vector<platform::ResultSet> OutstandingBalance(ProcedureContext& context,
                                                    const platform::ParameterList& parameters) {
    const ProcedureArguments args("sp_get_Customer_OutStanding_Balance", parameters, {"@CustomerID"});
    args.ExpectAtMost(1);
    return {context.Query(std::string(R"SQL(
SELECT IFNULL((SELECT SUM(Balance) FROM Collections WHERE CustomerID = c.CustomerID AND Cancelled = 0), 0)
     - IFNULL((SELECT SUM(Balance) FROM InvoiceAbstract WHERE CustomerID = c.CustomerID AND )SQL") +
                              kLiveInvoice + R"SQL(), 0) AS Balance
FROM Customer c WHERE c.CustomerID = ?)SQL",
                          {args.Text(0)})};
}

// (customer, date, kind): the unpaid part of bills due on or after the date (kind 0,
// not yet due) or before it (kind 1, overdue).
std::vector<platform::ResultSet> OverDue(ProcedureContext& context, const platform::ParameterList& parameters) {
    const ProcedureArguments args("sp_get_Customer_OverDue", parameters, {"@CustomerID", "@Date", "@Kind"});
    args.ExpectAtMost(3);
    const bool overdue = args.IntOr(2, 0) == 1;
    const std::string due =
        overdue ? "PaymentDate IS NOT NULL AND PaymentDate < ?" : "(PaymentDate IS NULL OR PaymentDate >= ?)";
    return {context.Query("SELECT IFNULL(SUM(Balance), 0) AS Amount FROM InvoiceAbstract WHERE CustomerID = ? AND " +
                              std::string(kLiveInvoice) + " AND Balance > 0 AND " + due,
                          {args.Text(0), args.DateTime(1)})};
}

// (customer): cheques and drafts received and not yet deposited.
std::vector<platform::ResultSet> ChequesInHand(ProcedureContext& context, const platform::ParameterList& parameters) {
    const ProcedureArguments args("sp_acc_PartyChqsinhand", parameters, {"@CustomerID"});
    args.ExpectAtMost(1);
    return {
        context.Query("SELECT IFNULL(SUM(Value), 0) AS ChequesInHand FROM Collections "
                      "WHERE CustomerID = ? AND PaymentMode IN (1, 2) AND Deposited = 0 AND Cancelled = 0",
                      {args.Text(0)})};
}

// (customer name): the number of the customer's bills still open.
std::vector<platform::ResultSet> InvoiceLimit(ProcedureContext& context, const platform::ParameterList& parameters) {
    const ProcedureArguments args("sp_get_CustomerInvoiceLimit", parameters, {"@CustomerName"});
    args.ExpectAtMost(1);
    return {context.Query(std::string("SELECT COUNT(*) AS OpenBills FROM InvoiceAbstract i JOIN Customer c ON "
                                      "c.CustomerID = i.CustomerID WHERE c.Company_Name = ? AND i.Balance > 0 AND ") +
                              "(i.Status & 64) = 0",
                          {args.Text(0)})};
}

// (customer): a row when the customer is an active trade customer (categories 1 to 3).
std::vector<platform::ResultSet> TradeCustomer(ProcedureContext& context, const platform::ParameterList& parameters) {
    const ProcedureArguments args("sp_get_TradeCustomer", parameters, {"@CustomerID"});
    args.ExpectAtMost(1);
    return {
        context.Query("SELECT CustomerID, Company_Name FROM Customer WHERE CustomerID = ? AND Active = 1 AND "
                      "CustomerCategory BETWEEN 1 AND 3",
                      {args.Text(0)})};
}

}  // namespace server::header
