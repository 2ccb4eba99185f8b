#include "fake_screen.h"

#include "platform/convert.h"
#include "platform/runtime_error.h"

namespace session::testing {

FakeScreen::FakeScreen(host_services::HostServices services) : services_(std::move(services)) {
    frame3.Enabled = false;
    txtInFrame.Container = &frame3;
    txtLocked.Locked = true;
    cmdSave.Caption = "&Save";

    lstSO.CheckBoxes = true;
    lstSO.Add("Acme Traders").SetSubItem(1, "SC1");
    lstSO.Add("").SetSubItem(1, "SC2");

    grid.SetGridRows(2);

    WireEvents();
    AddRoutines();
}

void FakeScreen::WireEvents() {
    txtCustomer.Change.Connect([this] {
        if (txtCustomer.Text() == "off") txtCustomer.Enabled = false;  // a box that turns itself off while in use
    });
    cmdSave.Click.Connect([this] { Log("cmdSave.Click"); });
}

void FakeScreen::AddRoutines() {
    routines_.Add("Ask", [this](screen::RoutineCall& call) {
        call.result = platform::Value(services_.messages.AskMessage("Save now?", 4));
    });
    routines_.Add("Report", [this](screen::RoutineCall&) {
        services_.global.ReportError("Dispatch: Report - Invalid procedure call or argument", 5);
        services_.global.ShowStatus("Select an existing Customer.", 1);
    });
    routines_.Add("Broken", [](screen::RoutineCall&) { throw platform::RuntimeError(platform::err::ObjectNotSet); });
    routines_.Add("Strict", [](screen::RoutineCall& call) {
        if (call.arguments[0] == "late") throw platform::RuntimeError(450, "Wrong number of arguments");
    });
}

void FakeScreen::MoveFocus(platform::Control& to) {
    if (active_ != nullptr) active_->LostFocus.Raise();
    active_ = &to;
    to.GotFocus.Raise();
    FocusMoved.Raise(to);
}

platform::Control* FakeScreen::FindControl(const std::string& name, int index) {
    for (platform::Control* control : Controls())
        if (control->Name() == name && control->Index() == index) return control;
    return nullptr;
}

std::optional<std::string> FakeScreen::FieldText(const std::string&) const { return std::nullopt; }

void FakeScreen::Form_KeyDown(int&, int) {}

bool FakeScreen::Close() {
    if (txtCustomer.Text() == "stay") return true;
    loaded_ = false;
    return false;
}

screen::ScreenForm* FakeOpener::OpenDispatch(host::PlainHost& host, platform::Date serverDate, long /*mode*/,
                                             platform::Date alertDate) {
    openings.serverDate = serverDate;
    openings.alertDate = alertDate;
    auto screen = std::make_unique<FakeScreen>(host.Services());
    // As a form does while it opens: focus is set before the host can listen.
    screen->MoveFocus(screen->txtCustomer);
    return openings.screens.emplace_back(std::move(screen)).get();
}

}  // namespace session::testing
