#include "fake_screen.h"

#include <fmt/format.h>

#include "platform/convert.h"
#include "platform/key_codes.h"
#include "platform/runtime_error.h"

namespace session::testing {

FakeScreen::FakeScreen(host_services::HostServices services) : services_(std::move(services)) {
    frame3.Enabled = false;
    txtInFrame.Container = &frame3;
    txtLocked.Locked = true;
    lblTitle.Caption = "Dispatch";
    cmdSave.Caption = "&Save";

    lstSO.CheckBoxes = true;
    lstSO.Add("Acme Traders").SetSubItem(1, "SC1");
    lstSO.Add("").SetSubItem(1, "SC2");

    grid.SetColHeading(1, "Code");
    grid.SetColHeading(2, "Name");
    grid.SetGridRows(2);
    grid.SetCell(1, 1, "A100");
    grid.SetCell(1, 2, "Soap");
    grid.SetCell(2, 1, "B200");
    grid.SetCell(2, 7, "hidden");

    WireEvents();
    AddRoutines();
}

void FakeScreen::WireEvents() {
    // Each handler logs its event's name and the arguments it was raised with.
    auto logs = [this](std::string name) {
        return [this, name](const auto&... args) {
            std::string event = name;
            ((event += fmt::format(" {}", args)), ...);
            Log(event);
        };
    };
    txtCustomer.GotFocus.Connect(logs("txtCustomer.GotFocus"));
    txtCustomer.LostFocus.Connect(logs("txtCustomer.LostFocus"));
    txtCustomer.Change.Connect([this] {
        Log("txtCustomer.Change " + txtCustomer.Text());
        if (txtCustomer.Text() == "off") txtCustomer.Enabled = false;  // a box that turns itself off while in use
    });
    txtCustomer.KeyDown.Connect([this](int& code, int shift) {
        Log(fmt::format("txtCustomer.KeyDown {} {}", code, shift));
        if (code == platform::keys::Enter) code = 0;
    });
    txtCustomer.KeyPress.Connect(logs("txtCustomer.KeyPress"));
    txtCustomer.KeyUp.Connect(logs("txtCustomer.KeyUp"));
    cmdSave.Click.Connect(logs("cmdSave.Click"));
    lblTitle.Click.Connect(logs("lblTitle.Click"));
    lstUOM.DblClick.Connect(logs("lstUOM.DblClick"));
}

void FakeScreen::AddRoutines() {
    routines_.Add("Ask", [this](screen::RoutineCall& call) {
        call.result = platform::Value(services_.messages.AskMessage("Save now?", 4));
    });
    routines_.Add("Report", [this](screen::RoutineCall&) {
        services_.global.ReportError("Dispatch: Report - Invalid procedure call or argument", 5);
        services_.global.ShowStatus("Select an existing Customer.", 1);
    });
    routines_.Add("Query", [this](screen::RoutineCall& call) {
        auto rows = services_.global.GetConnection().Execute(call.arguments.at(0));
        call.result = rows->Fields(0);
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
    for (platform::Control* control : std::initializer_list<platform::Control*>{
             &frame3, &txtCustomer, &txtInFrame, &txtLocked, &cmdSave, &lblTitle, &lstSO, &lstUOM, &grid})
        if (control->Name() == name && control->Index() == index) return control;
    return nullptr;
}

std::optional<std::string> FakeScreen::FieldText(const std::string& name) const {
    if (name == "szDocNumbers") return szDocNumbers;
    return std::nullopt;
}

void FakeScreen::Form_KeyDown(int& KeyCode, int Shift) {
    Log(fmt::format("Form_KeyDown {} {}", KeyCode, Shift));
    if (KeyCode == platform::keys::Escape) KeyCode = 0;
}

bool FakeScreen::Close() {
    Log("Close");
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
