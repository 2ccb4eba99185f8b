#include "server/procedure_registry.h"
#include "server/procedures/loading_procedures.h"

namespace server {

void RegisterLoadingProcedures(ProcedureRegistry& registry) {
    registry.RegisterProcedure("SP_Get_SODetailForDispatch", &loading::SODetailForDispatch);
    registry.RegisterProcedure("sp_get_stock", &loading::LineStock);
    registry.RegisterProcedure("sp_get_stock_csp", &loading::LineStockByPrice);
    registry.RegisterProcedure("sp_get_receivedpoitems", &loading::ReceivedPOItem);
    registry.RegisterProcedure("sp_get_schemeIDDispatch_MUOM", &loading::FindLoadTimeSchemes);
    registry.RegisterProcedure("sp_get_SchemeItemsDetail_MUOM", &loading::LoadTimeSchemeSlabs);
}

}  // namespace server
