// Who may be chosen with whom: a salesman serves beats, a beat holds customers.
// Only active salesmen, beats and customers are mapped, and customers of categories
// 4 and 5 never are.
#include "platform/convert.h"
#include "server/procedure_arguments.h"
#include "server/procedure_context.h"
#include "server/procedures/parties_arguments.h"
#include "server/procedures/parties_procedures.h"

namespace server::parties {

// (salesman, beat, customer name): 0 and '' leave that party unrestricted. A salesman
// without beats, or a beat without customers, still gives its row, with the columns
// of what it lacks Null.
platform::ResultSet MappedSalesmanBeatAndCustomer(ProcedureContext& context,
                                                  const std::vector<platform::Value>& arguments) {
    const TableFunctionArguments args("Fn_Get_MappedSalemanBeatAndCustomer_QAX", arguments, 3);
    return context.Query(R"SQL(
SELECT s.SalesmanID, s.Salesman_Name, sb.BeatID, sb.BeatName, bc.CustomerID, bc.Company_Name, bc.Address
FROM Salesman s
LEFT JOIN (SELECT m.SalesmanID, b.BeatID, b.Description AS BeatName
           FROM SalesmanBeat m JOIN Beat b ON b.BeatID = m.BeatID
           WHERE b.Active = 1) sb ON sb.SalesmanID = s.SalesmanID
LEFT JOIN (SELECT m.BeatID, c.CustomerID, c.Company_Name, c.BillingAddress AS Address
           FROM BeatCustomer m JOIN Customer c ON c.CustomerID = m.CustomerID
           WHERE c.Active = 1 AND c.CustomerCategory NOT IN (4, 5)) bc ON bc.BeatID = sb.BeatID
WHERE s.Active = 1
  AND (?1 = 0 OR s.SalesmanID = ?1)
  AND (?2 = 0 OR sb.BeatID = ?2)
  AND (?3 = '' OR bc.Company_Name = ?3 COLLATE NOCASE)
ORDER BY s.SalesmanID, sb.BeatID, bc.CustomerID)SQL",
                         {args.Int(0), args.Int(1), platform::RTrim(args.Text(2))});
}

// The active groups the salesman's DS type sells.
platform::ResultSet ListCategoryGroup(ProcedureContext& context, const std::vector<platform::Value>& arguments) {
    const TableFunctionArguments args("fn_ListCategoryGroup", arguments, 1);
    return context.Query(R"SQL(
SELECT g.GroupID, g.GroupName
FROM Salesman s
JOIN DSTypeCategoryGroup m ON m.DSTypeID = s.DSTypeID
JOIN ProductCategoryGroupAbstract g ON g.GroupID = m.GroupID
WHERE s.SalesmanID = ? AND g.Active = 1
ORDER BY g.GroupID)SQL",
                         {args.Int(0)});
}

// The active items of the categories of a comma list of groups.
platform::ResultSet ItemsOfGroups(ProcedureContext& context, const std::vector<platform::Value>& arguments) {
    const TableFunctionArguments args("Sp_Get_Items_QAX", arguments, 1);
    std::vector<platform::Value> groups;
    std::string placeholders;
    for (long long id : GroupIDList(args.Text(0))) {
        placeholders += placeholders.empty() ? "?" : ", ?";
        groups.emplace_back(id);
    }
    return context.Query(R"SQL(
SELECT DISTINCT i.Product_Code, i.ProductName
FROM Items i
JOIN ProductCategoryGroupDetail d ON d.CategoryID = i.CategoryID
WHERE i.Active = 1 AND d.GroupID IN ()SQL" +
                             placeholders + R"SQL()
ORDER BY i.ProductName)SQL",
                         groups);
}

// Whether the salesman serves the beat and the beat holds the customer (any customer
// when none is named), all of them active: one row, 1 or 0.
std::vector<platform::ResultSet> CheckForMapping(ProcedureContext& context, const platform::ParameterList& parameters) {
    const ProcedureArguments args("sp_CheckForMapping_QAX", parameters, {"@SalesmanID", "@BeatID", "@CustomerID"});
    args.ExpectAtMost(3);
    return {context.Query(R"SQL(
SELECT CASE WHEN EXISTS (
    SELECT 1
    FROM SalesmanBeat m
    JOIN Salesman s ON s.SalesmanID = m.SalesmanID AND s.Active = 1
    JOIN Beat b ON b.BeatID = m.BeatID AND b.Active = 1
    WHERE m.SalesmanID = ?1 AND m.BeatID = ?2
      AND (?3 = '' OR EXISTS (
          SELECT 1 FROM BeatCustomer bc JOIN Customer c ON c.CustomerID = bc.CustomerID AND c.Active = 1
          WHERE bc.BeatID = m.BeatID AND bc.CustomerID = ?3 COLLATE NOCASE)))
THEN 1 ELSE 0 END AS Mapped)SQL",
                          {args.Int(0), args.Int(1), platform::Trim(platform::ToText(args.Text(2)))})};
}

}  // namespace server::parties
