#include "session/session_runner.h"

#include <fmt/format.h>

#include "platform/runtime_error.h"
#include "session/script_error.h"
#include "session/script_parser.h"
#include "session/session.h"
#include "session/verbs.h"

namespace session {

VerbTable AllVerbs() {
    VerbTable verbs;
    AddSetupVerbs(verbs);
    AddScreenVerbs(verbs);
    AddUserVerbs(verbs);
    AddGridVerbs(verbs);
    AddShowVerb(verbs);
    AddExpectVerb(verbs);
    return verbs;
}

SessionRunner::SessionRunner(std::ostream& out, std::ostream& err, SessionOptions options)
    : out_(out), err_(err), options_(std::move(options)) {}

int SessionRunner::Run(std::string_view scriptText) {
    auto reportScriptError = [&](const ScriptError& e) {
        out_.flush();
        err_ << fmt::format("line {}: {}\n", e.Line(), e.what());
        return ExitScriptWrong;
    };

    std::vector<ScriptCommand> commands;
    try {
        commands = ParseScript(scriptText);
    } catch (const ScriptError& e) {
        return reportScriptError(e);
    }

    const VerbTable verbs = AllVerbs();
    Session session(out_, options_);
    for (const auto& command : commands) {
        session.transcript.Line("> " + command.source);
        try {
            auto verb = verbs.find(command.Verb());
            if (verb == verbs.end()) throw ScriptError(command.line, fmt::format("unknown verb {}", command.Verb()));
            verb->second(session, command);
        } catch (const ScriptError& e) {
            return reportScriptError(e);
        } catch (const ActionRefused& e) {
            session.Fail(command, e.what());
        } catch (const platform::RuntimeError& e) {
            // The screen's handlers catch their own errors; one that got out is a fault.
            session.Fail(command,
                         fmt::format("run-time error {} not handled by the screen: {}", e.Number(), e.Description()));
        } catch (const std::exception& e) {
            session.Fail(command, fmt::format("unexpected error: {}", e.what()));
        }
    }
    out_.flush();
    if (session.FailureCount() == 0) return ExitPassed;
    err_ << fmt::format("{} check{} failed\n", session.FailureCount(), session.FailureCount() == 1 ? "" : "s");
    return ExitExpectFailed;
}

}  // namespace session
