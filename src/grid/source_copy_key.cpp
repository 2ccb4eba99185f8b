// Mode 2's copy key: a confirmation chosen by its reference fills the grid with its
// items, without quantities, and the note takes today's date.
#include "platform/convert.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

namespace {
constexpr int kSalesConfirmationDocument = 3;
}

void Zuro_frmDispatch_Dispatch::CopyCallBack() {
    Handled("CopyCallBack", [&] {
        auto& global = host_.global;
        szCopySONumber = host_.tools.SelectDocument(kSalesConfirmationDocument);
        szCopySONumber = global.ToText(global.LookupFieldByKey("SOAbstract", "SONumber", szCopySONumber));
        // The word is the screen's own, though a confirmation was asked for.
        if (szCopySONumber.empty()) {
            global.ShowStatus("Invalid PONumber", 1);
            return;
        }
        LoadItemDetails();
        szCopySONumber.clear();
        DTDispatchDate.Value = global.GetCurrentDate(0);
    });
}

}  // namespace screen
