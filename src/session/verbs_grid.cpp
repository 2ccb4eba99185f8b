// The user in the grid: moving the current cell, typing, keys, deleting rows, and
// `cell`, the three steps of filling one cell.
#include <fmt/format.h>

#include "platform/key_codes.h"
#include "session/key_press.h"
#include "session/script_error.h"
#include "session/script_words.h"
#include "session/session.h"
#include "session/verbs.h"

namespace session {
namespace {

int GridRowWord(const ScriptCommand& command, std::size_t n, const platform::DTFlex& grid) {
    long row = IntegerWord(command, n, "the row");
    if (row < 1 || row > grid.GridRows())
        throw ActionRefused(grid.GridRows() == 0 ? "the grid has no rows"
                                                 : fmt::format("the grid has rows 1 to {}", grid.GridRows()));
    return static_cast<int>(row);
}

int GridColWord(const ScriptCommand& command, std::size_t n, const platform::DTFlex& grid) {
    long col = IntegerWord(command, n, "the column");
    if (col < 1 || col > grid.GridCols())
        throw ActionRefused(fmt::format("the grid has columns 1 to {}", grid.GridCols()));
    return static_cast<int>(col);
}

platform::DTFlex& FocusedGrid(Session& session, const ScriptCommand& command) {
    auto& grid = session.Grid(command);
    session.GiveFocus(command, grid);
    return grid;
}

void GridGoto(Session& session, const ScriptCommand& command, std::size_t rowWord) {
    auto& grid = session.Grid(command);
    int row = GridRowWord(command, rowWord, grid);
    int col = GridColWord(command, rowWord + 1, grid);
    FocusedGrid(session, command).UserGoto(row, col);
}

void GridKey(Session& session, const ScriptCommand& command, std::size_t codeWord) {
    int keyCode = static_cast<int>(IntegerWord(command, codeWord, "the key code"));
    int shift = command.ArgumentCount() > codeWord
                    ? static_cast<int>(IntegerWord(command, codeWord + 1, "the shift state"))
                    : 0;
    auto& grid = FocusedGrid(session, command);
    PressGridKey(session.Form(command), grid, keyCode, shift);
}

void Grid(Session& session, const ScriptCommand& command) {
    const char* usage = "goto ROW COL, type \"TEXT\", key KEYCODE [SHIFT] or delete ROW";
    if (command.ArgumentCount() < 1) throw ScriptError(command.line, fmt::format("grid takes {}", usage));
    const std::string& action = command.Argument(1);
    std::size_t count = command.ArgumentCount();
    if (action == "goto" && count == 3) {
        GridGoto(session, command, 2);
    } else if (action == "type" && count == 2) {
        FocusedGrid(session, command).UserType(command.Argument(2));
    } else if (action == "key" && (count == 2 || count == 3)) {
        GridKey(session, command, 2);
    } else if (action == "delete" && count == 2) {
        auto& grid = session.Grid(command);
        int row = GridRowWord(command, 2, grid);
        FocusedGrid(session, command).UserDeleteRow(row);
    } else {
        throw ScriptError(command.line, fmt::format("grid takes {}", usage));
    }
}

void Cell(Session& session, const ScriptCommand& command) {
    RequireArguments(command, 3, 3, "a row, a column and the text in quotes");
    // The same three steps as the verbs, each with the grid given focus as the user
    // would if a handler had taken it elsewhere.
    GridGoto(session, command, 1);
    FocusedGrid(session, command).UserType(command.Argument(3));
    PressGridKey(session.Form(command), FocusedGrid(session, command), platform::keys::Enter, platform::keys::NoShift);
}

}  // namespace

void AddGridVerbs(VerbTable& verbs) {
    verbs["grid"] = Grid;
    verbs["cell"] = Cell;
}

}  // namespace session
