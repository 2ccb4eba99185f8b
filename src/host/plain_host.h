// The plain host: a working stand-in for the host application and its library.
// It owns the services the screen reaches through host_services, over one
// connection, and reports what the screen did to a transcript.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/dialog_answers.h"
#include "host/settings.h"
#include "host/transcript.h"
#include "platform/controls.h"
#include "platform/database.h"
#include "screen/host_services/host_services.h"

namespace host {

// The type-ahead list that stands open, as the user sees it.
class OpenList {
public:
    virtual ~OpenList() = default;
    virtual std::vector<std::string> RowTexts() const = 0;  // the shown text of each row
    virtual void Pick(int row) = 0;                         // row from 1: its text and key land in the box
    virtual const platform::TextBox* Box() const = 0;       // the box it drops down under, or nullptr
    virtual int SelectedRow() const = 0;                    // from 0; -1 with no rows
};

class PlainHost {
public:
    // The settings, transcript and answers are the caller's and must outlive the
    // host. A null connection is refused with std::invalid_argument.
    PlainHost(platform::ConnectionPtr connection, Settings& settings, Transcript& transcript, DialogAnswers& answers);
    ~PlainHost();
    PlainHost(const PlainHost&) = delete;
    PlainHost& operator=(const PlainHost&) = delete;

    host_services::HostServices Services();
    host_services::HostContext& Context();
    host_services::HostGlobal& Global();
    // The list that stands open, or nullptr.
    OpenList* VisibleList();
    // Folder that printed documents are written to (the setting OutputFolder).
    void SetOutputFolder(const std::string& folder);
    // Writes the print templates into the folder; the host reads them from there
    // (GetIniFilePath) unless the setting names another place.
    void InstallPrintTemplates(const std::string& folder);
    // The working date GetCurrentDate answers with; today until it is set.
    void SetServerDate(platform::Date date);

    // ---- what the host noted, for whoever drives it --------------------------------
    // The date the last save posted (SetLastTransactionDate); nothing before one.
    std::optional<platform::Date> LastTransactionDate() const;
    // One line a look applied: "form NAME ...", "frame HWND ...", "grid NAME ...", "dropdown NAME 200",
    // "translate NAME".
    const std::vector<std::string>& AppliedStyles() const;
    // The caption of the frame the last screen took.
    std::string FrameCaption() const;
    // The hint line the main window shows (InitShortCuts).
    std::string ShortcutText() const;
    // How often the screen asked the context to refresh its day-close settings.
    int CloseDayRefreshes() const;

private:
    struct Impl;
    std::unique_ptr<Impl> impl_;
};

}  // namespace host
