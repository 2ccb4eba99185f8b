// The server objects behind a line of the note: the stock a batch list offers and
// an item's saleable total.
#pragma once

#include <vector>

#include "platform/database.h"

namespace server {

class ProcedureRegistry;
class ProcedureContext;

void RegisterStockProcedures(ProcedureRegistry& registry);

namespace stock {

std::vector<platform::ResultSet> BookStock(ProcedureContext& context, const platform::ParameterList& parameters);
std::vector<platform::ResultSet> TotalBookStock(ProcedureContext& context, const platform::ParameterList& parameters);

}  // namespace stock
}  // namespace server
