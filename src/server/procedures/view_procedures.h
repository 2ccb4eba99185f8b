// The server objects a stored dispatch note is read back through, to fill the screen
// again: its abstract, its lines as the grid rows they were keyed as, and the dates
// an amendment judges the note's schemes by.
#pragma once

#include <vector>

#include "platform/database.h"

namespace server {

class ProcedureRegistry;
class ProcedureContext;

void RegisterViewProcedures(ProcedureRegistry& registry);

namespace view {

std::vector<platform::ResultSet> DispatchAbstract(ProcedureContext& context, const platform::ParameterList& parameters);
std::vector<platform::ResultSet> DispatchDetails(ProcedureContext& context, const platform::ParameterList& parameters);
std::vector<platform::ResultSet> OldDispatchDate(ProcedureContext& context, const platform::ParameterList& parameters);

}  // namespace view
}  // namespace server
