#include "server/server_objects.h"

#include "server/procedure_registry.h"
#include "server/procedures/header_procedures.h"
#include "server/procedures/items_procedures.h"
#include "server/procedures/lists_procedures.h"
#include "server/procedures/loading_procedures.h"
#include "server/procedures/parties_procedures.h"
#include "server/procedures/print_procedures.h"
#include "server/procedures/receipts_procedures.h"
#include "server/procedures/save_procedures.h"
#include "server/procedures/schemes_procedures.h"
#include "server/procedures/stock_procedures.h"
#include "server/procedures/view_procedures.h"

namespace server {

void RegisterServerObjects(ProcedureRegistry& registry) {
    // One call for each group of server objects, in the order they were added.
    RegisterPartyProcedures(registry);
    RegisterHeaderProcedures(registry);
    RegisterSchemeProcedures(registry);
    RegisterItemProcedures(registry);
    RegisterStockProcedures(registry);
    RegisterSaveProcedures(registry);
    RegisterPrintProcedures(registry);
    RegisterListProcedures(registry);
    RegisterLoadingProcedures(registry);
    RegisterReceiptProcedures(registry);
    RegisterViewProcedures(registry);
}

}  // namespace server
