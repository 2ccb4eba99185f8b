// The server objects a save of a dispatch note calls, in the order it calls them:
// the credit gate ahead of the transaction, then the note's abstract, its document
// number, its lines (which take the stock), and the sales confirmations it was made
// from.
#pragma once

#include <vector>

#include "platform/database.h"

namespace server {

class ProcedureRegistry;
class ProcedureContext;

void RegisterSaveProcedures(ProcedureRegistry& registry);

namespace save {

std::vector<platform::ResultSet> CheckCreditLimitExceeds(ProcedureContext& context,
                                                         const platform::ParameterList& parameters);

std::vector<platform::ResultSet> SaveAbstract(ProcedureContext& context, const platform::ParameterList& parameters);
std::vector<platform::ResultSet> SaveAmendedAbstract(ProcedureContext& context,
                                                     const platform::ParameterList& parameters);
std::vector<platform::ResultSet> UpdateTransactionSerial(ProcedureContext& context,
                                                         const platform::ParameterList& parameters);

std::vector<platform::ResultSet> SaveDetailAtItemPrice(ProcedureContext& context,
                                                       const platform::ParameterList& parameters);
std::vector<platform::ResultSet> SaveDetailAtCustomerPrice(ProcedureContext& context,
                                                           const platform::ParameterList& parameters);

std::vector<platform::ResultSet> UpdateSOPending(ProcedureContext& context, const platform::ParameterList& parameters);
std::vector<platform::ResultSet> CloseSO(ProcedureContext& context, const platform::ParameterList& parameters);
std::vector<platform::ResultSet> UpdateSORefNumber(ProcedureContext& context,
                                                   const platform::ParameterList& parameters);

}  // namespace save
}  // namespace server
