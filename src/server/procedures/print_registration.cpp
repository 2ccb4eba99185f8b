#include "server/procedure_registry.h"
#include "server/procedures/print_procedures.h"

namespace server {

void RegisterPrintProcedures(ProcedureRegistry& registry) {
    registry.RegisterProcedure("sp_print_DispatchAbstract", &print::DispatchAbstract);
    registry.RegisterProcedure("sp_print_DispatchDetail", &print::DispatchDetail);
}

}  // namespace server
