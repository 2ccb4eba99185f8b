// `expect`: a check of what the screen shows or did. A check that does not hold is
// a FAIL line, and the script goes on.
#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <map>

#include "platform/convert.h"
#include "session/control_reading.h"
#include "session/script_error.h"
#include "session/script_words.h"
#include "session/session.h"
#include "session/sql_rows.h"
#include "session/verbs.h"

namespace session {
namespace {

using ExpectHandler = void (*)(Session&, const ScriptCommand&);

void Check(Session& session, const ScriptCommand& command, bool held, const std::string& detail) {
    if (!held) session.Fail(command, detail);
}

void CheckText(Session& session, const ScriptCommand& command, const std::string& found) {
    Check(session, command, found == command.Argument(command.ArgumentCount()), "was " + Quote(found));
}

void CheckNumber(Session& session, const ScriptCommand& command, long found) {
    long wanted = IntegerWord(command, command.ArgumentCount(), "the number");
    Check(session, command, found == wanted, fmt::format("was {}", found));
}

// How many of the lines traced since `trace sql on` contain the text.
void Traced(Session& session, const ScriptCommand& command) {
    RequireArguments(command, 3, 3, "traced \"TEXT\" N");
    const auto& lines = session.sqlTrace.lines;
    const auto found = std::count_if(lines.begin(), lines.end(), [&](const std::string& line) {
        return line.find(command.Argument(2)) != std::string::npos;
    });
    CheckNumber(session, command, static_cast<long>(found));
}

// The text, and with a number after it the kind the screen gave it too: 1 a refusal
// or warning, 0 a note of progress.
void Status(Session& session, const ScriptCommand& command) {
    RequireArguments(command, 2, 3, "status \"TEXT\" [KIND]");
    const auto* status = session.transcript.LastStatus();
    if (!status) return Check(session, command, false, "no status line was shown");
    if (command.ArgumentCount() == 2) return CheckText(session, command, status->text);
    const long kind = IntegerWord(command, 3, "the kind");
    Check(session, command, status->text == command.Argument(2) && status->flag == kind,
          fmt::format("was {} of kind {}", Quote(status->text), status->flag));
}

void Message(Session& session, const ScriptCommand& command) {
    RequireArguments(command, 2, 2, "message \"TEXT\"");
    auto shown = session.transcript.TakeMessages();
    bool held = std::find(shown.begin(), shown.end(), command.Argument(2)) != shown.end();
    std::vector<std::string> quoted;
    for (const auto& text : shown) quoted.push_back(Quote(text));
    Check(session, command, held, shown.empty() ? "no message was shown" : "shown: " + Join(quoted, ", "));
}

void Numbered(Session& session, const ScriptCommand& command) {
    RequireArguments(command, 2, 2, "numbered N");
    long wanted = IntegerWord(command, 2, "the message number");
    auto shown = session.transcript.TakeNumbered();
    bool held = std::find(shown.begin(), shown.end(), wanted) != shown.end();
    Check(session, command, held,
          shown.empty() ? "no numbered message was shown" : fmt::format("shown: {}", fmt::join(shown, ", ")));
}

// A document printed since the last such check, named without the file it went
// to: "Dispatch 10 (dialog, flag 0)" for "Dispatch 10 -> FILE (dialog, flag 0)", and
// "Dispatch 2" for a note printed straight to "Dispatch 2 -> FILE".
void Printed(Session& session, const ScriptCommand& command) {
    RequireArguments(command, 2, 2, "printed \"TEXT\"");
    std::vector<std::string> shown;
    for (std::string detail : session.transcript.TakePrints()) {
        const auto arrow = detail.find(" -> ");
        const auto route = detail.rfind(" (");
        if (arrow != std::string::npos && route != std::string::npos && route > arrow)
            detail.erase(arrow, route - arrow);
        else if (arrow != std::string::npos)
            detail.erase(arrow);
        shown.push_back(detail);
    }
    const bool held = std::find(shown.begin(), shown.end(), command.Argument(2)) != shown.end();
    std::vector<std::string> quoted;
    for (const auto& text : shown) quoted.push_back(Quote(text));
    Check(session, command, held, shown.empty() ? "nothing was printed" : "printed: " + Join(quoted, ", "));
}

void Focus(Session& session, const ScriptCommand& command) {
    RequireArguments(command, 2, 2, "focus CONTROL");
    auto& control = session.ControlArgument(command, 2);
    auto* active = session.Form(command).ActiveControl();
    Check(session, command, active == &control,
          active ? "focus was on " + active->FullName() : std::string("no control had focus"));
}

void Text(Session& session, const ScriptCommand& command) {
    RequireArguments(command, 3, 3, "text CONTROL \"TEXT\"");
    auto& control = session.ControlArgument(command, 2);
    auto text = ControlText(control);
    if (!text) throw ScriptError(command.line, fmt::format("{} has no text", control.FullName()));
    CheckText(session, command, *text);
}

void Tag(Session& session, const ScriptCommand& command) {
    RequireArguments(command, 3, 3, "tag CONTROL \"TEXT\"");
    CheckText(session, command, session.ControlArgument(command, 2).Tag);
}

void Caption(Session& session, const ScriptCommand& command) {
    RequireArguments(command, 3, 3, "caption CONTROL \"TEXT\"");
    auto& control = session.ControlArgument(command, 2);
    auto caption = ControlCaption(control);
    if (!caption) throw ScriptError(command.line, fmt::format("{} has no caption", control.FullName()));
    CheckText(session, command, *caption);
}

void Visible(Session& session, const ScriptCommand& command) {
    RequireArguments(command, 3, 3, "visible CONTROL true|false");
    auto& control = session.ControlArgument(command, 2);
    bool wanted = BooleanWord(command, 3);
    Check(session, command, control.Visible == wanted, fmt::format("was {}", control.Visible));
}

void Enabled(Session& session, const ScriptCommand& command) {
    RequireArguments(command, 3, 3, "enabled CONTROL true|false");
    auto& control = session.ControlArgument(command, 2);
    bool wanted = BooleanWord(command, 3);
    Check(session, command, control.Enabled == wanted, fmt::format("was {}", control.Enabled));
}

void Field(Session& session, const ScriptCommand& command) {
    RequireArguments(command, 3, 3, "field NAME \"TEXT\"");
    auto text = session.Form(command).FieldText(command.Argument(2));
    if (!text) throw ScriptError(command.line, fmt::format("the screen has no field {}", command.Argument(2)));
    CheckText(session, command, *text);
}

void List(Session& session, const ScriptCommand& command) {
    RequireArguments(command, 2, 2, "list \"TEXT|TEXT|...\"");
    session.Form(command);
    auto* list = session.Host(command).VisibleList();
    CheckText(session, command, list ? Join(list->RowTexts(), "|") : std::string());
}

void Items(Session& session, const ScriptCommand& command) {
    RequireArguments(command, 3, 3, "items CONTROL \"TEXT|TEXT|...\"");
    auto& control = session.ControlArgument(command, 2);
    auto entries = ControlEntries(control);
    if (!entries) throw ScriptError(command.line, fmt::format("{} is not a list", control.FullName()));
    CheckText(session, command, Join(*entries, "|"));
}

void Checked(Session& session, const ScriptCommand& command) {
    RequireArguments(command, 3, 3, "checked CONTROL \"N,N,...\"");
    auto& control = session.ControlArgument(command, 2);
    auto rows = CheckedRows(control);
    if (!rows) throw ScriptError(command.line, fmt::format("{} has no check boxes", control.FullName()));
    CheckText(session, command, fmt::format("{}", fmt::join(*rows, ",")));
}

void Cell(Session& session, const ScriptCommand& command) {
    RequireArguments(command, 4, 4, "cell ROW COL \"TEXT\"");
    auto& grid = session.Grid(command);
    long row = IntegerWord(command, 2, "the row");
    long col = IntegerWord(command, 3, "the column");
    if (row < 0 || row > grid.GridRows())
        return Check(session, command, false, fmt::format("the grid has rows 0 to {}", grid.GridRows()));
    if (col < 0 || col > grid.GridCols())
        return Check(session, command, false, fmt::format("the grid has columns 0 to {}", grid.GridCols()));
    CheckText(session, command, grid.GetCell(static_cast<int>(row), static_cast<int>(col)));
}

void Current(Session& session, const ScriptCommand& command) {
    RequireArguments(command, 3, 3, "current ROW COL");
    auto& grid = session.Grid(command);
    long row = IntegerWord(command, 2, "the row");
    long col = IntegerWord(command, 3, "the column");
    Check(session, command, grid.GridRow() == row && grid.GridCol() == col,
          fmt::format("was {} {}", grid.GridRow(), grid.GridCol()));
}

void Selected(Session& session, const ScriptCommand& command) {
    RequireArguments(command, 3, 3, "selected CONTROL N");
    auto& control = session.ControlArgument(command, 2);
    auto* list = dynamic_cast<platform::ListView*>(&control);
    if (!list) throw ScriptError(command.line, fmt::format("{} is not a list view", control.FullName()));
    CheckNumber(session, command, list->SelectedIndex());
}

void Rows(Session& session, const ScriptCommand& command) {
    RequireArguments(command, 2, 2, "rows N");
    CheckNumber(session, command, session.Grid(command).GridRows());
}

void Sql(Session& session, const ScriptCommand& command) {
    RequireArguments(command, 3, 3, "sql \"QUERY\" \"VALUE\"");
    platform::ResultSet result;
    try {
        result = session.Database().ExecuteNative(command.Argument(2));
    } catch (const std::exception& e) {
        throw ScriptError(command.line, fmt::format("the query failed: {}", e.what()));
    }
    CheckText(session, command, RowsText(result));
}

void Result(Session& session, const ScriptCommand& command) {
    RequireArguments(command, 2, 2, "result \"TEXT\"");
    if (!session.lastCall) return Check(session, command, false, "no routine call has run to its end");
    const auto& result = session.lastCall->result;
    CheckText(session, command, result ? platform::ToText(*result) : std::string());
}

void Errors(Session& session, const ScriptCommand& command) {
    RequireArguments(command, 2, 2, "errors N");
    CheckNumber(session, command, session.transcript.ErrorCount());
}

const std::map<std::string, ExpectHandler>& Checks() {
    static const std::map<std::string, ExpectHandler> checks{
        {"status", Status},   {"message", Message}, {"numbered", Numbered}, {"focus", Focus},
        {"text", Text},       {"tag", Tag},         {"caption", Caption},   {"visible", Visible},
        {"enabled", Enabled}, {"field", Field},     {"list", List},         {"items", Items},
        {"checked", Checked}, {"cell", Cell},       {"rows", Rows},         {"sql", Sql},
        {"result", Result},   {"errors", Errors},   {"current", Current},   {"selected", Selected},
        {"printed", Printed}, {"traced", Traced},
    };
    return checks;
}

void Expect(Session& session, const ScriptCommand& command) {
    const auto& checks = Checks();
    auto it = command.ArgumentCount() >= 1 ? checks.find(command.Argument(1)) : checks.end();
    if (it == checks.end()) {
        std::vector<std::string> names;
        for (const auto& [name, handler] : checks) names.push_back(name);
        throw ScriptError(command.line, fmt::format("expect takes one of: {}", fmt::join(names, ", ")));
    }
    it->second(session, command);
}

}  // namespace

void AddExpectVerb(VerbTable& verbs) { verbs["expect"] = Expect; }

}  // namespace session
