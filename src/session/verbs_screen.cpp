// The host's side of a screen: opening it through the component's entry points,
// closing it as the user does, and calling its routines by name.
#include <fmt/format.h>

#include "platform/convert.h"
#include "screen/routine_table.h"
#include "session/script_error.h"
#include "session/script_words.h"
#include "session/session.h"
#include "session/today.h"
#include "session/verbs.h"

namespace session {
namespace {

void RefuseWhileOpen(Session& session) {
    if (session.ScreenIsOpen()) throw ActionRefused("a screen is open already; close it first");
}

// An entry point that fails part-way leaves no screen to drive.
template <class EntryPoint>
void OpenWith(Session& session, EntryPoint&& entryPoint) {
    screen::ScreenForm* form = nullptr;
    try {
        form = entryPoint();
    } catch (...) {
        session.ScreenOpened(nullptr);
        throw;
    }
    session.ScreenOpened(form);
}

void OpenDispatch(Session& session, const ScriptCommand& command) {
    RequireArguments(command, 2, 4, "dispatch MODE [SERVERDATE [ALERTDATE]]");
    long mode = IntegerWord(command, 2, "the mode");
    platform::Date serverDate = command.ArgumentCount() >= 3 ? DateWord(command, 3) : Today();
    platform::Date alertDate = command.ArgumentCount() >= 4 ? DateWord(command, 4) : serverDate;
    RefuseWhileOpen(session);
    auto& host = session.Host(command);
    host.SetServerDate(serverDate);
    OpenWith(session, [&] { return session.Opener().OpenDispatch(host, serverDate, mode, alertDate); });
}

void OpenCForm(Session& session, const ScriptCommand& command) {
    RequireArguments(command, 1, 2, "cform [SERVERDATE]");
    platform::Date serverDate = command.ArgumentCount() >= 2 ? DateWord(command, 2) : Today();
    RefuseWhileOpen(session);
    auto& host = session.Host(command);
    host.SetServerDate(serverDate);
    OpenWith(session, [&] { return session.Opener().OpenCForm(host, serverDate); });
}

void Open(Session& session, const ScriptCommand& command) {
    if (command.ArgumentCount() >= 1 && command.Argument(1) == "dispatch") {
        OpenDispatch(session, command);
    } else if (command.ArgumentCount() >= 1 && command.Argument(1) == "cform") {
        OpenCForm(session, command);
    } else {
        throw ScriptError(command.line, "open takes dispatch MODE [SERVERDATE [ALERTDATE]] or cform [SERVERDATE]");
    }
    if (!session.ScreenIsOpen()) session.Show("no screen opened");
}

void Close(Session& session, const ScriptCommand& command) {
    RequireArguments(command, 0, 0, "no arguments");
    bool cancelled = session.Form(command).Close();
    session.Show(cancelled ? "close cancelled: the screen stays open" : "screen closed");
}

void Call(Session& session, const ScriptCommand& command) {
    if (command.ArgumentCount() < 1) throw ScriptError(command.line, "call takes a routine's name and its arguments");
    const std::string& name = command.Argument(1);
    const auto* routine = session.Form(command).Routines().Find(name);
    if (routine == nullptr) throw ScriptError(command.line, fmt::format("the screen has no routine {}", name));

    session.lastCall.reset();
    screen::RoutineCall call;
    call.arguments.assign(command.words.begin() + 2, command.words.end());
    try {
        (*routine)(call);
    } catch (const screen::RoutineRefused& e) {
        // The words did not fit the routine, which did not run: the script is wrong.
        throw ScriptError(command.line, fmt::format("{}: {}", name, e.what()));
    }
    if (call.result) session.transcript.Line("result " + platform::ToText(*call.result));
    for (const auto& [outName, value] : call.outs)
        session.transcript.Line(fmt::format("out {} {}", outName, platform::ToText(value)));
    session.lastCall = std::move(call);
}

// A host holding the form object writes one of its public fields, as a host does
// before it calls the save's routines by name.
void Field(Session& session, const ScriptCommand& command) {
    RequireArguments(command, 2, 2, "NAME \"TEXT\"");
    const std::string& name = command.Argument(1);
    if (!session.Form(command).SetFieldText(name, command.Argument(2)))
        throw ActionRefused(fmt::format("the screen has no field {} that a host may write", name));
}

}  // namespace

void AddScreenVerbs(VerbTable& verbs) {
    verbs["open"] = Open;
    verbs["close"] = Close;
    verbs["call"] = Call;
    verbs["field"] = Field;
}

}  // namespace session
