// Whether a slab's free goods can be had at all: 1 when any free item of the slab
// has stock on hand, 0 when none has. The note then picks among those items itself.
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
    // their own FreeItem column.
    return {context.Query(R"SQL(
SELECT CASE WHEN EXISTS (
    SELECT 1 FROM SchemeSlabs s
    JOIN (SELECT SlabID, Free_Item_Code AS Item FROM SchemeFreeItems
          UNION SELECT SlabID, FreeItem FROM SchemeSlabs WHERE FreeItem IS NOT NULL) f ON f.SlabID = s.SlabID
    JOIN Batch_Products b ON b.Product_Code = f.Item AND b.Quantity > 0
    WHERE s.SchemeID = ? AND s.SlabID = ?) THEN 1 ELSE 0 END AS FreeSKUCount)SQL",
                          {args.Int(0), args.Int(1)})};
}

}  // namespace server::schemes
