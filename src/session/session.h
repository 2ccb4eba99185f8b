// The state of a running session that every verb works on: the host and its
// settings, answers and transcript, the database, the open screen, and the way a
// line fails.
#pragma once

#include <memory>
#include <optional>
#include <ostream>
#include <string>

#include "host/dialog_answers.h"
#include "host/plain_host.h"
#include "host/settings.h"
#include "host/transcript.h"
#include "platform/fault_connection.h"
#include "platform/grid.h"
#include "platform/private_folder.h"
#include "screen/routine_table.h"
#include "screen/screen_form.h"
#include "session/screen_opener.h"
#include "session/script_parser.h"
#include "session/session_database.h"
#include "session/session_options.h"
#include "session/sql_trace.h"

namespace session {

class Session {
public:
    Session(std::ostream& out, SessionOptions options);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    host::Settings settings;
    host::DialogAnswers answers;
    host::Transcript transcript;
    // Statements shown in the transcript: on for the whole run with --trace-sql.
    SqlTrace sqlTrace;
    // The last `call`, for `expect result`.
    std::optional<screen::RoutineCall> lastCall;

    const SessionOptions& Options() const { return options_; }
    SessionDatabase& Database() { return database_; }
    // The host, made on first use over the session's database.
    host::PlainHost& Host(const ScriptCommand& command);
    // The faults a script may plant between the screen and its database.
    platform::FaultInjectingConnection& Faults(const ScriptCommand& command);
    ScreenOpener& Opener();

    // A screen has opened (or the entry point opened none: nullptr).
    void ScreenOpened(screen::ScreenForm* form);
    // The screen the commands work on: a ScriptError before any `open`, refused
    // once it has been closed.
    screen::ScreenForm& Form(const ScriptCommand& command);
    bool ScreenIsOpen() const { return form_ != nullptr && form_->IsLoaded(); }
    // The open screen, or nullptr; for a host that draws it.
    screen::ScreenForm* OpenScreen() const { return ScreenIsOpen() ? form_ : nullptr; }
    // The host once a line has made it, or nullptr.
    host::PlainHost* MadeHost() const { return host_.get(); }

    // The control named by argument n; a ScriptError when the screen has none.
    platform::Control& ControlArgument(const ScriptCommand& command, std::size_t n);
    platform::DTFlex& Grid(const ScriptCommand& command);
    // Focus moves to the control as the user moves it there; refused when the
    // control cannot take it (nor any input). No events when it has focus already.
    void GiveFocus(const ScriptCommand& command, platform::Control& control);

    // A line of the driver's own answers: `= ...`.
    void Show(const std::string& line);
    // The line did not hold: `FAIL line N: COMMAND: DETAIL`; the script goes on.
    void Fail(const ScriptCommand& command, const std::string& detail);
    int FailureCount() const { return failures_; }

private:
    std::ostream& out_;
    SessionOptions options_;
    platform::PrivateFolder folder_{"dispatch-session"};
    SessionDatabase database_;
    // Declared after the database and before the screens: the host outlives every
    // form that holds its services.
    std::shared_ptr<platform::FaultInjectingConnection> faults_;
    std::unique_ptr<host::PlainHost> host_;
    std::unique_ptr<ScreenOpener> opener_;
    screen::ScreenForm* form_ = nullptr;
    bool everOpened_ = false;
    int failures_ = 0;
};

}  // namespace session
