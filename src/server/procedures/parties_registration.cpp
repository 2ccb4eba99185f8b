#include "server/procedure_registry.h"
#include "server/procedures/parties_procedures.h"

namespace server {

void RegisterPartyProcedures(ProcedureRegistry& registry) {
    registry.RegisterTableFunction("Fn_Get_MappedSalemanBeatAndCustomer_QAX", &parties::MappedSalesmanBeatAndCustomer);
    registry.RegisterTableFunction("fn_ListCategoryGroup", &parties::ListCategoryGroup);
    registry.RegisterTableFunction("Sp_Get_Items_QAX", &parties::ItemsOfGroups);

    registry.RegisterProcedure("Sp_Get_BeatSalesMan_QAX", &parties::CustomerDefaultBeatSalesman);
    registry.RegisterProcedure("Sp_Get_BeatSalesMan_Cust_QAX", &parties::ConfirmationSalesman);
    registry.RegisterProcedure("sp_Validate_ActiveBeat", &parties::ValidateActiveBeat);
    registry.RegisterProcedure("Zuro_sp_Get_CGNames", &parties::CategoryGroupNames);
    registry.RegisterProcedure("sp_CheckForAllCatGrpMapped", &parties::CheckForAllCatGrpMapped);
    registry.RegisterProcedure("sp_get_CatMappedDSTypeID", &parties::CatMappedDSTypeID);
    registry.RegisterProcedure("Sp_CheckGroupExistsForSalesman", &parties::CheckGroupExistsForSalesman);
    registry.RegisterProcedure("sp_CheckForMapping_QAX", &parties::CheckForMapping);
}

}  // namespace server
