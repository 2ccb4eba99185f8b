// The number a new dispatch will get: the next of the dispatch serial. Proposing it
// moves nothing; the save takes it.
#include "server/procedure_arguments.h"
#include "server/procedure_context.h"
#include "server/procedures/header_procedures.h"

namespace server::header {

namespace {
constexpr int kDispatchSerial = 5;
}

std::vector<platform::ResultSet> NewDispatchID(ProcedureContext& context, const platform::ParameterList& parameters) {
    const ProcedureArguments args("sp_get_NewDispatchID", parameters);
    args.ExpectAtMost(0);
    return {
        context.Query("SELECT IFNULL(MAX(LastNumber), 0) + 1 AS NewDispatchID FROM DocumentNumbers WHERE DocType = ?",
                      {platform::Value(kDispatchSerial)})};
}

}  // namespace server::header
