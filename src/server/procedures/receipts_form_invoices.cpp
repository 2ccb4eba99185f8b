// The invoices a distributor waits for statutory forms on, and the receipt of those
// forms. An invoice asks for a C-Form (FormsRequired 4), a D-Form (8) or both; a form
// that has come sets 32 or 64 in FormsReceived, with its number beside it.
#include "server/procedure_arguments.h"
#include "server/procedure_context.h"
#include "server/procedure_registry.h"
#include "server/procedures/receipts_procedures.h"
#include "server/procedures/save_checks.h"

namespace server {

void RegisterReceiptProcedures(ProcedureRegistry& registry) {
    registry.RegisterProcedure("sp_Get_ReceiptFormInvoice", &receipts::ReceiptFormInvoices);
    registry.RegisterProcedure("sp_Update_FormReceipt", &receipts::UpdateFormReceipt);
}

namespace receipts {

namespace {
constexpr long long kFormsRequired = 4 | 8;
constexpr long long kFormsReceived = 32 | 64;
constexpr long long kMarksUnchanged = 128;
}  // namespace

// (customer pattern, from, to, forms asked, forms outstanding): the live invoices of
// the customers the pattern matches ('%' all), dated within the range. Forms asked
// (4 C-Form, 8 D-Form) keeps the invoices that need one of them; 0 keeps every
// invoice that needs a form at all. Forms outstanding (32 C-Form, 64 D-Form) keeps,
// of those, the invoices where one of the named forms is due and has not come yet;
// 0 keeps them whether the forms have come or not. Columns: invoice, its number,
// customer, name, date, C-Form and D-Form received (twice: the marks to show and
// the marks as stored), the two form numbers.
std::vector<platform::ResultSet> ReceiptFormInvoices(ProcedureContext& context,
                                                     const platform::ParameterList& parameters) {
    const ProcedureArguments args("sp_Get_ReceiptFormInvoice", parameters,
                                  {"@Customer", "@FromDate", "@ToDate", "@Show", "@Flags"});
    args.ExpectAtMost(5);
    save::RequireSupplied(args, 5);
    const long long show = args.IntOr(3, 0) & kFormsRequired;
    const long long flags = args.IntOr(4, 0) & kFormsReceived;
    return {context.Query(R"SQL(
SELECT i.InvoiceID,
       IFNULL((SELECT Prefix FROM VoucherPrefix WHERE TranID = 'INVOICE'), '') || i.DocumentID AS InvoiceNo,
       i.CustomerID, c.Company_Name, i.InvoiceDate,
       i.FormsReceived & 32 AS CForm, i.FormsReceived & 64 AS DForm,
       i.FormsReceived & 32 AS OrigCForm, i.FormsReceived & 64 AS OrigDForm,
       IFNULL(i.CFormNo, '') AS CFormNo, IFNULL(i.DFormNo, '') AS DFormNo
FROM InvoiceAbstract i JOIN Customer c ON c.CustomerID = i.CustomerID
WHERE (i.Status & 64) = 0
  AND i.CustomerID LIKE ?1
  AND i.InvoiceDate BETWEEN ?2 AND ?3
  AND (CASE WHEN ?4 = 0 THEN i.FormsRequired <> 0 ELSE (i.FormsRequired & ?4) <> 0 END)
  AND (?5 = 0
       OR ((?5 & 32) <> 0 AND (i.FormsRequired & 4) <> 0 AND (i.FormsReceived & 32) = 0)
       OR ((?5 & 64) <> 0 AND (i.FormsRequired & 8) <> 0 AND (i.FormsReceived & 64) = 0))
ORDER BY i.InvoiceDate, i.InvoiceID)SQL",
                          {args.Text(0), args.DateTime(1), args.DateTime(2), show, flags})};
}

// (invoice, mask, C-Form number, D-Form number): the forms of the mask (32, 64) are
// the ones received, with their numbers. 128 in the mask says neither mark changed:
// the numbers are written and the day the marks last changed stays.
std::vector<platform::ResultSet> UpdateFormReceipt(ProcedureContext& context,
                                                   const platform::ParameterList& parameters) {
    const ProcedureArguments args("sp_Update_FormReceipt", parameters,
                                  {"@InvoiceID", "@Status", "@CFormNo", "@DFormNo"});
    args.ExpectAtMost(4);
    save::RequireSupplied(args, 4);
    const long long invoiceID = save::RequiredInt(args.Int(0), "invoice");
    const long long mask = args.IntOr(1, 0);
    if (context.Scalar("SELECT 1 FROM InvoiceAbstract WHERE InvoiceID = ?", {invoiceID}).IsNull())
        save::Refuse("Invoice " + std::to_string(invoiceID) + " does not exist.");
    const long rows = context.Run(
        "UPDATE InvoiceAbstract SET FormsReceived = ?1, CFormNo = ?2, DFormNo = ?3, "
        "FormsReceivedOn = CASE WHEN ?4 THEN FormsReceivedOn ELSE datetime('now', 'localtime') END "
        "WHERE InvoiceID = ?5",
        {mask & kFormsReceived, args.TextOr(2, ""), args.TextOr(3, ""), (mask & kMarksUnchanged) != 0, invoiceID});
    return {ProcedureContext::RowCountMessage(rows)};
}

}  // namespace receipts
}  // namespace server
