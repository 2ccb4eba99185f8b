// A plain host over a fresh database of its own, with a recording of every call
// that reached the connection, for the host's tests.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "host/dialog_answers.h"
#include "host/plain_host.h"
#include "host/settings.h"
#include "host/transcript.h"
#include "platform/recording_connection.h"
#include "server/embedded_connection.h"

namespace host_test {

// A file name in the temporary folder that no other test uses; the file and its
// companions (-wal, -shm) are removed at the end.
class TempPath {
public:
    explicit TempPath(const std::string& suffix);
    ~TempPath();
    TempPath(const TempPath&) = delete;
    TempPath& operator=(const TempPath&) = delete;
    const std::string& str() const { return path_; }

private:
    std::string path_;
};

class HostTest : public ::testing::Test {
protected:
    HostTest();

    // SQLite's own statements, straight on the database, not recorded.
    void Sql(const std::string& script);
    // Statements that reached the connection since the last Clear.
    std::vector<std::string> Statements() const;
    host_services::HostGlobal& global() { return host->Global(); }
    host_services::HostServices services() { return host->Services(); }
    std::vector<std::string> Lines() const { return transcript.Lines(); }

    TempPath file{".db"};
    std::shared_ptr<server::EmbeddedConnection> database;
    std::shared_ptr<platform::RecordingConnection> connection;
    host::Settings settings;
    host::Transcript transcript;
    host::DialogAnswers answers;
    std::unique_ptr<host::PlainHost> host;
};

// A form of plain controls that keeps its own focus, as the screen's forms do.
class TestForm : public host_services::HostedForm {
public:
    explicit TestForm(std::string name = "frmTest") : name_(std::move(name)) {}
    std::string FormName() const override { return name_; }
    platform::Control* ActiveControl() const override { return active_; }
    void MoveFocus(platform::Control& to) override {
        if (active_) active_->LostFocus.Raise();
        active_ = &to;
        moves.push_back(to.FullName());
        to.GotFocus.Raise();
    }
    std::vector<std::string> moves;

private:
    std::string name_;
    platform::Control* active_ = nullptr;
};

}  // namespace host_test
