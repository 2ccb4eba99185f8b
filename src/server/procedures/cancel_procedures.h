// The server objects that cancelling or amending a stored note calls inside its
// transaction, once the note has been closed and its stock put back.
#pragma once

#include <vector>

#include "platform/database.h"

namespace server {

class ProcedureRegistry;
class ProcedureContext;

void RegisterCancelProcedures(ProcedureRegistry& registry);

namespace cancel {

std::vector<platform::ResultSet> AdjustOpeningForCancelDispatch(ProcedureContext& context,
                                                                const platform::ParameterList& parameters);

}  // namespace cancel
}  // namespace server
