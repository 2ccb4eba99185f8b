// A new note for Ravi Stores with the demo schemes switched off, so that each test
// sees only the small schemes it writes, and lines written straight into the grid.
#pragma once

#include <string>
#include <vector>

#include "grid/row_model/grid_columns.h"
#include "platform/convert.h"
#include "screen_fixture.h"

namespace screen_test {

class SchemeNote : public ScreenTest {
protected:
    void SetUp() override {
        Open(screen::mode::NewDispatch);
        Scalar("UPDATE Schemes SET Active = 0");
        form->txtCustomer.Tag = "C005";
        form->szCustomerCode = "C005";
    }

    // A free-goods scheme (scope 1 an item's, 2 a special category's) on items with
    // their minimums, one slab in base units.
    void AddScheme(int id, int scope, const std::vector<std::pair<std::string, double>>& items, double start,
                   double onward, double freeQty, const std::string& freeItem) {
        const std::string slab = std::to_string(id * 10 + 1);
        Scalar("INSERT INTO Schemes (SchemeID, SchemeName, SchemeType, SchemeScope) VALUES (" + std::to_string(id) +
               ", 'Scheme " + std::to_string(id) + "', 3, " + std::to_string(scope) + ")");
        for (const auto& [item, minimum] : items)
            Scalar("INSERT INTO SchemeProducts VALUES (" + std::to_string(id) + ", '" + item + "', " +
                   platform::NumberToText(minimum) + ")");
        Scalar(
            "INSERT INTO SchemeSlabs (SlabID, SchemeID, SlabStart, SlabEnd, SlabUnit, Onward, FreeQty, FreeUnit) "
            "VALUES (" +
            slab + ", " + std::to_string(id) + ", " + platform::NumberToText(start) + ", 100000, 1, " +
            platform::NumberToText(onward) + ", " + platform::NumberToText(freeQty) + ", 1)");
        Scalar("INSERT INTO SchemeFreeItems VALUES (" + slab + ", '" + freeItem + "')");
    }

    // A line of an item sold in its base unit, in the blank last row; a new blank row
    // stands after it.
    int Line(const std::string& item, double quantity, double price = 10) {
        auto& grid = form->DTFlexDispatch;
        if (!grid.IsBlankRow(grid.GridRows())) grid.SetGridRows(grid.GridRows() + 1);
        const int row = grid.GridRows();
        for (const auto& [col, text] :
             {std::pair{grid::colItemCode, item}, std::pair{grid::colQuantity, platform::NumberToText(quantity)},
              std::pair{grid::colUOMID, std::string("1")}, std::pair{grid::colSalePrice, platform::NumberToText(price)},
              std::pair{grid::colFreeItem, std::string("0")}, std::pair{grid::colFreeRow, std::string("0")}})
            grid.SetCell(row, col, text);
        long serialRow = row;
        std::int16_t resetAll = 0, toSet = 0;
        form->Add_Unique_Serial(serialRow, resetAll, toSet);
        grid.SetGridRows(row + 1);
        return row;
    }

    void SetQuantity(int row, double quantity) {
        form->DTFlexDispatch.SetCell(row, grid::colQuantity, platform::NumberToText(quantity));
    }
    std::string Cell(int row, int col) { return form->DTFlexDispatch.GetCell(row, col); }
    // Several cells of a row joined with "|", to check them at once.
    std::string Row(int row, std::initializer_list<int> cols) {
        std::string text;
        for (const int& col : cols) text += (&col == cols.begin() ? "" : "|") + Cell(row, col);
        return text;
    }
    void Click() { form->cmdApplyScheme.Click.Raise(); }
    void Choose(const std::string& item, int times = 1) {
        for (int i = 0; i < times; ++i) answers.Queue("SelectFreeItem", {item});
    }
    // The free item dialogs so far, of one scheme or of all.
    int FreeItemDialogs(const std::string& scheme = "") const {
        int count = 0;
        for (const auto& line : transcript.Lines()) count += line.rfind("SelectFreeItem " + scheme, 0) == 0;
        return count;
    }
    // The grid's rows, one text a row, for comparing a grid before and after.
    std::vector<std::string> Rows() {
        std::vector<std::string> rows;
        auto& grid = form->DTFlexDispatch;
        for (int r = 1; r <= grid.GridRows(); ++r) {
            std::string row;
            for (int c = 1; c <= grid.GridCols(); ++c) row += grid.GetCell(r, c) + "|";
            rows.push_back(row);
        }
        return rows;
    }
    // The rows holding a free item, by code.
    std::vector<int> FreeRowsOf(const std::string& item) {
        std::vector<int> rows;
        for (int r = 1; r <= form->DTFlexDispatch.GridRows(); ++r)
            if (Cell(r, grid::colFreeItem) == "1" && Cell(r, grid::colItemCode) == item) rows.push_back(r);
        return rows;
    }
    // Every serial a link cell names stands on some row.
    void ExpectLinksHold() {
        for (int r = 1; r <= form->DTFlexDispatch.GridRows(); ++r)
            for (int col : {grid::colItemCheck, grid::colSplCatSerial})
                for (const auto& serial : platform::Split(Cell(r, col), ",")) {
                    if (!(platform::Val(serial) > 0)) continue;
                    EXPECT_NE(form->getRowNumber(static_cast<long>(platform::Val(serial))), 0)
                        << "row " << r << " column " << col << " names serial " << serial;
                }
    }
};

}  // namespace screen_test
