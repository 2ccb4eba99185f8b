// The stored notes the list page of viewing, cancelling and amending shows, customer
// by customer: every note of a period, or every note whose document number lies in a
// range. A note reads as invoiced on the list when an invoice that is not cancelled
// names it.
#include <string>

#include "platform/convert.h"
#include "server/procedure_arguments.h"
#include "server/procedure_context.h"
#include "server/procedures/lists_procedures.h"

namespace server::lists {

namespace {

// DispatchID, date, customer, name, status, document number, invoiced (1 or 0),
// reference, document type.
constexpr const char* kStoredNotes = R"SQL(
SELECT d.DispatchID, d.DispatchDate, d.CustomerID, c.Company_Name, d.Status, d.DocumentID,
       CASE WHEN EXISTS (SELECT 1 FROM InvoiceAbstract i
                         WHERE i.DispatchID = d.DispatchID AND (i.Status & 64) = 0) THEN 1 ELSE 0 END AS Invoiced,
       d.DocReference, d.DocumentType
FROM DispatchAbstract d JOIN Customer c ON c.CustomerID = d.CustomerID )SQL";

constexpr const char* kInCustomerOrder =
    "ORDER BY c.Company_Name COLLATE NOCASE, c.CustomerID, d.DispatchDate, d.DispatchID";

}  // namespace

// (customer or "%", from, to, a flag the screen always sends as 0)
std::vector<platform::ResultSet> StoredDispatches(ProcedureContext& context,
                                                  const platform::ParameterList& parameters) {
    const ProcedureArguments args("sp_list_Dispatch", parameters, {"@CustomerID", "@FromDate", "@ToDate", "@Flag"});
    args.ExpectAtMost(4);
    args.Int(3, platform::Value(0L));
    return {context.Query(kStoredNotes +
                              std::string("WHERE d.DispatchDate BETWEEN ? AND ? "
                                          "AND (? = '%' OR d.CustomerID = ?) ") +
                              kInCustomerOrder,
                          {args.DateTime(1), args.DateTime(2), args.Text(0), args.Text(0)})};
}

// (first number, last number, prefix). Every note is numbered under the dispatch
// serial's prefix: a prefix that is not that one finds nothing, an empty one sets no
// limit.
std::vector<platform::ResultSet> StoredDispatchesByNumber(ProcedureContext& context,
                                                          const platform::ParameterList& parameters) {
    const ProcedureArguments args("sp_list_Dispatch_DocLU", parameters, {"@FromNo", "@ToNo", "@Prefix"});
    args.ExpectAtMost(3);
    const std::string prefix = platform::Trim(args.TextOr(2, ""));
    return {context.Query(kStoredNotes +
                              std::string("WHERE d.DocumentID BETWEEN ? AND ? "
                                          "AND (? = '' OR ? = (SELECT Prefix FROM VoucherPrefix "
                                          "WHERE TranID = 'DISPATCH') COLLATE NOCASE) ") +
                              kInCustomerOrder,
                          {args.Int(0), args.Int(1), platform::Value(prefix), platform::Value(prefix)})};
}

}  // namespace server::lists
