// The server objects behind filling a note from its source documents: the pending
// lines of sales confirmations, the stock each line finds now, the items of
// received purchase orders and the load-time schemes of those orders.
#pragma once

#include <string>
#include <vector>

#include "platform/database.h"

namespace server {

class ProcedureRegistry;
class ProcedureContext;

void RegisterLoadingProcedures(ProcedureRegistry& registry);

namespace loading {

using Answers = std::vector<platform::ResultSet>;

// dbo.GetQtyAsMultiple: a quantity in base units written over the item's ladder,
// largest unit first ("1*0*0"); a single-level or unknown item gives the plain
// number, and nothing left gives empty text.
std::string GetQtyAsMultiple(ProcedureContext& context, const std::string& itemCode, double quantity);

Answers SODetailForDispatch(ProcedureContext& context, const platform::ParameterList& parameters);
Answers LineStock(ProcedureContext& context, const platform::ParameterList& parameters);
Answers LineStockByPrice(ProcedureContext& context, const platform::ParameterList& parameters);
Answers ReceivedPOItem(ProcedureContext& context, const platform::ParameterList& parameters);
Answers FindLoadTimeSchemes(ProcedureContext& context, const platform::ParameterList& parameters);
Answers LoadTimeSchemeSlabs(ProcedureContext& context, const platform::ParameterList& parameters);

}  // namespace loading
}  // namespace server
