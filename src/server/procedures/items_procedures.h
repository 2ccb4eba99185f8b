// The server objects behind the item grid: which items a dispatch may sell (by
// category group, by the salesman's DS type, and in an amendment the items the
// note already holds), and the unit ladder of an item.
#pragma once

#include <vector>

#include "platform/database.h"

namespace server {

class ProcedureRegistry;
class ProcedureContext;

void RegisterItemProcedures(ProcedureRegistry& registry);

namespace items {

// Table functions: each answers Product_Code and ProductName, by name.
platform::ResultSet ItemsOfGroups(ProcedureContext& context, const std::vector<platform::Value>& arguments);
platform::ResultSet ItemsOfAllGroups(ProcedureContext& context, const std::vector<platform::Value>& arguments);
platform::ResultSet DispatchItemsOfGroups(ProcedureContext& context, const std::vector<platform::Value>& arguments);
platform::ResultSet DispatchItemsOfAllGroups(ProcedureContext& context, const std::vector<platform::Value>& arguments);
platform::ResultSet ItemsOfDSType(ProcedureContext& context, const std::vector<platform::Value>& arguments);
platform::ResultSet DispatchItemsOfDSType(ProcedureContext& context, const std::vector<platform::Value>& arguments);

// Procedures: field 0 is 1 when the item may be sold, 0 when not.
std::vector<platform::ResultSet> CheckItemInGroups(ProcedureContext& context,
                                                   const platform::ParameterList& parameters);
std::vector<platform::ResultSet> CheckItemInDSType(ProcedureContext& context,
                                                   const platform::ParameterList& parameters);
// The item's units: its sales unit first, then every unit from the base up, each as
// identifier, text and base units in one.
std::vector<platform::ResultSet> ItemUnits(ProcedureContext& context, const platform::ParameterList& parameters);

}  // namespace items
}  // namespace server
