// The server objects behind the list page: the documents that still wait for
// dispatch, pending sales confirmations and received purchase orders; the stored
// notes; and the category-group check of the Continue step.
#pragma once

#include <vector>

#include "platform/database.h"

namespace server {

class ProcedureRegistry;
class ProcedureContext;

void RegisterListProcedures(ProcedureRegistry& registry);

namespace lists {

std::vector<platform::ResultSet> AllPendingConfirmations(ProcedureContext& context,
                                                         const platform::ParameterList& parameters);
std::vector<platform::ResultSet> CustomerPendingConfirmations(ProcedureContext& context,
                                                              const platform::ParameterList& parameters);
std::vector<platform::ResultSet> AllPendingOrders(ProcedureContext& context, const platform::ParameterList& parameters);
std::vector<platform::ResultSet> CustomerPendingOrders(ProcedureContext& context,
                                                       const platform::ParameterList& parameters);
std::vector<platform::ResultSet> StoredDispatches(ProcedureContext& context, const platform::ParameterList& parameters);
std::vector<platform::ResultSet> StoredDispatchesByNumber(ProcedureContext& context,
                                                          const platform::ParameterList& parameters);
std::vector<platform::ResultSet> CheckForGroupID(ProcedureContext& context, const platform::ParameterList& parameters);

}  // namespace lists
}  // namespace server
