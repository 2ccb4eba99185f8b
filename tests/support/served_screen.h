// A screen server of the test's own over a fresh demo database on a free port, and
// a clerk's tab that speaks to it as the page does.
#pragma once

#include <httplib.h>

#include <memory>
#include <nlohmann/json.hpp>
#include <string>
#include <thread>
#include <vector>

#include "web/screen_server.h"

namespace web::testing {

struct Answer {
    int status = 0;
    nlohmann::json body;
};

class ServedScreen {
public:
    explicit ServedScreen(host::Settings settings = {}, std::chrono::milliseconds idleLimit = std::chrono::minutes(30));
    ~ServedScreen();

    const std::string& DatabaseFile() const { return database_; }
    int Port() const { return port_; }
    // A query on the database, outside the server: rows joined with ';', fields with '|'.
    std::string Sql(const std::string& query) const;
    Answer Send(const std::string& method, const std::string& path, const std::string& body,
                const std::string& token = {});

private:
    std::string database_;
    std::unique_ptr<ScreenServer> server_;
    std::thread thread_;
    int port_ = 0;
};

// One browser tab: its token and the state it last drew.
class ClerkTab {
public:
    // Opens a form of the screen; the test fails when it is refused.
    ClerkTab(ServedScreen& screen, const nlohmann::json& opening);
    Answer Event(const std::vector<std::string>& words);
    Answer Reply(const std::vector<std::string>& values);
    Answer State();
    Answer Close();

    const std::string& Token() const { return token_; }
    const nlohmann::json& Drawn() const { return drawn_; }
    // A control of the state last drawn; null when it has none.
    nlohmann::json ControlNamed(const std::string& id) const;
    std::string Status() const { return drawn_["status"]["text"]; }

private:
    Answer Keep(Answer answer);
    ServedScreen& screen_;
    std::string token_;
    nlohmann::json drawn_;
};

// The keys of a new note's first line and the customer before it, as the clerk types them.
void KeyCustomer(ClerkTab& tab, const std::string& typed);
void KeyLine(ClerkTab& tab, int row, const std::string& itemCode, const std::string& quantity);

}  // namespace web::testing
