// The server objects a printed dispatch note is made from: its heading and its lines,
// with column names that serve as the printed labels.
#pragma once

#include <vector>

#include "platform/database.h"

namespace server {

class ProcedureRegistry;
class ProcedureContext;

void RegisterPrintProcedures(ProcedureRegistry& registry);

namespace print {

std::vector<platform::ResultSet> DispatchAbstract(ProcedureContext& context, const platform::ParameterList& parameters);
std::vector<platform::ResultSet> DispatchDetail(ProcedureContext& context, const platform::ParameterList& parameters);

}  // namespace print
}  // namespace server
