// Where the scheme procedures put what the scheme routines read: the kind of scheme
// that gives free goods, an item's scheme list and its slab record.
#pragma once

namespace schemes {

// The scheme type of a scheme that gives free items.
inline constexpr long kFreeItemScheme = 3;

// Zuro_sp_FindDispatch_SKUSchemeID_New: one row a scheme the item's figures reach.
enum SchemeListField { kSchemeID = 0, kItemKey = 1, kSchemeName = 2, kSchemeType = 3, kSlabID = 4 };

// sp_get_SKUBased_SchItemsDetail: the slab of an item scheme.
enum ItemSlabField { kSlabStart = 1, kSlabEnd = 2, kFreeQty = 3, kSlabUnit = 5, kFreeUnit = 6, kOnward = 7 };

}  // namespace schemes
