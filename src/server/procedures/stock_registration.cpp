#include "server/procedure_registry.h"
#include "server/procedures/stock_procedures.h"

namespace server {

void RegisterStockProcedures(ProcedureRegistry& registry) {
    registry.RegisterProcedure("sp_get_bookstock", &stock::BookStock);
    registry.RegisterProcedure("spr_get_total_bookstock", &stock::TotalBookStock);
}

}  // namespace server
