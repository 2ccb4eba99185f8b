// The unit list lstUOM, attached to the grid's unit column: its entries are the
// item's units (entry 0 the multi-unit entry), and a choice sets the row's unit.
#include "grid/row_model/grid_columns.h"
#include "platform/convert.h"
#include "platform/key_codes.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

namespace keys = platform::keys;

void Zuro_frmDispatch_Dispatch::lstUOM_Click() {
    Handled("lstUOM_Click", [&] {
        ApplyUOMChange(false);
        // A move of the index by the program (CycleUOM) only takes the rate.
        if (!host_.global.GetListGuard()) DTFlexDispatch.ChooseFromList(lstUOM.List(lstUOM.ListIndex()), false);
    });
}

void Zuro_frmDispatch_Dispatch::lstUOM_DblClick() {
    Handled("lstUOM_DblClick", [&] {
        ApplyUOMChange(true);
        lstUOM.Visible = false;
        DTFlexDispatch.SetGridCol(grid::colQuantity);
    });
}

void Zuro_frmDispatch_Dispatch::lstUOM_KeyDown(int& KeyCode, int Shift) {
    Handled("lstUOM_KeyDown", [&] {
        if ((KeyCode != keys::Enter && KeyCode != keys::Escape) || Shift != keys::NoShift) return;
        lstUOM.Visible = false;
        ApplyUOMChange(true);
        // The cursor is on the quantity before the list's choice is put in the
        // current cell, so outside the guard the quantity cell receives it.
        DTFlexDispatch.SetGridCol(grid::colQuantity);
        if (!host_.global.GetListGuard()) DTFlexDispatch.ChooseFromList(lstUOM.List(lstUOM.ListIndex()), false);
    });
}

void Zuro_frmDispatch_Dispatch::lstUOM_LostFocus() {
    Handled("lstUOM_LostFocus", [&] {
        lstUOM.Visible = false;
        DTFlexDispatch.SetGridCol(grid::colQuantity);
    });
}

// A free row of another category group keeps the unit it came with.
void Zuro_frmDispatch_Dispatch::lstUOM_GotFocus() {
    Handled("lstUOM_GotFocus", [&] {
        const int row = DTFlexDispatch.GridRow();
        if (platform::ToNumber(platform::Value(DTFlexDispatch.GetCell(row, grid::colOCGItem))) == 0) return;
        lstUOM.Visible = false;
        host_.global.SetFocusTo(DTFlexDispatch);
    });
}

}  // namespace screen
