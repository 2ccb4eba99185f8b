// The abstract of a stored note as the screen reads it back: the header by position,
// the parties by name. A note that does not exist answers no row.
#include "server/procedure_arguments.h"
#include "server/procedure_context.h"
#include "server/procedures/view_procedures.h"

namespace server::view {

// (DispatchID): one row. By position: 0 DispatchID, 1 date, 2 customer name,
// 3 customer ID, 4 billing and 5 shipping address, 6 creation time, 7 status,
// 8 document number, 9 the note's own reference, 10 to 12 memos, 13 remarks,
// 14 document reference, 15 document type; then SalesmanID, BeatID, GroupID and the
// names of the groups, joined by commas as the screen joins them.
std::vector<platform::ResultSet> DispatchAbstract(ProcedureContext& context,
                                                  const platform::ParameterList& parameters) {
    const ProcedureArguments args("sp_view_DispatchAbstract", parameters, {"@DispatchID"});
    args.ExpectAtMost(1);
    return {context.Query(R"SQL(
SELECT a.DispatchID, a.DispatchDate, c.Company_Name, a.CustomerID, a.BillingAddress, a.ShippingAddress,
       a.CreationTime, a.Status, a.DocumentID, a.NewRefNumber, a.Memo1, a.Memo2, a.Memo3, a.Remarks,
       a.DocReference, a.DocumentType,
       a.SalesmanID AS SalesmanID, a.BeatID AS BeatID, a.GroupID AS GroupID,
       (SELECT group_concat(GroupName, ',') FROM (
            SELECT g.GroupName FROM ProductCategoryGroupAbstract g
            WHERE instr(',' || REPLACE(a.GroupID, ' ', '') || ',', ',' || g.GroupID || ',') > 0
            ORDER BY g.GroupID)) AS GroupName,
       a.RefNumber AS RefNumber, a.OriginalReference AS OriginalReference
FROM DispatchAbstract a
LEFT JOIN Customer c ON c.CustomerID = a.CustomerID
WHERE a.DispatchID = ?)SQL",
                          {args.Int(0)})};
}

// (DispatchID): the note's date and the day it was made; no row for an unknown note.
std::vector<platform::ResultSet> OldDispatchDate(ProcedureContext& context, const platform::ParameterList& parameters) {
    const ProcedureArguments args("Zuro_sp_GetOldDispDate", parameters, {"@DispatchID"});
    args.ExpectAtMost(1);
    return {
        context.Query("SELECT DispatchDate, CreationTime FROM DispatchAbstract WHERE DispatchID = ?", {args.Int(0)})};
}

}  // namespace server::view
