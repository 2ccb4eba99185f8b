// The parties a note starts from: the customer's own salesman and beat, the
// salesman of a sales confirmation, and whether a beat is still worked.
#include "server/procedure_arguments.h"
#include "server/procedure_context.h"
#include "server/procedures/parties_procedures.h"

namespace server::parties {

// (customer ID, 1): the first beat of the customer, by beat number, with the first
// salesman that works it; no row when the customer stands on no active beat of an
// active salesman.
std::vector<platform::ResultSet> CustomerDefaultBeatSalesman(ProcedureContext& context,
                                                             const platform::ParameterList& parameters) {
    const ProcedureArguments args("Sp_Get_BeatSalesMan_QAX", parameters, {"@CustomerID", "@Flag"});
    args.ExpectAtMost(2);
    return {context.Query(R"SQL(
SELECT s.SalesmanID, s.Salesman_Name, b.BeatID, b.Description AS BeatName
FROM BeatCustomer bc
JOIN Beat b ON b.BeatID = bc.BeatID AND b.Active = 1
JOIN SalesmanBeat sb ON sb.BeatID = b.BeatID
JOIN Salesman s ON s.SalesmanID = sb.SalesmanID AND s.Active = 1
WHERE bc.CustomerID = ?
ORDER BY b.BeatID, s.SalesmanID
LIMIT 1)SQL",
                          {args.Text(0)})};
}

// (SO number): the confirmation's salesman; no row when it names none.
std::vector<platform::ResultSet> ConfirmationSalesman(ProcedureContext& context,
                                                      const platform::ParameterList& parameters) {
    const ProcedureArguments args("Sp_Get_BeatSalesMan_Cust_QAX", parameters, {"@SONumber"});
    args.ExpectAtMost(1);
    return {context.Query("SELECT SalesmanID FROM SOAbstract WHERE SONumber = ? AND IFNULL(SalesmanID, 0) <> 0",
                          {args.Int(0)})};
}

// (beat, 1): 1 for an active beat, 0 for a deactivated one; no row for a beat that
// does not exist.
std::vector<platform::ResultSet> ValidateActiveBeat(ProcedureContext& context,
                                                    const platform::ParameterList& parameters) {
    const ProcedureArguments args("sp_Validate_ActiveBeat", parameters, {"@BeatID", "@Flag"});
    args.ExpectAtMost(2);
    return {context.Query("SELECT CASE WHEN Active = 1 THEN 1 ELSE 0 END AS Active FROM Beat WHERE BeatID = ?",
                          {args.Int(0)})};
}

}  // namespace server::parties
