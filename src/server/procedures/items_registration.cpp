#include "server/procedure_registry.h"
#include "server/procedures/items_procedures.h"

namespace server {

void RegisterItemProcedures(ProcedureRegistry& registry) {
    registry.RegisterTableFunction("Fn_Get_Items_QAX", &items::ItemsOfGroups);
    registry.RegisterTableFunction("Fn_Get_Items_QAX_AllCat", &items::ItemsOfAllGroups);
    registry.RegisterTableFunction("Fn_Get_DispatchItems_QAX", &items::DispatchItemsOfGroups);
    registry.RegisterTableFunction("Fn_Get_DispatchItems_QAX_AllCat", &items::DispatchItemsOfAllGroups);
    registry.RegisterTableFunction("Fn_Get_DSTypeWiseSKU", &items::ItemsOfDSType);
    registry.RegisterTableFunction("Fn_Get_DSTypeWiseSKU_Amend", &items::DispatchItemsOfDSType);

    registry.RegisterProcedure("sp_CheckItemExists_QAX", &items::CheckItemInGroups);
    registry.RegisterProcedure("sp_CheckItemExists_DSType", &items::CheckItemInDSType);
    registry.RegisterProcedure("sp_get_item_uom", &items::ItemUnits);
}

}  // namespace server
