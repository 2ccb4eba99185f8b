// A new note with one line of an item set up as the grid holds it once the item and
// its unit are in, for the tests of item entry, pricing and the stock list.
#pragma once

#include <string>

#include "grid/row_model/grid_columns.h"
#include "platform/convert.h"
#include "screen_fixture.h"

namespace screen_test {

class ItemEntryTest : public ScreenTest {
protected:
    // Opens the screen (Mode 2 unless told) with the grid's cell updates wired.
    screen::Zuro_frmDispatch_Dispatch& OpenNote(long mode = 2) {
        Open(mode);
        form->WireItemEntryAndBatches();
        form->nCustomerCategory = 2;
        return *form;
    }

    // Row 1 holds the item in a unit of the given rate, with its flags from the master.
    void ItemLine(const std::string& code, const std::string& uomID, double rate) {
        auto& grid = form->DTFlexDispatch;
        if (grid.GridRows() < 1) grid.SetGridRows(1);
        grid.SetCell(1, grid::colItemCode, code);
        grid.SetCell(1, grid::colItemName, Scalar("SELECT ProductName FROM Items WHERE Product_Code = '" + code + "'"));
        grid.SetCell(1, grid::colUOMID, uomID);
        form->dUOMRate = rate;
        form->GetItemPrice(code, 1);
        form->dUOMRate = rate;  // the unit stays as the line was given it
        form->nPriceOption = static_cast<long>(platform::Val(Cell(grid::colPriceOption)));
    }

    // The user's quantity in row 1, and the end of its edit as the grid raises it.
    bool Quantity(const std::string& text) {
        form->DTFlexDispatch.SetCell(1, grid::colQuantity, text);
        bool cancel = false;
        form->DTFlexDispatch_AfterColUpdate(1, grid::colQuantity, cancel);
        return cancel;
    }

    std::string Cell(int col, int row = 1) const { return form->DTFlexDispatch.GetCell(row, col); }
    // Cells of row 1 joined with "|", to check a row's several columns at once.
    std::string Cells(std::initializer_list<int> cols) const {
        std::string text;
        for (const int& col : cols) text += (&col == cols.begin() ? "" : "|") + Cell(col);
        return text;
    }
    void SetCell(int col, const std::string& text, int row = 1) { form->DTFlexDispatch.SetCell(row, col, text); }

    // The stock list's entries: text, then sub-items 2, 3 and 5 (price, quantity, free).
    std::string ListEntries() const {
        std::string entries;
        for (int i = 1; i <= form->lstAvailable.Count(); ++i) {
            const auto& entry = form->lstAvailable.Item(i);
            if (!entries.empty()) entries += ";";
            entries += entry.Text + "|" + entry.SubItem(2) + "|" + entry.SubItem(3) + "|" + entry.SubItem(5);
        }
        return entries;
    }
};

}  // namespace screen_test
