// F12 on the screen: the host's dialog of free items of other category groups, given
// the standing ones, the customer, the row's serial and the note's group.
#include "grid/row_model/grid_columns.h"
#include "platform/convert.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

using namespace grid;

// A step of Form_KeyDown, run under its handler; nRow and nCol are the grid's current cell
// as the key found it.
void Zuro_frmDispatch_Dispatch::ShowOCGFreeItemsDialog(int nRow, int nCol) {
    auto& global = host_.global;
    auto& grid = DTFlexDispatch;
    if (!global.GetOCGEnabled()) return;

    // A quantity still being typed lands in its cell before the rows are taken.
    if (nCol == colQuantity) {
        const std::string szTyped = grid.Editing() ? grid.EditText() : grid.GetCell(nRow, nCol);
        if (platform::IsNumericText(szTyped)) grid.SetCell(nRow, colQuantity, szTyped);
    }
    szCurrentGroupID = GetGroupID();
    const platform::VariantTable vItems = ClubOCGFreeItems();
    const std::string szName = global.LookupName("Customer", "CustomerID", "Company_Name", GetCustomerForScheme());

    int nLines = grid.GridRows();
    if (nLines > 0 && grid.IsBlankRow(nLines)) --nLines;
    const bool bModeNeedsCustomer =
        nMode == mode::NewDispatch || nMode == mode::FromPurchaseOrder || nMode == mode::FromAlert;
    if (szName.empty() && (bModeNeedsCustomer || nLines == 0)) return;

    host_.tools.ShowDocumentInfoDialog(*this, vItems, szName, grid.GetCell(nRow, colSerialNo), szCurrentGroupID);

    if (nMode == mode::View)
        cmdClose(1).SetFocus();
    else if (nMode == mode::Cancel)
        cmdSave.SetFocus();
    else
        grid.SetFocus();
}

}  // namespace screen
