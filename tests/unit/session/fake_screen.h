// A small screen for driving the session runner without the dispatch form: a few
// controls of each kind, a grid, routines, and the clicks the runner raised; and the
// fixture that runs scripts against it.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "host/plain_host.h"
#include "screen/screen_form.h"
#include "session/screen_opener.h"
#include "session/session_runner.h"

namespace session::testing {

class FakeScreen : public screen::ScreenForm {
public:
    explicit FakeScreen(host_services::HostServices services);

    // ---- what the runner sees ----------------------------------------------------
    std::string FormName() const override { return "FakeScreen"; }
    platform::Control* ActiveControl() const override { return active_; }
    void MoveFocus(platform::Control& to) override;
    platform::Control* FindControl(const std::string& name, int index) override;
    std::vector<platform::Control*> Controls() const override {
        auto* self = const_cast<FakeScreen*>(this);
        return {&self->frame3,  &self->txtCustomer, &self->txtInFrame, &self->txtLocked,
                &self->cmdSave, &self->lstSO,       &self->grid};
    }
    platform::DTFlex* Grid() override { return &grid; }
    std::optional<std::string> FieldText(const std::string& name) const override;
    const screen::RoutineTable& Routines() const override { return routines_; }
    bool KeyPreview() const override { return true; }
    void Form_KeyDown(int& KeyCode, int Shift) override;
    bool Close() override;
    bool IsLoaded() const override { return loaded_; }

    // ---- the controls --------------------------------------------------------------
    platform::Frame frame3{*this, "Frame3"};
    platform::TextBox txtCustomer{*this, "txtCustomer"};
    platform::TextBox txtInFrame{*this, "txtInFrame"};
    platform::TextBox txtLocked{*this, "txtLocked"};
    platform::CommandButton cmdSave{*this, "cmdSave"};
    platform::ListView lstSO{*this, "lstSO"};
    platform::DTFlex grid{*this, "DTFlexDispatch", 8};

    // ---- what the test arranges and reads ----------------------------------------
    // Besides: txtCustomer disables itself when "off" is typed into it.
    std::vector<std::string> events;

private:
    void Log(std::string event) { events.push_back(std::move(event)); }
    void WireEvents();
    void AddRoutines();

    host_services::HostServices services_;
    platform::Control* active_ = nullptr;
    screen::RoutineTable routines_;
    bool loaded_ = true;
};

// Opens a FakeScreen for every `open`, and remembers what it was given.
struct FakeOpenings {
    std::vector<std::unique_ptr<FakeScreen>> screens;
    platform::Date serverDate, alertDate;
};

struct FakeOpener : ScreenOpener {
    explicit FakeOpener(FakeOpenings& openings) : openings(openings) {}
    screen::ScreenForm* OpenDispatch(host::PlainHost& host, platform::Date serverDate, long mode,
                                     platform::Date alertDate) override;
    screen::ScreenForm* OpenCForm(host::PlainHost&, platform::Date) override { return nullptr; }
    FakeOpenings& openings;
};

struct Outcome {
    int status = -1;
    std::string out, err;
};

class SessionTest : public ::testing::Test {
protected:
    Outcome Run(const std::string& script, bool traceSql = false) {
        std::ostringstream out, err;
        SessionOptions options;
        options.traceSql = traceSql;
        options.makeOpener = [this] { return std::make_unique<FakeOpener>(openings); };
        int status = SessionRunner(out, err, std::move(options)).Run(script);
        return {status, out.str(), err.str()};
    }
    FakeScreen& Screen() { return *openings.screens.back(); }

    FakeOpenings openings;
};

// The first lines of most scripts: an empty database and the fake screen open.
inline const std::string kOpen = "database empty\nopen dispatch 2 2026-11-22\n";

inline ::testing::Matcher<const std::string&> HasLine(const std::string& line) {
    return ::testing::HasSubstr("\n" + line + "\n");
}

}  // namespace session::testing
