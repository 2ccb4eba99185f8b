// A dispatch note as it is printed. The heading names the note by the number the
// user was told when it was saved (the dispatch prefix and its document number); the
// lines come in the order they were saved, one a batch and unit, as stored. A note
// that does not exist prints nothing: both answer no rows.
#include "server/procedure_arguments.h"
#include "server/procedure_context.h"
#include "server/procedures/print_procedures.h"

namespace server::print {

namespace {

// Goods given away are worth nothing on the note, whatever price the line carried.
constexpr const char* kLineValue =
    "CASE WHEN d.FreeItem = 1 OR d.Free = 1 OR d.OtherCG_Item = 1 THEN 0.0 "
    "ELSE d.UOMQty * d.UOMPrice END";

}  // namespace

// (DispatchID): one row, the heading of the note and its total value.
std::vector<platform::ResultSet> DispatchAbstract(ProcedureContext& context,
                                                  const platform::ParameterList& parameters) {
    const ProcedureArguments args("sp_print_DispatchAbstract", parameters, {"@DispatchID"});
    args.ExpectAtMost(1);
    return {context.Query(std::string(R"SQL(
SELECT IFNULL((SELECT Prefix FROM VoucherPrefix WHERE TranID = 'DISPATCH'), '') || a.DocumentID AS "Dispatch No",
       a.DispatchDate AS "Date",
       a.CustomerID AS "Customer ID",
       c.Company_Name AS "Customer",
       a.BillingAddress AS "Billing Address",
       a.ShippingAddress AS "Shipping Address",
       IFNULL(s.Salesman_Name, '') AS "Salesman",
       IFNULL(b.Description, '') AS "Beat",
       a.NewRefNumber AS "Reference",
       a.DocReference AS "Doc Reference",
       a.Memo1 AS "Memo 1",
       a.Memo2 AS "Memo 2",
       a.Memo3 AS "Memo 3",
       (SELECT IFNULL(SUM()SQL") +
                              kLineValue + R"SQL(), 0.0) FROM DispatchDetail d WHERE d.DispatchID = a.DispatchID)
           AS "Total Value"
FROM DispatchAbstract a
JOIN Customer c ON c.CustomerID = a.CustomerID
LEFT JOIN Salesman s ON s.SalesmanID = a.SalesmanID
LEFT JOIN Beat b ON b.BeatID = a.BeatID
WHERE a.DispatchID = ?)SQL",
                          {args.Int(0)})};
}

// (DispatchID): the lines of the note in saving order.
std::vector<platform::ResultSet> DispatchDetail(ProcedureContext& context, const platform::ParameterList& parameters) {
    const ProcedureArguments args("sp_print_DispatchDetail", parameters, {"@DispatchID"});
    args.ExpectAtMost(1);
    return {context.Query(std::string(R"SQL(
SELECT d.Product_Code AS "Item Code",
       i.ProductName AS "Item Name",
       d.Batch_Number AS "Batch",
       u.Description AS "Unit",
       d.UOMQty AS "Quantity",
       d.UOMPrice AS "Unit Price",
       d.Quantity AS "Base Quantity",
       )SQL") + kLineValue + R"SQL( AS "Value",
       CASE WHEN d.FreeItem = 1 OR d.Free = 1 OR d.OtherCG_Item = 1 THEN 'Free' ELSE '' END AS "Free"
FROM DispatchDetail d
JOIN Items i ON i.Product_Code = d.Product_Code
JOIN UOM u ON u.UOM = d.UOM
WHERE d.DispatchID = ?
ORDER BY d.DetailID)SQL",
                          {args.Int(0)})};
}

}  // namespace server::print
