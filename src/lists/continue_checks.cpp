// Two checks the Continue step makes on the ticked document: that the category groups
// it names are still switched on, and which items of a purchase order the item master
// does not know.
#include "platform/convert.h"
#include "screen/procedure_results.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

// nType is 1 for a sales confirmation, 2 for a dispatch.
void Zuro_frmDispatch_Dispatch::ValidateDispatch(int nType, bool& bValid) {
    Handled("ValidateDispatch", [&] {
        auto& global = host_.global;
        using platform::adtype::Integer;
        bValid = true;
        auto result = global.NextRecordset(global.RunProcedure(
            "Sp_CheckForGroupID",
            {{static_cast<long>(nType), Integer}, {global.ToNumber(platform::Value(szDocNumbers)), Integer}}));
        if (!HasRecordset(result) || result->Eof()) return;
        bValid = global.ToNumber(result->Fields(0)) != 0;
        result->Close();
    });
}

void Zuro_frmDispatch_Dispatch::ShowNotFound(const std::string& szPONumbers) {
    Handled("ShowNotFound", [&] {
        auto& tools = host_.tools;
        auto result = host_.global.GetConnection().Execute(
            "SELECT Distinct(PODetailReceived.Product_Code)"
            "From PODetailReceived WHERE PONumber IN (" +
            szPONumbers +
            ") AND PODetailReceived.Product_Code not in "
            "(select Alias from items)");
        tools.SetNotFoundRecords(result);
        if (HasRecordset(result) && !result->Eof()) {
            // The dialog's heading is message 1, read straight from the messages' table.
            auto& global = host_.global;
            tools.ShowNotFoundDialog(global.ToText(global.LookupValue(
                global.GetConnection(), "Select Message From ErrorMessages Where ErrorID = " + std::to_string(1))));
        }
        if (result) result->Close();
    });
}

}  // namespace screen
