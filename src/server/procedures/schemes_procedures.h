// The server objects the scheme steps of the note read.
#pragma once

#include <vector>

#include "platform/database.h"

namespace server {

class ProcedureRegistry;
class ProcedureContext;

void RegisterSchemeProcedures(ProcedureRegistry& registry);

namespace schemes {

std::vector<platform::ResultSet> ListFreeSKUCount(ProcedureContext& context, const platform::ParameterList& parameters);

}  // namespace schemes
}  // namespace server
