// Giving up a row whose item cell was emptied.
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

void Zuro_frmDispatch_Dispatch::ClearItemDetails(long nRow) {
    Handled("ClearItemDetails", [&] {
        DTFlexDispatch.RemoveRow(static_cast<int>(nRow));
        // The grid is asked whether an entry row stands there now; the answer is not needed.
        (void)DTFlexDispatch.IsBlankRow(static_cast<int>(nRow));
    });
}

}  // namespace screen
