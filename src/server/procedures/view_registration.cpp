#include "server/procedure_registry.h"
#include "server/procedures/view_procedures.h"

namespace server {

void RegisterViewProcedures(ProcedureRegistry& registry) {
    registry.RegisterProcedure("sp_view_DispatchAbstract", &view::DispatchAbstract);
    registry.RegisterProcedure("sp_view_DispatchDetails_MUOM_QAX", &view::DispatchDetails);
    registry.RegisterProcedure("Zuro_sp_GetOldDispDate", &view::OldDispatchDate);
}

}  // namespace server
