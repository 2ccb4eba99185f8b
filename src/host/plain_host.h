// The plain host: a working stand-in for the host application and its library.
// It owns the services the screen reaches through host_services, over one
// connection, and reports what the screen did to a transcript.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/database.h"
#include "screen/host_services/host_services.h"
#include "host/dialog_answers.h"
#include "host/settings.h"
#include "host/transcript.h"

namespace host {

// The type-ahead list that stands open, as the user sees it.
class OpenList {
public:
    virtual ~OpenList() = default;
    virtual std::vector<std::string> RowTexts() const = 0;  // the shown text of each row
    virtual void Pick(int row) = 0;  // row from 1: its text and key land in the box
};

class PlainHost {
public:
    PlainHost(platform::ConnectionPtr connection, Settings& settings, Transcript& transcript, DialogAnswers& answers);
    ~PlainHost();

    host_services::HostServices Services();
    host_services::HostContext& Context();
    host_services::HostGlobal& Global();
    // The list that stands open, or nullptr.
    OpenList* VisibleList();
    // Folder that printed documents are written to.
    void SetOutputFolder(const std::string& folder);

private:
    struct Impl;
    std::unique_ptr<Impl> impl_;
};

}  // namespace host
