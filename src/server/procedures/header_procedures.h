// The server objects behind the note's header: the proposed dispatch number, and
// where a customer's account stands.
#pragma once

#include <vector>

#include "platform/database.h"

namespace server {

class ProcedureRegistry;
class ProcedureContext;

void RegisterHeaderProcedures(ProcedureRegistry& registry);

namespace header {

std::vector<platform::ResultSet> NewDispatchID(ProcedureContext& context, const platform::ParameterList& parameters);
std::vector<platform::ResultSet> OutstandingBalance(ProcedureContext& context,
                                                    const platform::ParameterList& parameters);
std::vector<platform::ResultSet> OverDue(ProcedureContext& context, const platform::ParameterList& parameters);
std::vector<platform::ResultSet> ChequesInHand(ProcedureContext& context, const platform::ParameterList& parameters);
std::vector<platform::ResultSet> InvoiceLimit(ProcedureContext& context, const platform::ParameterList& parameters);
std::vector<platform::ResultSet> TradeCustomer(ProcedureContext& context, const platform::ParameterList& parameters);

}  // namespace header
}  // namespace server
