// Sets up the dispatch grid's 43 columns, once per opening of the entry page.
#include "grid/row_model/grid_columns.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

using namespace grid;

void Zuro_frmDispatch_Dispatch::InitDTFlexDispatch() {
    Handled("InitDTFlexDispatch", [&] {
        auto& global = host_.global;
        auto& messages = host_.messages;
        DTFlexDispatch.SetGridCols(kGridColumnCount);

        for (const ColumnDefinition& definition : ColumnTable()) {
            if (definition.heading)
                DTFlexDispatch.SetColHeading(definition.column, messages.GetLabel(std::string(*definition.heading)));
            DTFlexDispatch.SetColWidth(definition.column, definition.width);
            if (definition.align == ColumnAlign::Left)
                DTFlexDispatch.SetColAlignment(definition.column, global.GetAlignLeft());
            if (definition.align == ColumnAlign::Right)
                DTFlexDispatch.SetColAlignment(definition.column, global.GetAlignRight());
        }

        DTFlexDispatch.SetColFormat(colStoredQty, global.GetNumberFormat(0));
        DTFlexDispatch.SetColFormat(colQuantity, global.GetNumberFormat(-1));
        DTFlexDispatch.SetColFormat(colSalePrice, global.GetNumberFormat(0));
        DTFlexDispatch.SetColFormat(colAvailableQty, global.GetNumberFormat(0));
        DTFlexDispatch.SetColFormat(colOriginalPrice, global.GetNumberFormat(0));

        // The quantity column first took the centre code; the later write of 4 lets
        // it take free text such as "2*0*5".
        DTFlexDispatch.SetColInputClass(colQuantity, global.GetAlignCentre());
        DTFlexDispatch.SetColInputClass(colQuantity, 4);

        // Batch, unit and price come from lists and the price logic, never from typing.
        DTFlexDispatch.SetColLocked(colBatch, true);
        DTFlexDispatch.SetColLocked(colUOM, true);
        DTFlexDispatch.SetColLocked(colSalePrice, true);

        DTFlexDispatch.AttachColumnList(colUOM, lstUOM);
        DTFlexDispatch.SetColListAuto(colUOM, false);

        DTFlexDispatch.VisibleCols = 6;
        // Enter in an item cell goes straight to the quantity.
        DTFlexDispatch.SetColNext(colItemCode, colQuantity);
        DTFlexDispatch.SetColNext(colItemName, colQuantity);
        DTFlexDispatch.GridSettingA = 11;
        DTFlexDispatch.GridSettingB = 5;

        switch (nMode) {
            case mode::FromSalesConfirmation:
            case mode::FromPurchaseOrder:
            case mode::FromAlert:
                DTFlexDispatch.SetColLocked(colItemCode, true);
                DTFlexDispatch.SetColLocked(colItemName, true);
                DTFlexDispatch.EditStyle = global.GetGridEditColumnValue();
                DTFlexDispatch.LastEntryCol = 5;
                DTFlexDispatch.AllowAddRows = false;
                DTFlexDispatch.AllowDeleteRows = true;
                break;
            case mode::NewDispatch:
                DTFlexDispatch.SetColLocked(colItemCode, false);
                DTFlexDispatch.SetColLocked(colItemName, false);
                DTFlexDispatch.EditStyle = global.GetGridEditColumnValue();
                DTFlexDispatch.LastEntryCol = 5;
                DTFlexDispatch.AllowAddRows = true;
                DTFlexDispatch.AllowDeleteRows = true;
                break;
            case mode::Amendment:
                DTFlexDispatch.SetColLocked(colItemCode, false);
                DTFlexDispatch.SetColLocked(colItemName, false);
                DTFlexDispatch.EditStyle = global.GetGridEditColumnValue();
                DTFlexDispatch.LastEntryCol = 2;
                DTFlexDispatch.AllowAddRows = true;
                DTFlexDispatch.AllowDeleteRows = true;
                break;
            case mode::View:
                DTFlexDispatch.AllowAddRows = false;
                DTFlexDispatch.AllowDeleteRows = false;
                break;
            default:
                // The cancel page is read-only: the grid keeps the control's defaults.
                break;
        }
    });
}

}  // namespace screen
