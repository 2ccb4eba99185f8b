// Whether a customer has schemes at all on a day.
#include "server/procedure_arguments.h"
#include "server/procedure_context.h"
#include "server/procedures/schemes_procedures.h"
#include "server/procedures/schemes_rules.h"

namespace server::schemes {

// (dispatch date, customer): how many schemes of every kind stand for the customer
// on the day.
std::vector<platform::ResultSet> CountSchemesForCustomer(ProcedureContext& context,
                                                         const platform::ParameterList& parameters) {
    const ProcedureArguments args("Zuro_sp_Check_SchExistsForCust", parameters, {"@DispatchDate", "@CustomerID"});
    args.ExpectAtMost(2);
    return {context.Query("SELECT COUNT(*) AS SchemeCount FROM Schemes s WHERE " + SchemeStandsFor("?1", "?2", "?3"),
                          {args.DateTime(0), platform::Value(CustomerCode(args, 1)), platform::Value::Null()})};
}

}  // namespace server::schemes
