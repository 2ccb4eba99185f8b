// The application's main window as the plain host has it: it hands out child
// frames, keeps the list of child forms it treats as its own, and shows the
// short-cut hint line.
#pragma once

#include <memory>
#include <string>

#include "host/host_state.h"
#include "screen/host_services/host_main_form.h"

namespace host {

class PlainLink : public host_services::HostLink {
public:
    PlainLink(HostState& state, long hwnd) : state_(state), hwnd_(hwnd) {}

    long hwnd() const override { return hwnd_; }
    void SetMyChild(host_services::HostedForm& form) override { child_ = &form; }
    void SetIcon(const std::string& icon) override { icon_ = icon; }
    std::string Caption() const override { return caption_; }
    void SetCaption(const std::string& caption) override { caption_ = caption; }
    void SetHelpContextID(long id) override { helpContextID_ = id; }
    long HelpContextID() const override { return helpContextID_; }
    void SetHParent(long hwnd) override { hParent_ = hwnd; }
    void SetStaus(long value) override { staus_ = value; }
    long Staus() const override { return staus_; }
    void SetFocus() override;

    host_services::HostedForm* Child() const { return child_; }
    const std::string& Icon() const { return icon_; }
    long HParent() const { return hParent_; }

private:
    HostState& state_;
    long hwnd_;
    host_services::HostedForm* child_ = nullptr;
    std::string icon_, caption_;
    long helpContextID_ = 0, hParent_ = 0, staus_ = 0;
};

class PlainMainForm : public host_services::HostMainForm {
public:
    explicit PlainMainForm(HostState& state) : state_(state) {}

    std::shared_ptr<host_services::HostLink> GiveMeNewLink() override;
    void CaptureChildObj(host_services::HostedForm& form) override;
    void LeaveChildObj(host_services::HostedForm& form) override;
    void InitShortCuts(const std::string& text) override { state_.shortcutText = text; }
    void FocusTo(platform::Control& control) override;
    bool InputBoxE(const std::string& prompt, const std::string& title, std::string& text) override;
    void SetFocus() override { state_.transcript.Focus("main window"); }

    // The last frame handed out, or nullptr.
    std::shared_ptr<PlainLink> LastLink() const { return lastLink_.lock(); }

private:
    HostState& state_;
    long nextHwnd_ = 0x1000;
    std::weak_ptr<PlainLink> lastLink_;
};

// Moves focus to the control when it can take it; does nothing otherwise, where the
// control's own SetFocus would raise an error.
void SafeFocus(platform::Control& control);

}  // namespace host
