// A Mode 2 note keyed as a clerk keys it, over a connection that can fail any call,
// with snapshots of every table and of the grid to show that a failed save changed
// nothing.
#pragma once

#include <memory>
#include <string>

#include "platform/fault_connection.h"
#include "screen_fixture.h"

namespace screen_test {

class SaveTest : public ScreenTest {
protected:
    SaveTest();

    // Ravi Stores (C005), whose salesman and beat fill themselves, and two lines:
    // FD001, 2 boxes (of 24) from its first batch, MB2401; FD002, 10 boxes (of 12)
    // from the batch two steps down its stock list, CB101.
    screen::Zuro_frmDispatch_Dispatch& KeyNoteForRavi();
    // One line: the item code typed and entered, the list walked down, the quantity.
    void KeyLine(int row, const std::string& itemCode, const std::string& quantity, int batchEntry = 1);

    // Every row of every table, in key order.
    std::string Tables();
    // Every cell of the grid.
    std::string GridCells();

    std::shared_ptr<platform::FaultInjectingConnection> faults;
};

}  // namespace screen_test
