// A plain host over a fresh database of its own, with a recording of every call
// that reached the connection, for the host's tests.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <tuple>  // the tests compare neighbouring values as one tuple
#include <vector>

#include "host/dialog_answers.h"
#include "host/plain_host.h"
#include "platform/recording_connection.h"
#include "server/database_files.h"
#include "server/embedded_connection.h"
#include "server/schema.h"
#include "support/scratch_files.h"

namespace host_test {

class HostTest : public ::testing::Test {
protected:
    // SQLite's own statements, straight on the database, not recorded.
    void Sql(const std::string& script) { database->ExecuteScript(script); }
    // Statements that reached the connection since the last Clear.
    std::vector<std::string> Statements() const {
        std::vector<std::string> statements;
        for (const auto& call : connection->Calls())
            if (call.kind == platform::RecordedCall::Kind::Statement) statements.push_back(call.text);
        return statements;
    }
    host_services::HostGlobal& global() { return host->Global(); }
    host_services::HostServices services() { return host->Services(); }
    std::vector<std::string> Lines() const { return transcript.Lines(); }

    std::shared_ptr<server::EmbeddedConnection> database =
        server::CreateDatabaseFromScripts(test_support::ScratchPath("host", ".db"), {server::SchemaScript()});
    std::shared_ptr<platform::RecordingConnection> connection =
        std::make_shared<platform::RecordingConnection>(database);
    host::Settings settings;
    host::Transcript transcript;
    host::DialogAnswers answers;
    std::unique_ptr<host::PlainHost> host =
        std::make_unique<host::PlainHost>(connection, settings, transcript, answers);
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
