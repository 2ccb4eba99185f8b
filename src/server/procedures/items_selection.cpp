// Which items a dispatch may sell. A note belongs to category groups, so its items
// are the active items of the groups' categories; a salesman whose DS type is mapped
// to categories sells the items of those categories instead. An amendment may keep
// what the note already holds, even an item that has since been switched off, so the
// dispatch variants add the note's own items.
#include <string>

#include "server/procedure_context.h"
#include "server/procedures/items_procedures.h"
#include "server/procedures/parties_arguments.h"
#include "server/procedures/parties_procedures.h"

namespace server::items {

namespace {
using parties::TableFunctionArguments;

// "IN (?, ?, ...)" over the numbers of a comma list of groups.
struct GroupList {
    std::string placeholders;
    std::vector<platform::Value> values;
};

GroupList GroupsOf(const std::string& list) {
    GroupList groups;
    for (long long id : parties::GroupIDList(list)) {
        groups.placeholders += groups.placeholders.empty() ? "?" : ", ?";
        groups.values.emplace_back(id);
    }
    return groups;
}

const char* const kItemsOfNote = R"SQL(
UNION
SELECT i.Product_Code, i.ProductName
FROM Items i
WHERE i.Product_Code IN (SELECT Product_Code FROM DispatchDetail WHERE DispatchID = ?))SQL";

const char* const kByName = "\nORDER BY ProductName";

platform::ResultSet ItemsOfGroupList(ProcedureContext& context, const std::string& list, const long long* dispatchID) {
    GroupList groups = GroupsOf(list);
    std::string sql = R"SQL(
SELECT i.Product_Code, i.ProductName
FROM Items i
WHERE i.Active = 1
  AND i.CategoryID IN (SELECT CategoryID FROM ProductCategoryGroupDetail WHERE GroupID IN ()SQL" +
                      groups.placeholders + "))";
    if (dispatchID) {
        sql += kItemsOfNote;
        groups.values.emplace_back(*dispatchID);
    }
    return context.Query(sql + kByName, groups.values);
}

platform::ResultSet ItemsOfActiveGroups(ProcedureContext& context, const long long* dispatchID) {
    std::string sql = R"SQL(
SELECT i.Product_Code, i.ProductName
FROM Items i
WHERE i.Active = 1
  AND i.CategoryID IN (SELECT d.CategoryID
                       FROM ProductCategoryGroupDetail d
                       JOIN ProductCategoryGroupAbstract g ON g.GroupID = d.GroupID
                       WHERE g.Active = 1))SQL";
    std::vector<platform::Value> bind;
    if (dispatchID) {
        sql += kItemsOfNote;
        bind.emplace_back(*dispatchID);
    }
    return context.Query(sql + kByName, bind);
}

// The last argument of the DS type functions: 1 offers only the items still sold,
// 0 every item of the type's categories.
platform::ResultSet ItemsOfDSTypeCategories(ProcedureContext& context, long long dsType, long long activeOnly,
                                            const long long* dispatchID) {
    std::string sql = R"SQL(
SELECT i.Product_Code, i.ProductName
FROM Items i
JOIN DSTypeCategory c ON c.CategoryID = i.CategoryID
JOIN DSType t ON t.DSTypeID = c.DSTypeID
WHERE t.DSTypeID = ? AND t.CategoryMapped = 1 AND (? = 0 OR i.Active = 1))SQL";
    std::vector<platform::Value> bind{platform::Value(dsType), platform::Value(activeOnly)};
    if (dispatchID) {
        sql += kItemsOfNote;
        bind.emplace_back(*dispatchID);
    }
    return context.Query(sql + kByName, bind);
}
}  // namespace

// ('1,2')
platform::ResultSet ItemsOfGroups(ProcedureContext& context, const std::vector<platform::Value>& arguments) {
    const TableFunctionArguments args("Fn_Get_Items_QAX", arguments, 1);
    return ItemsOfGroupList(context, args.Text(0), nullptr);
}

// ()
platform::ResultSet ItemsOfAllGroups(ProcedureContext& context, const std::vector<platform::Value>& arguments) {
    const TableFunctionArguments args("Fn_Get_Items_QAX_AllCat", arguments, 0);
    return ItemsOfActiveGroups(context, nullptr);
}

// ('1,2', dispatch)
platform::ResultSet DispatchItemsOfGroups(ProcedureContext& context, const std::vector<platform::Value>& arguments) {
    const TableFunctionArguments args("Fn_Get_DispatchItems_QAX", arguments, 2);
    const long long dispatchID = args.Int(1);
    return ItemsOfGroupList(context, args.Text(0), &dispatchID);
}

// ('dispatch'): the screen sends the number quoted.
platform::ResultSet DispatchItemsOfAllGroups(ProcedureContext& context, const std::vector<platform::Value>& arguments) {
    const TableFunctionArguments args("Fn_Get_DispatchItems_QAX_AllCat", arguments, 1);
    const long long dispatchID = args.Int(0);
    return ItemsOfActiveGroups(context, &dispatchID);
}

// (DS type, 1)
platform::ResultSet ItemsOfDSType(ProcedureContext& context, const std::vector<platform::Value>& arguments) {
    const TableFunctionArguments args("Fn_Get_DSTypeWiseSKU", arguments, 2);
    return ItemsOfDSTypeCategories(context, args.Int(0), args.Int(1), nullptr);
}

// (DS type, dispatch, 1)
platform::ResultSet DispatchItemsOfDSType(ProcedureContext& context, const std::vector<platform::Value>& arguments) {
    const TableFunctionArguments args("Fn_Get_DSTypeWiseSKU_Amend", arguments, 3);
    const long long dispatchID = args.Int(1);
    return ItemsOfDSTypeCategories(context, args.Int(0), args.Int(2), &dispatchID);
}

}  // namespace server::items
