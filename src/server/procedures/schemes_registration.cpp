#include "server/procedure_registry.h"
#include "server/procedures/schemes_procedures.h"

namespace server {

void RegisterSchemeProcedures(ProcedureRegistry& registry) {
    registry.RegisterProcedure("Zuro_SP_ListFreeSKUCount", &schemes::ListFreeSKUCount);
    registry.RegisterProcedure("Zuro_sp_FindDispatch_SKUSchemeID_New", &schemes::FindDispatchSKUSchemes);
    registry.RegisterProcedure("sp_get_SKUBased_SchItemsDetail", &schemes::SKUSchemeSlabDetail);
    registry.RegisterProcedure("Zuro_sp_FindSplCatSchemeID_New", &schemes::FindSplCatSchemes);
    registry.RegisterProcedure("Zuro_sp_GetSplCategoryItems_New", &schemes::SplCategoryItems);
    registry.RegisterProcedure("Zuro_SP_isAllItemsexistsMinQty", &schemes::AllItemsMeetMinQty);
    registry.RegisterProcedure("Zuro_sp_GetDispatch_SchSlabDetails", &schemes::DispatchSchemeSlab);
    registry.RegisterProcedure("Zuro_sp_Check_SchExistsForCust", &schemes::CountSchemesForCustomer);
}

}  // namespace server
