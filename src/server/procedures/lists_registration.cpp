#include "server/procedure_registry.h"
#include "server/procedures/lists_procedures.h"

namespace server {

void RegisterListProcedures(ProcedureRegistry& registry) {
    registry.RegisterProcedure("sp_get_allSOabstract", &lists::AllPendingConfirmations);
    registry.RegisterProcedure("sp_get_Sos", &lists::CustomerPendingConfirmations);
    registry.RegisterProcedure("sp_get_allpos", &lists::AllPendingOrders);
    registry.RegisterProcedure("sp_get_pos", &lists::CustomerPendingOrders);
    registry.RegisterProcedure("sp_list_Dispatch", &lists::StoredDispatches);
    registry.RegisterProcedure("sp_list_Dispatch_DocLU", &lists::StoredDispatchesByNumber);
    registry.RegisterProcedure("Sp_CheckForGroupID", &lists::CheckForGroupID);
}

}  // namespace server
