// The server objects of the C-Form/D-Form receipt screen: the invoices whose forms
// are due, and the receipt written back to one of them.
#pragma once

#include <vector>

#include "platform/database.h"

namespace server {

class ProcedureRegistry;
class ProcedureContext;

void RegisterReceiptProcedures(ProcedureRegistry& registry);

namespace receipts {

std::vector<platform::ResultSet> ReceiptFormInvoices(ProcedureContext& context,
                                                     const platform::ParameterList& parameters);
std::vector<platform::ResultSet> UpdateFormReceipt(ProcedureContext& context,
                                                   const platform::ParameterList& parameters);

}  // namespace receipts
}  // namespace server
