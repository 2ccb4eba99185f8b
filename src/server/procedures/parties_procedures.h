// The server objects behind the salesman, beat and category group fields: the
// mapping of salesmen, beats and customers, the category groups a salesman's DS
// type sells, and the customer's default salesman and beat.
#pragma once

#include <string>
#include <vector>

#include "platform/database.h"

namespace server {

class ProcedureRegistry;
class ProcedureContext;

void RegisterPartyProcedures(ProcedureRegistry& registry);

namespace parties {

// Table functions.
platform::ResultSet MappedSalesmanBeatAndCustomer(ProcedureContext& context,
                                                  const std::vector<platform::Value>& arguments);
platform::ResultSet ListCategoryGroup(ProcedureContext& context, const std::vector<platform::Value>& arguments);
platform::ResultSet ItemsOfGroups(ProcedureContext& context, const std::vector<platform::Value>& arguments);

// Procedures.
std::vector<platform::ResultSet> CustomerDefaultBeatSalesman(ProcedureContext& context,
                                                             const platform::ParameterList& parameters);
std::vector<platform::ResultSet> ConfirmationSalesman(ProcedureContext& context,
                                                      const platform::ParameterList& parameters);
std::vector<platform::ResultSet> ValidateActiveBeat(ProcedureContext& context,
                                                    const platform::ParameterList& parameters);
std::vector<platform::ResultSet> CategoryGroupNames(ProcedureContext& context,
                                                    const platform::ParameterList& parameters);
std::vector<platform::ResultSet> CheckForAllCatGrpMapped(ProcedureContext& context,
                                                         const platform::ParameterList& parameters);
std::vector<platform::ResultSet> CatMappedDSTypeID(ProcedureContext& context,
                                                   const platform::ParameterList& parameters);
std::vector<platform::ResultSet> CheckGroupExistsForSalesman(ProcedureContext& context,
                                                             const platform::ParameterList& parameters);
std::vector<platform::ResultSet> CheckForMapping(ProcedureContext& context, const platform::ParameterList& parameters);

// The whole numbers of a comma list of group IDs, in the order given; blanks and
// entries that are not numbers are passed over.
std::vector<long long> GroupIDList(const std::string& list);

}  // namespace parties
}  // namespace server
