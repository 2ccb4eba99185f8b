// Whether an item typed into the grid may be sold, and the item's unit ladder.
#include "platform/convert.h"
#include "server/procedure_arguments.h"
#include "server/procedure_context.h"
#include "server/procedures/items_procedures.h"
#include "server/procedures/parties_procedures.h"

namespace server::items {

namespace {
platform::ResultSet Answer(bool itemIsIn) {
    platform::ResultSet result;
    result.columns = {"ItemExists"};
    result.rows.push_back({platform::Value(static_cast<long long>(itemIsIn ? 1 : 0))});
    return result;
}

// A table function's rows hold the item when one of them carries its code; codes
// compare without regard to case, as the server's collation did.
bool Holds(ProcedureContext& context, const char* function, const std::vector<platform::Value>& arguments,
           const std::string& itemCode) {
    const platform::ResultSet items = context.CallTableFunction(function, arguments);
    for (const auto& row : items.rows)
        if (!row.empty() && platform::UCase(platform::ToText(row[0])) == platform::UCase(itemCode)) return true;
    return false;
}
}  // namespace

// (group list, item): the item is an active item of the groups' categories.
std::vector<platform::ResultSet> CheckItemInGroups(ProcedureContext& context,
                                                   const platform::ParameterList& parameters) {
    const ProcedureArguments args("sp_CheckItemExists_QAX", parameters, {"@GroupID", "@ItemCode"});
    args.ExpectAtMost(2);
    const std::string groups = args.TextOr(0, "");
    const std::string item = platform::Trim(args.TextOr(1, ""));
    return {Answer(Holds(context, "Fn_Get_Items_QAX", {platform::Value(groups)}, item))};
}

// (DS type, item): the item is an active item of the type's mapped categories.
std::vector<platform::ResultSet> CheckItemInDSType(ProcedureContext& context,
                                                   const platform::ParameterList& parameters) {
    const ProcedureArguments args("sp_CheckItemExists_DSType", parameters, {"@DSTypeID", "@ItemCode"});
    args.ExpectAtMost(2);
    const long long dsType = args.IntOr(0, 0);
    const std::string item = platform::Trim(args.TextOr(1, ""));
    return {Answer(Holds(context, "Fn_Get_DSTypeWiseSKU",
                         {platform::Value(dsType), platform::Value(static_cast<long long>(1))}, item))};
}

// (item): the sales unit first, as the screen keeps it apart; then the ladder from
// the base unit (rate 1) up. A level the item lacks, or a unit not in the UOM table,
// gives no row; an unknown item gives none at all.
std::vector<platform::ResultSet> ItemUnits(ProcedureContext& context, const platform::ParameterList& parameters) {
    const ProcedureArguments args("sp_get_item_uom", parameters, {"@ItemCode"});
    args.ExpectAtMost(1);
    return {context.Query(R"SQL(
WITH Ladder(Product_Code, Level, UOM, Rate) AS (
    SELECT Product_Code, 1, BaseUOM, 1.0 FROM Items
    UNION ALL SELECT Product_Code, 2, UOM1, UOM1_Conversion FROM Items WHERE UOM1 IS NOT NULL
    UNION ALL SELECT Product_Code, 3, UOM2, UOM2_Conversion FROM Items WHERE UOM2 IS NOT NULL)
SELECT UOM, UOMDescription, Rate FROM (
    SELECT 0 AS Part, 0 AS Level, l.UOM, u.Description AS UOMDescription, l.Rate
    FROM Items i
    JOIN Ladder l ON l.Product_Code = i.Product_Code AND l.UOM = i.UOM
    JOIN UOM u ON u.UOM = l.UOM
    WHERE i.Product_Code = ?1
    UNION ALL
    SELECT 1, l.Level, l.UOM, u.Description, l.Rate
    FROM Ladder l JOIN UOM u ON u.UOM = l.UOM
    WHERE l.Product_Code = ?1)
ORDER BY Part, Level)SQL",
                          {platform::Value(platform::Trim(args.TextOr(0, "")))})};
}

}  // namespace server::items
