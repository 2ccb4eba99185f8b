#include "save_fixture.h"

#include "platform/convert.h"
#include "session/key_press.h"

namespace screen_test {

SaveTest::SaveTest() : faults(std::make_shared<platform::FaultInjectingConnection>(database)) { UseConnection(faults); }

screen::Zuro_frmDispatch_Dispatch& SaveTest::KeyNoteForRavi() {
    auto& f = Open(2);
    Type(f.txtCustomer, "Ravi");
    Pick(1);
    Key(f.txtCustomer, 13);
    KeyLine(1, "FD001", "2", 1);
    KeyLine(2, "FD002", "10", 2);
    // What the save's validation finds for the typed name.
    f.szEnteredCustomerCode = "C005";
    return f;
}

// The row first takes the entry the batch list stands on; coming back to its
// quantity puts the list on the first saleable entry, and the key that ends the
// quantity takes it (Enter) or the one below it (Down).
void SaveTest::KeyLine(int row, const std::string& itemCode, const std::string& quantity, int batchEntry) {
    auto& grid = form->DTFlexDispatch;
    form->MoveFocus(grid);
    grid.UserGoto(row, 1);
    grid.UserType(itemCode);
    session::PressGridKey(*form, grid, 13, 0);
    grid.UserGoto(row, 5);
    grid.UserGoto(row, 6);
    grid.UserType(quantity);
    session::PressGridKey(*form, grid, batchEntry == 1 ? 13 : 40, 0);
}

std::string SaveTest::Tables() {
    std::string text;
    auto tables = database->ExecuteNative("SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY name");
    for (const auto& table : tables.rows) {
        const std::string name = platform::ToText(table[0]);
        text += "[" + name + "]\n";
        for (const auto& row : database->ExecuteNative("SELECT * FROM \"" + name + "\" ORDER BY rowid").rows) {
            for (const auto& value : row) text += platform::ToText(value) + "|";
            text += "\n";
        }
    }
    return text;
}

std::string SaveTest::GridCells() {
    auto& grid = form->DTFlexDispatch;
    std::string text;
    for (int r = 1; r <= grid.GridRows(); ++r) {
        for (int c = 1; c <= grid.GridCols(); ++c) text += grid.GetCell(r, c) + "|";
        text += "\n";
    }
    return text;
}

}  // namespace screen_test
