#include "session/session_runner.h"

#include <fmt/format.h>

#include <cctype>

#include "platform/runtime_error.h"
#include "session/script_error.h"
#include "session/script_parser.h"
#include "session/session.h"
#include "session/verbs.h"

namespace session {
namespace {

bool SameWord(std::string a, std::string b) {
    auto lower = [](std::string& s) {
        for (char& c : s) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    };
    lower(a), lower(b);
    return a == b;
}

// A password the script gives, for the host or for a dialog, is not written back
// into the transcript.
std::string ShownCommand(const ScriptCommand& command) {
    const auto& words = command.words;
    if (words.size() < 3) return command.source;
    bool secret =
        (words[0] == "setting" && SameWord(words[1], "AdministratorPassword")) ||
        (words[0] == "answer" && (words[1] == "InputPassword" || words[1] == "InputBoxE") && words[2] != "cancel");
    return secret ? words[0] + " " + words[1] + " (given)" : command.source;
}

}  // namespace

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
        session.transcript.Line("> " + ShownCommand(command));
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
