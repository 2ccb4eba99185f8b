#include "session/session.h"

#include <fmt/format.h>

#include "session/script_error.h"
#include "session/script_words.h"
#include "session/sql_trace.h"

namespace session {
namespace {

std::string WhyNoFocus(const platform::Control& control) {
    using platform::ControlKind;
    if (control.Kind() == ControlKind::Label || control.Kind() == ControlKind::Frame)
        return fmt::format("{} cannot take focus", control.FullName());
    if (!control.Visible) return fmt::format("{} is hidden", control.FullName());
    if (!control.Enabled) return fmt::format("{} is disabled", control.FullName());
    for (const platform::Control* frame = control.Container; frame != nullptr; frame = frame->Container) {
        if (!frame->Visible)
            return fmt::format("{} lies in {}, which is hidden", control.FullName(), frame->FullName());
        if (!frame->Enabled)
            return fmt::format("{} lies in {}, which is disabled", control.FullName(), frame->FullName());
    }
    return fmt::format("{} cannot take focus", control.FullName());
}

}  // namespace

Session::Session(std::ostream& out, SessionOptions options)
    : out_(out), options_(std::move(options)), database_(folder_, options_.databaseFile) {
    transcript.onLine = [this](const std::string& line) { out_ << line << '\n'; };
    sqlTrace.on = options_.traceSql;
}

// The screens go before the host whose services they hold.
Session::~Session() {
    opener_.reset();
    host_.reset();
}

host::PlainHost& Session::Host(const ScriptCommand& command) {
    if (host_) return *host_;
    platform::ConnectionPtr connection;
    std::string printFolder;
    try {
        connection = database_.Connection();
        printFolder = options_.printFolder ? *options_.printFolder : folder_.Path().string();
    } catch (const std::exception& e) {
        throw ScriptError(command.line, e.what());
    }
    faults_ = std::make_shared<platform::FaultInjectingConnection>(connection);
    connection = faults_;
    connection = TraceStatements(connection, transcript, sqlTrace);
    host_ = std::make_unique<host::PlainHost>(connection, settings, transcript, answers);
    host_->SetOutputFolder(printFolder);
    try {
        host_->InstallPrintTemplates((folder_.Path() / "templates").string());
    } catch (const std::exception& e) {
        throw ScriptError(command.line, e.what());
    }
    return *host_;
}

platform::FaultInjectingConnection& Session::Faults(const ScriptCommand& command) {
    Host(command);
    return *faults_;
}

ScreenOpener& Session::Opener() {
    if (!opener_) opener_ = options_.makeOpener ? options_.makeOpener() : MakeDispatchOpener();
    return *opener_;
}

void Session::ScreenOpened(screen::ScreenForm* form) {
    everOpened_ = true;
    form_ = form;
    if (form_ == nullptr) return;
    form_->FocusMoved.Connect([this](platform::Control& control) { transcript.Focus(control.FullName()); });
    // The form took its first focus inside the entry point, before anyone could
    // listen; the transcript shows where it stands.
    if (auto* active = form_->ActiveControl()) transcript.Focus(active->FullName());
}

screen::ScreenForm& Session::Form(const ScriptCommand& command) {
    if (!everOpened_) throw ScriptError(command.line, "no screen is open: `open` one first");
    if (form_ == nullptr) throw ActionRefused("the screen did not open");
    if (!form_->IsLoaded()) throw ActionRefused("the screen has been closed");
    return *form_;
}

platform::Control& Session::ControlArgument(const ScriptCommand& command, std::size_t n) {
    ControlName name = ControlWord(command, n);
    auto& form = Form(command);
    platform::Control* control = form.FindControl(name.name, name.index);
    if (control == nullptr)
        throw ScriptError(command.line, fmt::format("the screen has no control {}", name.FullName()));
    return *control;
}

platform::DTFlex& Session::Grid(const ScriptCommand& command) {
    platform::DTFlex* grid = Form(command).Grid();
    if (grid == nullptr) throw ScriptError(command.line, "the screen has no grid");
    return *grid;
}

void Session::GiveFocus(const ScriptCommand& command, platform::Control& control) {
    auto& form = Form(command);
    // Checked even when the control has focus: one disabled since takes no input.
    if (!control.CanTakeFocus()) throw ActionRefused(WhyNoFocus(control));
    if (form.ActiveControl() != &control) form.MoveFocus(control);
}

void Session::Show(const std::string& line) { transcript.Line("= " + line); }

void Session::Fail(const ScriptCommand& command, const std::string& detail) {
    ++failures_;
    transcript.Line(fmt::format("FAIL line {}: {}: {}", command.line, command.source, detail));
}

}  // namespace session
