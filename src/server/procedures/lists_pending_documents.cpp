// The documents a dispatch may still be made from, in a period, customer by customer.
// A sales confirmation waits while it is neither closed nor cancelled; its value is
// what its lines still have pending. A received order waits until it is dispatched.
#include <string>

#include "server/procedure_arguments.h"
#include "server/procedure_context.h"
#include "server/procedures/lists_procedures.h"

namespace server::lists {

namespace {

// Customer, name, SONumber, date, pending value, delivery date, reference, document number.
constexpr const char* kConfirmations = R"SQL(
SELECT a.CustomerID, c.Company_Name, a.SONumber, a.SODate,
       IFNULL((SELECT SUM(d.Pending * d.SalePrice) FROM SODetail d WHERE d.SONumber = a.SONumber), 0) AS Value,
       a.DeliveryDate, a.POReference, a.DocumentID
FROM SOAbstract a JOIN Customer c ON c.CustomerID = a.CustomerID
WHERE (a.Status & 192) = 0 AND a.SODate BETWEEN ? AND ? )SQL";

// Customer, name, PONumber, date, value, reference, document number, status, prefix.
constexpr const char* kOrders = R"SQL(
SELECT p.CustomerID, c.Company_Name, p.PONumber, p.PODate, p.Value, p.POReference, p.DocumentID, p.Status,
       IFNULL((SELECT Prefix FROM VoucherPrefix WHERE TranID = 'RECEIVED PO'), '') AS Prefix
FROM POAbstractReceived p JOIN Customer c ON c.CustomerID = p.CustomerID
WHERE (p.Status & 128) = 0 AND p.PODate BETWEEN ? AND ? )SQL";

// A customer's documents stay together under one name, oldest first.
std::string InCustomerOrder(const char* dateColumn, const char* numberColumn) {
    return std::string("ORDER BY c.Company_Name COLLATE NOCASE, c.CustomerID, ") + dateColumn + ", " + numberColumn;
}

}  // namespace

// (from, to)
std::vector<platform::ResultSet> AllPendingConfirmations(ProcedureContext& context,
                                                         const platform::ParameterList& parameters) {
    const ProcedureArguments args("sp_get_allSOabstract", parameters, {"@FromDate", "@ToDate"});
    args.ExpectAtMost(2);
    return {context.Query(kConfirmations + InCustomerOrder("a.SODate", "a.SONumber"),
                          {args.DateTime(0), args.DateTime(1)})};
}

// (customer, from, to)
std::vector<platform::ResultSet> CustomerPendingConfirmations(ProcedureContext& context,
                                                              const platform::ParameterList& parameters) {
    const ProcedureArguments args("sp_get_Sos", parameters, {"@CustomerID", "@FromDate", "@ToDate"});
    args.ExpectAtMost(3);
    return {
        context.Query(kConfirmations + std::string("AND a.CustomerID = ? ") + InCustomerOrder("a.SODate", "a.SONumber"),
                      {args.DateTime(1), args.DateTime(2), args.Text(0)})};
}

// (from, to)
std::vector<platform::ResultSet> AllPendingOrders(ProcedureContext& context,
                                                  const platform::ParameterList& parameters) {
    const ProcedureArguments args("sp_get_allpos", parameters, {"@FromDate", "@ToDate"});
    args.ExpectAtMost(2);
    return {context.Query(kOrders + InCustomerOrder("p.PODate", "p.PONumber"), {args.DateTime(0), args.DateTime(1)})};
}

// (customer, from, to)
std::vector<platform::ResultSet> CustomerPendingOrders(ProcedureContext& context,
                                                       const platform::ParameterList& parameters) {
    const ProcedureArguments args("sp_get_pos", parameters, {"@CustomerID", "@FromDate", "@ToDate"});
    args.ExpectAtMost(3);
    return {context.Query(kOrders + std::string("AND p.CustomerID = ? ") + InCustomerOrder("p.PODate", "p.PONumber"),
                          {args.DateTime(1), args.DateTime(2), args.Text(0)})};
}

}  // namespace server::lists
