// `show`: the driver prints what the user would see, into the transcript.
#include <fmt/format.h>

#include "session/control_reading.h"
#include "session/grid_text.h"
#include "session/script_error.h"
#include "session/script_words.h"
#include "session/session.h"
#include "session/verbs.h"

namespace session {
namespace {

constexpr const char* kUsage = "status, focus, rows, list, field NAME, grid [COL...] or a control";

void ShowStatus(Session& session) {
    const auto* status = session.transcript.LastStatus();
    session.Show(status ? fmt::format("status {} {}", status->flag, Quote(status->text)) : "status none");
}

void ShowFocus(Session& session, const ScriptCommand& command) {
    auto* active = session.Form(command).ActiveControl();
    session.Show("focus " + (active ? active->FullName() : std::string("none")));
}

void ShowField(Session& session, const ScriptCommand& command) {
    RequireArguments(command, 2, 2, "field NAME");
    const std::string& name = command.Argument(2);
    auto text = session.Form(command).FieldText(name);
    if (!text) throw ScriptError(command.line, fmt::format("the screen has no field {}", name));
    session.Show(fmt::format("field {} {}", name, Quote(*text)));
}

void ShowGrid(Session& session, const ScriptCommand& command) {
    auto& grid = session.Grid(command);
    std::vector<int> columns;
    for (std::size_t n = 2; n <= command.ArgumentCount(); ++n) {
        long col = IntegerWord(command, n, "a column");
        if (col < 0 || col > grid.GridCols())
            throw ActionRefused(fmt::format("the grid has columns 0 to {}", grid.GridCols()));
        columns.push_back(static_cast<int>(col));
    }
    if (columns.empty()) columns = {1, 2, 3, 4, 5, 6};  // the columns the user sees
    for (const auto& line : GridLines(grid, columns)) session.Show(line);
}

void ShowList(Session& session, const ScriptCommand& command) {
    session.Form(command);
    auto* list = session.Host(command).VisibleList();
    session.Show(list ? "list " + Quote(Join(list->RowTexts(), "|")) : "list none");
}

void Show(Session& session, const ScriptCommand& command) {
    if (command.ArgumentCount() < 1) throw ScriptError(command.line, fmt::format("show takes {}", kUsage));
    const std::string& what = command.Argument(1);
    bool single = command.ArgumentCount() == 1;
    if (what == "status" && single) {
        ShowStatus(session);
    } else if (what == "focus" && single) {
        ShowFocus(session, command);
    } else if (what == "rows" && single) {
        session.Show(fmt::format("rows {}", session.Grid(command).GridRows()));
    } else if (what == "list" && single) {
        ShowList(session, command);
    } else if (what == "field") {
        ShowField(session, command);
    } else if (what == "grid") {
        ShowGrid(session, command);
    } else if (single) {
        for (const auto& line : DescribeControl(session.ControlArgument(command, 1))) session.Show(line);
    } else {
        throw ScriptError(command.line, fmt::format("show takes {}", kUsage));
    }
}

}  // namespace

void AddShowVerb(VerbTable& verbs) { verbs["show"] = Show; }

}  // namespace session
