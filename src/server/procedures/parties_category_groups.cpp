// What a salesman's DS type is mapped to: category groups, and for a type mapped to
// categories its own item categories.
#include <set>

#include "platform/convert.h"
#include "server/procedure_arguments.h"
#include "server/procedure_context.h"
#include "server/procedures/parties_procedures.h"

namespace server::parties {

namespace {
platform::ResultSet OneValue(const char* column, platform::Value value) {
    platform::ResultSet result;
    result.columns = {column};
    result.rows.push_back({std::move(value)});
    return result;
}

long long ActiveGroupCount(ProcedureContext& context) {
    return static_cast<long long>(
        platform::ToNumber(context.Scalar("SELECT COUNT(*) FROM ProductCategoryGroupAbstract WHERE Active = 1")));
}

long long MappedGroupCount(ProcedureContext& context, const platform::Value& salesman) {
    return static_cast<long long>(platform::ToNumber(context.Scalar(R"SQL(
SELECT COUNT(*)
FROM Salesman s
JOIN DSTypeCategoryGroup m ON m.DSTypeID = s.DSTypeID
JOIN ProductCategoryGroupAbstract g ON g.GroupID = m.GroupID AND g.Active = 1
WHERE s.SalesmanID = ?)SQL",
                                                                    {salesman})));
}
}  // namespace

// (group ID list): the name of each group of the list, once, in the list's order.
std::vector<platform::ResultSet> CategoryGroupNames(ProcedureContext& context,
                                                    const platform::ParameterList& parameters) {
    const ProcedureArguments args("Zuro_sp_Get_CGNames", parameters, {"@GroupIDs"});
    args.ExpectAtMost(1);
    platform::ResultSet names;
    names.columns = {"GroupName"};
    std::set<long long> seen;
    for (long long id : GroupIDList(args.TextOr(0, ""))) {
        if (!seen.insert(id).second) continue;
        const platform::Value name =
            context.Scalar("SELECT GroupName FROM ProductCategoryGroupAbstract WHERE GroupID = ?", {id});
        if (!name.IsNull()) names.rows.push_back({name});
    }
    return {names};
}

// (salesman): 1 when the salesman's DS type is mapped to every active group, 2 when
// to some, 0 when to none.
std::vector<platform::ResultSet> CheckForAllCatGrpMapped(ProcedureContext& context,
                                                         const platform::ParameterList& parameters) {
    const ProcedureArguments args("sp_CheckForAllCatGrpMapped", parameters, {"@SalesmanID"});
    args.ExpectAtMost(1);
    const long long mapped = MappedGroupCount(context, args.Int(0));
    const long long all = ActiveGroupCount(context);
    const long long answer = mapped == 0 ? 0 : (mapped >= all ? 1 : 2);
    return {OneValue("Mapped", answer)};
}

// (salesman): the DS type of the salesman when that type is mapped to categories,
// else 0.
std::vector<platform::ResultSet> CatMappedDSTypeID(ProcedureContext& context,
                                                   const platform::ParameterList& parameters) {
    const ProcedureArguments args("sp_get_CatMappedDSTypeID", parameters, {"@SalesmanID"});
    args.ExpectAtMost(1);
    return {context.Query(R"SQL(
SELECT IFNULL((SELECT d.DSTypeID FROM Salesman s JOIN DSType d ON d.DSTypeID = s.DSTypeID
               WHERE s.SalesmanID = ? AND d.CategoryMapped = 1), 0) AS DSTypeID)SQL",
                          {args.Int(0)})};
}

// (salesman, group list): 1 when every group of the list is mapped to the salesman's
// DS type, else 0. Group 0 is the all-categories choice and asks for every active
// group; a list that names no group gives 0.
std::vector<platform::ResultSet> CheckGroupExistsForSalesman(ProcedureContext& context,
                                                             const platform::ParameterList& parameters) {
    const ProcedureArguments args("Sp_CheckGroupExistsForSalesman", parameters, {"@SalesmanID", "@GroupIDs"});
    args.ExpectAtMost(2);
    const platform::Value salesman = args.Int(0);
    const std::vector<long long> groups = GroupIDList(args.TextOr(1, ""));
    bool allMapped = !groups.empty();
    for (long long id : groups) {
        if (id == 0) {
            allMapped = MappedGroupCount(context, salesman) >= ActiveGroupCount(context);
        } else {
            allMapped = !context
                             .Scalar(R"SQL(
SELECT 1 FROM Salesman s JOIN DSTypeCategoryGroup m ON m.DSTypeID = s.DSTypeID
WHERE s.SalesmanID = ? AND m.GroupID = ?)SQL",
                                     {salesman, id})
                             .IsNull();
        }
        if (!allMapped) break;
    }
    return {OneValue("GroupExists", allMapped ? 1 : 0)};
}

}  // namespace server::parties
