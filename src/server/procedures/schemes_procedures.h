// The server objects the scheme steps of the note read.
#pragma once

#include <vector>

#include "platform/database.h"

namespace server {

class ProcedureRegistry;
class ProcedureContext;

void RegisterSchemeProcedures(ProcedureRegistry& registry);

namespace schemes {

using Answers = std::vector<platform::ResultSet>;

Answers ListFreeSKUCount(ProcedureContext& context, const platform::ParameterList& parameters);
Answers FindDispatchSKUSchemes(ProcedureContext& context, const platform::ParameterList& parameters);
Answers SKUSchemeSlabDetail(ProcedureContext& context, const platform::ParameterList& parameters);
Answers FindSplCatSchemes(ProcedureContext& context, const platform::ParameterList& parameters);
Answers SplCategoryItems(ProcedureContext& context, const platform::ParameterList& parameters);
Answers AllItemsMeetMinQty(ProcedureContext& context, const platform::ParameterList& parameters);
Answers DispatchSchemeSlab(ProcedureContext& context, const platform::ParameterList& parameters);
Answers CountSchemesForCustomer(ProcedureContext& context, const platform::ParameterList& parameters);

}  // namespace schemes
}  // namespace server
