// When a cell edit of the first six columns ends: the item typed, its unit, its
// quantity, then the tail that every such edit runs.
#include "grid/item_entry_steps.h"
#include "grid/row_model/grid_columns.h"

namespace screen {

void Zuro_frmDispatch_Dispatch::DTFlexDispatch_AfterColUpdate(int nRow, int nCol, bool& bCancel) {
    Handled("DTFlexDispatch_AfterColUpdate", [&] {
        grid::ItemEntryEdit edit(*this, host_, nRow, bCancel);
        switch (nCol) {
            case grid::colItemCode:
            case grid::colItemName:
                // Items are keyed only on a new note and in an amendment.
                if ((nMode == mode::NewDispatch || nMode == mode::Amendment) && !edit.ItemEntered(nCol)) return;
                break;
            case grid::colUOM: edit.UnitChosen(); break;
            case grid::colQuantity:
                if (!edit.QuantityEntered()) return;
                break;
            default: break;
        }
        edit.CommonTail(nCol);
    });
}

}  // namespace screen
