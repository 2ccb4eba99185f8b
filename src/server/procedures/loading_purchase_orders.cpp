// The items of received purchase orders and the load-time schemes they meet. An
// order speaks the customer's item codes; by the time these run the screen holds
// our own code.
#include "platform/convert.h"
#include "server/procedure_arguments.h"
#include "server/procedure_context.h"
#include "server/procedures/loading_procedures.h"
#include "server/procedures/schemes_rules.h"

namespace server::loading {

// (item): the item's name, code, batch tracking, sales unit, price option,
// inventory tracking and its three prices (customer categories 1, 2, 3).
Answers ReceivedPOItem(ProcedureContext& context, const platform::ParameterList& parameters) {
    const ProcedureArguments args("sp_get_receivedpoitems", parameters, {"@ItemCode"});
    args.ExpectAtMost(1);
    return {context.Query(R"SQL(
SELECT i.ProductName, i.Product_Code, i.Track_Batches, i.UOM, c.Price_Option, c.Track_Inventory,
       i.PTS, i.PTR, i.Company_Price
FROM Items i JOIN ItemCategories c ON c.CategoryID = i.CategoryID
WHERE i.Product_Code = ?)SQL",
                          {platform::Trim(args.TextOr(0, ""))})};
}

// (item, day, quantity in base units, scheme type, scheme type, customer): when
// schemes of the two types on the item stand for the customer on the day and the
// quantity reaches one of their slabs, two results: whether there are several
// (1) or one (0), then the schemes with their prompts. No result at all when none.
// The slab's start and end are the subquery's; whether slabs repeat is the scheme's.
Answers FindLoadTimeSchemes(ProcedureContext& context, const platform::ParameterList& parameters) {
    const ProcedureArguments args(
        "sp_get_schemeIDDispatch_MUOM", parameters,
        {"@ItemCode", "@ServerDate", "@Quantity", "@SchemeType1", "@SchemeType2", "@CustomerID"});
    args.ExpectAtMost(6);
    const platform::Value item = platform::Trim(args.TextOr(0, ""));
    const platform::Value day = args.DateTime(1);
    const platform::Value quantity = args.Float(2);
    const platform::Value firstType = args.Int(3);
    const platform::Value secondType = args.Int(4);
    const platform::Value customer = schemes::CustomerCode(args, 5);
    platform::ResultSet found = context.Query(R"SQL(
SELECT s.SchemeID, s.SchemeName, s.SchemeType, s.ShowPrompt, IFNULL(s.PromptMessage, '') AS PromptMessage
FROM SchemeProducts p
JOIN Schemes s ON s.SchemeID = p.SchemeID
WHERE p.Product_Code = ?1 AND s.SchemeScope = 1 AND s.SchemeType IN (?4, ?5)
  AND )SQL" + schemes::SchemeStandsFor("?2", "?6", "NULL") +
                                                  R"SQL(
  AND EXISTS (SELECT 1 FROM SchemeSlabs sl WHERE sl.SchemeID = s.SchemeID AND )SQL" +
                                                  schemes::FigureReachesSlab("?3") +
                                                  R"SQL()
ORDER BY s.SchemeID)SQL",
                                              {item, day, quantity, firstType, secondType, customer});
    if (found.rows.empty()) return {};
    platform::ResultSet several;
    several.columns = {"MultipleSchemes"};
    several.rows.push_back({platform::Value(static_cast<long long>(found.rows.size() > 1 ? 1 : 0))});
    return {several, found};
}

// (scheme, item): the slabs of a load-time scheme defined on the item, lowest
// first: slab, start, end, free quantity, the free item of a type 18 slab, scheme.
Answers LoadTimeSchemeSlabs(ProcedureContext& context, const platform::ParameterList& parameters) {
    const ProcedureArguments args("sp_get_SchemeItemsDetail_MUOM", parameters, {"@SchemeID", "@ItemCode"});
    args.ExpectAtMost(2);
    return {context.Query(R"SQL(
SELECT sl.SlabID, sl.SlabStart, sl.SlabEnd, sl.FreeQty, sl.FreeItem, sl.SchemeID
FROM SchemeSlabs sl
JOIN Schemes s ON s.SchemeID = sl.SchemeID AND s.SchemeType IN (17, 18)
JOIN SchemeProducts p ON p.SchemeID = s.SchemeID AND p.Product_Code = ?2
WHERE sl.SchemeID = ?1
ORDER BY sl.SlabStart, sl.SlabID)SQL",
                          {args.Int(0), platform::Trim(args.TextOr(1, ""))})};
}

}  // namespace server::loading
