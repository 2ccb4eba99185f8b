// Item (SKU) schemes: which of an item's schemes the note's total of it reaches, and
// the slab each reached.
#include "platform/convert.h"
#include "server/procedure_arguments.h"
#include "server/procedure_context.h"
#include "server/procedures/schemes_procedures.h"
#include "server/procedures/schemes_rules.h"

namespace server::schemes {

// (item, dispatch date, total quantity in base units, customer, total amount,
// creation date): one row a scheme of the item that stands for the customer on the
// day and whose slab the total reaches, measured in the slab's unit. The item key
// handed on to the slab procedure is the item's code as the scheme holds it.
std::vector<platform::ResultSet> FindDispatchSKUSchemes(ProcedureContext& context,
                                                        const platform::ParameterList& parameters) {
    const ProcedureArguments args(
        "Zuro_sp_FindDispatch_SKUSchemeID_New", parameters,
        {"@ItemCode", "@DispatchDate", "@Quantity", "@CustomerID", "@Amount", "@CreationDate"});
    args.ExpectAtMost(6);
    const platform::Value item = platform::Trim(args.TextOr(0, ""));
    const platform::Value day = args.DateTime(1);
    const platform::Value quantity = args.Float(2);
    const platform::Value customer = CustomerCode(args, 3);
    const platform::Value amount = args.Float(4, 0.0);
    const platform::Value madeBy = CreationDayLimit(args, 5);
    // Of several slabs reached, the one that starts highest gives.
    return {context.Query(R"SQL(
WITH Measured AS (
    SELECT s.SchemeID, p.Product_Code AS ItemKey, s.SchemeName, s.SchemeType, s.HasSlabs,
           sl.SlabID, sl.SlabStart, sl.SlabEnd,
           CASE sl.SlabUnit WHEN 1 THEN ?3
                            WHEN 2 THEN ?3 / IFNULL(i.UOM1_Conversion, 1)
                            WHEN 3 THEN ?3 / IFNULL(i.UOM2_Conversion, 1)
                            ELSE ?5 END AS Figure
    FROM SchemeProducts p
    JOIN Schemes s ON s.SchemeID = p.SchemeID
    JOIN Items i ON i.Product_Code = p.Product_Code
    JOIN SchemeSlabs sl ON sl.SchemeID = s.SchemeID
    WHERE p.Product_Code = ?1 AND s.SchemeScope = 1 AND s.SchemeType IN (1, 2, 3)
      AND )SQL" + SchemeStandsFor("?2", "?4", "?6") +
                              R"SQL(),
Reached AS (
    SELECT *, ROW_NUMBER() OVER (PARTITION BY SchemeID ORDER BY SlabStart DESC, SlabID) AS Choice
    FROM Measured WHERE )SQL" +
                              FigureReachesSlab("Figure") + R"SQL()
SELECT SchemeID, ItemKey, SchemeName, SchemeType, SlabID FROM Reached WHERE Choice = 1 ORDER BY SchemeID)SQL",
                          {item, day, quantity, customer, amount, madeBy})};
}

// (scheme, item key, scheme type, slab, item): the slab record of a scheme of that
// type defined on the item; slab 0 gives every slab of the scheme, lowest first.
// Position 0 is the scheme, position 4 the slab's own free item (load-time schemes).
std::vector<platform::ResultSet> SKUSchemeSlabDetail(ProcedureContext& context,
                                                     const platform::ParameterList& parameters) {
    const ProcedureArguments args("sp_get_SKUBased_SchItemsDetail", parameters,
                                  {"@SchemeID", "@ItemKey", "@SchemeType", "@SlabID", "@ItemCode"});
    args.ExpectAtMost(5);
    return {context.Query(R"SQL(
SELECT sl.SchemeID, sl.SlabStart, sl.SlabEnd, sl.FreeQty, sl.FreeItem, sl.SlabUnit, sl.FreeUnit, sl.Onward, sl.SlabID
FROM SchemeSlabs sl
JOIN Schemes s ON s.SchemeID = sl.SchemeID
JOIN SchemeProducts p ON p.SchemeID = s.SchemeID AND p.Product_Code = ?2 AND p.Product_Code = ?5
WHERE sl.SchemeID = ?1 AND s.SchemeScope = 1 AND s.SchemeType = ?3 AND (?4 = 0 OR sl.SlabID = ?4)
ORDER BY sl.SlabStart, sl.SlabID)SQL",
                          {args.Int(0), platform::Trim(args.TextOr(1, "")), args.Int(2), args.Int(3),
                           platform::Trim(args.TextOr(4, ""))})};
}

}  // namespace server::schemes
