#include "server/procedure_registry.h"
#include "server/procedures/save_procedures.h"

namespace server {

void RegisterSaveProcedures(ProcedureRegistry& registry) {
    registry.RegisterProcedure("sp_CheckCreditLimitExceeds_QAX", &save::CheckCreditLimitExceeds);
    registry.RegisterProcedure("sp_Save_DispatchAbstract", &save::SaveAbstract);
    registry.RegisterProcedure("sp_Save_DispatchAbstract_Amend", &save::SaveAmendedAbstract);
    registry.RegisterProcedure("sp_Update_TransactionSerial", &save::UpdateTransactionSerial);
    registry.RegisterProcedure("sp_Save_dispatchdetail_UOM_QAX", &save::SaveDetailAtItemPrice);
    registry.RegisterProcedure("sp_Save_dispatchDetail_csp_UOM_QAX", &save::SaveDetailAtCustomerPrice);
    registry.RegisterProcedure("sp_update_sopending", &save::UpdateSOPending);
    registry.RegisterProcedure("sp_close_so", &save::CloseSO);
    registry.RegisterProcedure("sp_update_soRefNumber", &save::UpdateSORefNumber);
}

}  // namespace server
