// A grid set up as the entry page sets it up for a new note: item code and name
// open for typing, batch, unit and price locked, the unit list on column 4, Enter
// from the item cells straight to the quantity, rows added by the user. Every
// event the grid raises is written down in order.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "controls_test_support.h"
#include "platform/grid.h"

namespace grid_test {

using controls_test::ErrorNumberOf;
using controls_test::SingleFocus;

class NewNoteGrid : public ::testing::Test {
protected:
    static constexpr int kCols = 43;
    SingleFocus scope;
    platform::Frame page{scope, "Frame3"};
    platform::ListBox lstUOM{scope, "lstUOM"};
    platform::DTFlex grid{scope, "DTFlexDispatch"};
    std::vector<std::string> events;
    // What the AfterColUpdate handler refuses; empty refuses nothing.
    std::string refusedText;

    void SetUp() override {
        grid.Container = &page;
        lstUOM.Container = &page;
        lstUOM.Visible = false;
        grid.SetGridCols(kCols);
        for (int col : {3, 4, 5}) grid.SetColLocked(col, true);
        grid.AttachColumnList(4, lstUOM);
        grid.SetColListAuto(4, false);
        grid.VisibleCols = 6;
        grid.SetColNext(1, 6);
        grid.SetColNext(2, 6);
        grid.LastEntryCol = 5;
        grid.AllowAddRows = true;
        grid.AllowDeleteRows = true;
        grid.SetGridRows(1);

        const auto at = [](int row, int col) { return " " + std::to_string(row) + " " + std::to_string(col); };
        grid.AfterColUpdate.Connect([this, at](int row, int col, bool& cancel) {
            events.push_back("AfterColUpdate" + at(row, col));
            if (!refusedText.empty() && grid.GetCell(row, col) == refusedText) cancel = true;
        });
        grid.RowColChange.Connect([this, at](int row, int col) { events.push_back("RowColChange" + at(row, col)); });
        grid.Change.Connect([this](int col) { events.push_back("Change " + std::to_string(col)); });
        for (auto [event, name] : {std::pair{&grid.AtLastRow, "AtLastRow"}, std::pair{&grid.AtFirstRow, "AtFirstRow"},
                                   std::pair{&grid.AfterDelete, "AfterDelete"}})
            event->Connect([this, name] { events.push_back(name); });
    }

    // The user types into a cell and presses Enter, as a session's "cell" does.
    void EnterCell(int row, int col, const std::string& text) {
        grid.UserGoto(row, col);
        grid.UserType(text);
        grid.UserKey(13);
    }

    std::vector<std::string> TakeEvents() { return std::exchange(events, {}); }
};

}  // namespace grid_test
