#include "server/procedure_registry.h"
#include "server/procedures/header_procedures.h"

namespace server {

void RegisterHeaderProcedures(ProcedureRegistry& registry) {
    registry.RegisterProcedure("sp_get_NewDispatchID", &header::NewDispatchID);
    registry.RegisterProcedure("sp_get_Customer_OutStanding_Balance", &header::OutstandingBalance);
    registry.RegisterProcedure("sp_get_Customer_OverDue", &header::OverDue);
    registry.RegisterProcedure("sp_acc_PartyChqsinhand", &header::ChequesInHand);
    registry.RegisterProcedure("sp_get_CustomerInvoiceLimit", &header::InvoiceLimit);
    registry.RegisterProcedure("sp_get_TradeCustomer", &header::TradeCustomer);
}

}  // namespace server
