#include "support/served_screen.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include "server/database_files.h"
#include "support/scratch_files.h"

namespace web::testing {

ServedScreen::ServedScreen(host::Settings settings, std::chrono::milliseconds idleLimit)
    : database_(test_support::ScratchPath("served", ".db")) {
    server::CreateDatabase(database_, true);
    ServerSetup setup;
    setup.databaseFile = database_;
    setup.printFolder = test_support::ScratchPath("prints");
    setup.settings = std::move(settings);
    setup.idleLimit = idleLimit;
    server_ = std::make_unique<ScreenServer>(std::move(setup));
    port_ = server_->Bind("127.0.0.1", 0);
    thread_ = std::thread([this] { server_->Serve(); });
}

ServedScreen::~ServedScreen() {
    server_->Stop();
    thread_.join();
    server_.reset();
}

std::string ServedScreen::Sql(const std::string& query) const {
    sqlite3* db = nullptr;
    sqlite3_open_v2(database_.c_str(), &db, SQLITE_OPEN_READWRITE, nullptr);
    sqlite3_busy_timeout(db, 5000);
    std::string rows;
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(db, query.c_str(), -1, &statement, nullptr) == SQLITE_OK) {
        while (sqlite3_step(statement) == SQLITE_ROW) {
            if (!rows.empty()) rows += ';';
            for (int i = 0; i < sqlite3_column_count(statement); ++i) {
                const auto* text = sqlite3_column_text(statement, i);
                rows += (i ? "|" : "") + std::string(text ? reinterpret_cast<const char*>(text) : "");
            }
        }
    } else {
        ADD_FAILURE() << sqlite3_errmsg(db) << " in " << query;
    }
    sqlite3_finalize(statement);
    sqlite3_close(db);
    return rows;
}

Answer ServedScreen::Send(const std::string& method, const std::string& path, const std::string& body,
                          const std::string& token) {
    httplib::Client client("127.0.0.1", port_);
    client.set_read_timeout(std::chrono::seconds(60));
    httplib::Headers headers;
    if (!token.empty()) headers.emplace("X-Form-Token", token);
    httplib::Result result = method == "GET"      ? client.Get(path.c_str(), headers)
                             : method == "DELETE" ? client.Delete(path.c_str(), headers)
                                                  : client.Post(path.c_str(), headers, body, "application/json");
    if (!result) {
        ADD_FAILURE() << method << " " << path << " got no answer";
        return {};
    }
    nlohmann::json parsed = nlohmann::json::parse(result->body, nullptr, false);
    return {result->status, parsed.is_discarded() ? nlohmann::json(result->body) : parsed};
}

ClerkTab::ClerkTab(ServedScreen& screen, const nlohmann::json& opening) : screen_(screen) {
    Answer opened = screen_.Send("POST", "/api/forms", opening.dump());
    EXPECT_EQ(opened.status, 201) << opened.body.dump();
    if (opened.status != 201) return;
    token_ = opened.body["token"];
    drawn_ = opened.body["state"];
}

Answer ClerkTab::Keep(Answer answer) {
    if (answer.status == 200) drawn_ = answer.body;
    return answer;
}

Answer ClerkTab::Event(const std::vector<std::string>& words) {
    return Keep(screen_.Send("POST", "/api/event", nlohmann::json{{"words", words}}.dump(), token_));
}

Answer ClerkTab::Reply(const std::vector<std::string>& values) {
    return Keep(screen_.Send("POST", "/api/answer", nlohmann::json{{"values", values}}.dump(), token_));
}

Answer ClerkTab::State() { return Keep(screen_.Send("GET", "/api/state", "", token_)); }
Answer ClerkTab::Close() { return screen_.Send("DELETE", "/api/forms", "", token_); }

nlohmann::json ClerkTab::ControlNamed(const std::string& id) const {
    for (const auto& control : drawn_["controls"])
        if (control["id"] == id) return control;
    return nullptr;
}

void KeyCustomer(ClerkTab& tab, const std::string& typed) {
    tab.Event({"type", "txtCustomer", typed});
    tab.Event({"pick", "1"});
    tab.Event({"key", "txtCustomer", "13"});
}

void KeyLine(ClerkTab& tab, int row, const std::string& itemCode, const std::string& quantity) {
    const std::string r = std::to_string(row);
    tab.Event({"grid", "goto", r, "1"});
    tab.Event({"grid", "type", itemCode});
    tab.Event({"grid", "key", "13"});
    tab.Event({"grid", "type", quantity});
    tab.Event({"grid", "key", "13"});
}

}  // namespace web::testing
