#include "server/procedure_registry.h"
#include "server/procedures/cancel_procedures.h"

namespace server {

void RegisterCancelProcedures(ProcedureRegistry& registry) {
    registry.RegisterProcedure("sp_adjust_opening_for_cancel_dispatch", &cancel::AdjustOpeningForCancelDispatch);
}

}  // namespace server
