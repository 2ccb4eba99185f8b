#include "server/procedure_registry.h"
#include "server/procedures/schemes_procedures.h"

namespace server {

void RegisterSchemeProcedures(ProcedureRegistry& registry) {
    registry.RegisterProcedure("Zuro_SP_ListFreeSKUCount", &schemes::ListFreeSKUCount);
}

}  // namespace server
