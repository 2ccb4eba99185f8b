// Setting a session up: its database, rows written straight into it, the host's
// settings and the user's answers to dialogs to come.
#include <fmt/format.h>
#include <fmt/ranges.h>

#include <stdexcept>

#include "session/script_error.h"
#include "session/script_words.h"
#include "session/session.h"
#include "session/sql_rows.h"
#include "session/verbs.h"

namespace session {
namespace {

void Database(Session& session, const ScriptCommand& command) {
    RequireArguments(command, 1, 1, "demo, empty or a database file");
    try {
        session.Database().Choose(command.Argument(1));
    } catch (const std::invalid_argument& e) {
        throw ScriptError(command.line, e.what());
    }
}

void Sql(Session& session, const ScriptCommand& command) {
    RequireArguments(command, 1, 1, "one statement in quotes");
    platform::ResultSet result;
    try {
        result = session.Database().ExecuteNative(command.Argument(1));
    } catch (const std::exception& e) {
        // A set-up that did not happen leaves the rest of the script meaningless.
        throw ScriptError(command.line, fmt::format("the statement failed: {}", e.what()));
    }
    const auto& rows = result;
    if (rows.columns.empty()) {
        if (rows.rowsAffected >= 0) session.Show(fmt::format("{} rows changed", rows.rowsAffected));
        return;
    }
    session.Show("[" + fmt::format("{}", fmt::join(rows.columns, "|")) + "]");
    for (const auto& row : RowTexts(rows)) session.Show(row);
}

void Setting(Session& session, const ScriptCommand& command) {
    RequireArguments(command, 2, 2, "a setting's name and its value");
    const std::string& name = command.Argument(1);
    const std::string& value = command.Argument(2);
    if (auto problem = host::Settings::Problem(name, value); !problem.empty()) throw ScriptError(command.line, problem);
    session.settings.Set(name, value);
}

void Answer(Session& session, const ScriptCommand& command) {
    if (command.ArgumentCount() < 1) throw ScriptError(command.line, "answer takes a dialog and its answer");
    const std::string& dialog = command.Argument(1);
    std::vector<std::string> values(command.words.begin() + 2, command.words.end());
    if (auto problem = host::DialogAnswers::Problem(dialog, values); !problem.empty())
        throw ScriptError(command.line, problem);
    session.answers.Queue(dialog, std::move(values));
}

// A server fault planted for the rest of the script: every call of a statement
// containing the text, or of a procedure of that name, fails; or a procedure's
// answer comes back without a row, or with no recordset at all.
void Fault(Session& session, const ScriptCommand& command) {
    RequireArguments(command, 2, 2, "fail \"TEXT\", no-rows PROCEDURE or no-result PROCEDURE");
    const std::string& kind = command.Argument(1);
    const std::string& target = command.Argument(2);
    if (target.empty()) throw ScriptError(command.line, "fault needs a statement text or a procedure name");
    if (kind == "fail")
        session.Faults(command).FailMatching(target);
    else if (kind == "no-rows")
        session.Faults(command).AnswerWithoutRows(target);
    else if (kind == "no-result")
        session.Faults(command).AnswerWithNothing(target);
    else
        throw ScriptError(command.line, "fault takes fail, no-rows or no-result");
}

// Tracing a stretch of the script: `trace sql on` shows every statement and
// procedure call from here on and starts afresh the lines `expect traced` counts.
void Trace(Session& session, const ScriptCommand& command) {
    RequireArguments(command, 2, 2, "sql on|off");
    const std::string& state = command.Argument(2);
    if (command.Argument(1) != "sql" || (state != "on" && state != "off"))
        throw ScriptError(command.line, "trace takes sql on or sql off");
    if (state == "on")
        session.sqlTrace.TurnOn();
    else
        session.sqlTrace.on = false;
}

}  // namespace

void AddSetupVerbs(VerbTable& verbs) {
    verbs["trace"] = Trace;
    verbs["fault"] = Fault;
    verbs["database"] = Database;
    verbs["sql"] = Sql;
    verbs["setting"] = Setting;
    verbs["answer"] = Answer;
}

}  // namespace session
