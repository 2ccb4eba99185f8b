// Whether a slab's free goods can be had at all: 1 when any free item of the slab
// is still in the item master and has live stock (or keeps no stock), 0 when none
// has. The note then picks among those items itself.
#include "server/procedure_arguments.h"
#include "server/procedure_context.h"
#include "server/procedures/schemes_procedures.h"

namespace server::schemes {

// (scheme, slab): one row, one field.
std::vector<platform::ResultSet> ListFreeSKUCount(ProcedureContext& context,
                                                  const platform::ParameterList& parameters) {
    const ProcedureArguments args("Zuro_SP_ListFreeSKUCount", parameters, {"@SchemeID", "@SlabID"});
    args.ExpectAtMost(2);
    // A slab names its free items in SchemeFreeItems; the oldest slabs name one in
    // their own FreeItem column. An item switched off in the master is no longer
    // given, whatever stock it has left.
    return {context.Query(R"SQL(
SELECT CASE WHEN EXISTS (
    SELECT 1 FROM SchemeSlabs s
    JOIN (SELECT SlabID, Free_Item_Code AS Item FROM SchemeFreeItems
          UNION SELECT SlabID, FreeItem FROM SchemeSlabs WHERE FreeItem IS NOT NULL) f ON f.SlabID = s.SlabID
    JOIN Items i ON i.Product_Code = f.Item AND i.Active = 1
    JOIN ItemCategories c ON c.CategoryID = i.CategoryID
    WHERE s.SchemeID = ? AND s.SlabID = ?
      AND (c.Track_Inventory = 0 OR EXISTS (
          SELECT 1 FROM Batch_Products b
          WHERE b.Product_Code = i.Product_Code AND b.Quantity > 0
            AND (b.Expiry IS NULL OR b.Expiry >= date('now', 'localtime'))))) THEN 1 ELSE 0 END AS FreeSKUCount)SQL",
                          {args.Int(0), args.Int(1)})};
}

}  // namespace server::schemes
