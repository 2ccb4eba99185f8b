// The value of the note's lines, for the credit gates of a save.
#include "grid/item_entry_cells.h"
#include "grid/row_model/grid_columns.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

void Zuro_frmDispatch_Dispatch::ComputeDispatchValue(long nLastRow, double& dValue) {
    Handled("ComputeDispatchValue", [&] {
        double dTotal = 0;
        // A quantity expression counts with its leading figure only; so it always has.
        for (int row = 1; row <= nLastRow; ++row)
            dTotal += grid::CellValue(DTFlexDispatch, row, grid::colQuantity) *
                      grid::CellValue(DTFlexDispatch, row, grid::colSalePrice);
        dValue = dTotal;
    });
}

}  // namespace screen
