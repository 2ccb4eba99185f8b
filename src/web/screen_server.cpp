#include "web/screen_server.h"

#include <fmt/format.h>
#include <httplib.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <thread>

#include "session/session.h"
#include "web/clerk_registry.h"
#include "web/menu.h"
#include "web/page_files.h"
#include "web/request_body.h"
#include "web/user_events.h"
#include "web/web_refusal.h"

namespace web {
namespace {

using nlohmann::json;

constexpr std::size_t kLargestBody = 64 * 1024;
constexpr int kServerThreads = 64;

void AnswerJson(httplib::Response& response, int status, const json& body) {
    response.status = status;
    response.set_content(body.dump(), "application/json");
}

void AnswerRefusal(httplib::Response& response, const WebRefusal& refusal) {
    AnswerJson(response, refusal.Status(), {{"error", refusal.what()}});
}

std::string TokenOf(const httplib::Request& request) {
    std::string token = request.get_header_value("X-Form-Token");
    if (token.empty()) throw WebRefusal(401, "the call needs the form's token (X-Form-Token)");
    return token;
}

std::string ReadFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream content;
    content << file.rdbuf();
    return content.str();
}

}  // namespace

struct ScreenServer::Impl {
    explicit Impl(ServerSetup setup_) : setup(std::move(setup_)), registry(setup.idleLimit) {}

    ServerSetup setup;
    ClerkRegistry registry;
    httplib::Server http;
    std::atomic<int> formsOpened{0};
    std::mutex reaperMutex;
    std::condition_variable reaperWake;
    bool stopping = false;
    std::thread reaper;

    // Runs a handler; a refusal becomes its 4xx answer and a fault a 500, and the
    // request is logged either way.
    template <typename Handler>
    void Guard(const httplib::Request& request, httplib::Response& response, Handler handler) {
        try {
            handler();
        } catch (const WebRefusal& refusal) {
            AnswerRefusal(response, refusal);
        } catch (const std::exception& e) {
            AnswerJson(response, 500, {{"error", std::string("the server failed: ") + e.what()}});
        }
        Log(request, response.status);
    }

    void Log(const httplib::Request& request, int status) {
        if (setup.log == nullptr) return;
        static std::mutex logMutex;
        std::lock_guard lock(logMutex);
        *setup.log << fmt::format("{} {} {}\n", request.method, request.path, status) << std::flush;
    }

    FormSetup NewFormSetup() {
        FormSetup form{setup.databaseFile, {}, setup.settings};
        std::filesystem::path folder = std::filesystem::path(setup.printFolder) / fmt::format("form-{}", ++formsOpened);
        std::filesystem::create_directories(folder);
        form.printFolder = folder.string();
        return form;
    }

    void OpenForm(const httplib::Request& request, httplib::Response& response) {
        // A body that asks for no screen is refused before a form and its thread are made.
        const std::vector<std::string> openWords = OpenWords(ParseBody(request.body));
        auto form = std::make_shared<ClerkForm>(NewFormSetup());
        json state = form->Call([&](session::Session& session) { OpenScreen(session, openWords); });
        std::string token = registry.Add(std::move(form));
        AnswerJson(response, 201, {{"token", token}, {"state", state}});
    }

    void SendPrint(const httplib::Request& request, httplib::Response& response) {
        auto form = registry.Find(TokenOf(request));
        long n = 0;
        try {
            n = std::stol(request.matches[1]);
        } catch (const std::exception&) {
            throw WebRefusal(404, "no such print");
        }
        auto pdf = form->PrintedPdf(static_cast<int>(n));
        if (!pdf) throw WebRefusal(404, fmt::format("this form has printed no document {}", n));
        response.set_content(ReadFile(*pdf), "application/pdf");
        response.set_header("Content-Disposition",
                            "inline; filename=\"" + std::filesystem::path(*pdf).filename().string() + "\"");
    }

    void Route() {
        http.Get("/api/menu", [this](const httplib::Request& rq, httplib::Response& rs) {
            Guard(rq, rs, [&] { AnswerJson(rs, 200, MenuState()); });
        });
        http.Post("/api/forms", [this](const httplib::Request& rq, httplib::Response& rs) {
            Guard(rq, rs, [&] { OpenForm(rq, rs); });
        });
        http.Delete("/api/forms", [this](const httplib::Request& rq, httplib::Response& rs) {
            Guard(rq, rs, [&] {
                registry.Close(TokenOf(rq));
                AnswerJson(rs, 200, {{"closed", true}});
            });
        });
        http.Get("/api/state", [this](const httplib::Request& rq, httplib::Response& rs) {
            Guard(rq, rs, [&] { AnswerJson(rs, 200, registry.Find(TokenOf(rq))->State()); });
        });
        http.Post("/api/event", [this](const httplib::Request& rq, httplib::Response& rs) {
            Guard(rq, rs, [&] {
                auto form = registry.Find(TokenOf(rq));
                const std::vector<std::string> words = TextList(ParseBody(rq.body), "words");
                AnswerJson(rs, 200, form->Call([&](session::Session& session) { RunUserEvent(session, words); }));
            });
        });
        http.Post("/api/answer", [this](const httplib::Request& rq, httplib::Response& rs) {
            Guard(rq, rs, [&] {
                auto form = registry.Find(TokenOf(rq));
                AnswerJson(rs, 200, form->Answer(TextList(ParseBody(rq.body), "values")));
            });
        });
        http.Get(R"(/api/print/(\d+))", [this](const httplib::Request& rq, httplib::Response& rs) {
            Guard(rq, rs, [&] { SendPrint(rq, rs); });
        });
        http.Get(R"(/[^/]*)", [this](const httplib::Request& rq, httplib::Response& rs) {
            Guard(rq, rs, [&] {
                const PageFile* file = FindPageFile(rq.path);
                if (file == nullptr) throw WebRefusal(404, "no such page: " + rq.path);
                rs.set_content(std::string(file->content), std::string(file->mimeType).c_str());
            });
        });
        // What the routes above do not take: an unknown path, a body too large.
        http.set_error_handler([this](const httplib::Request& rq, httplib::Response& rs) {
            if (!rs.body.empty()) return;
            std::string reason = rs.status == 413   ? fmt::format("the body is over {} bytes", kLargestBody)
                                 : rs.status == 404 ? "no such call: " + rq.method + " " + rq.path
                                                    : "the request was refused";
            AnswerJson(rs, rs.status, {{"error", reason}});
            Log(rq, rs.status);
        });
        http.set_payload_max_length(kLargestBody);
        http.new_task_queue = [] { return new httplib::ThreadPool(kServerThreads); };
    }

    void ReapIdleForms() {
        const auto every = std::max(std::chrono::milliseconds(50), setup.idleLimit / 10);
        std::unique_lock lock(reaperMutex);
        while (!reaperWake.wait_for(lock, every, [this] { return stopping; })) {
            lock.unlock();
            registry.CloseIdle();
            lock.lock();
        }
    }
};

ScreenServer::ScreenServer(ServerSetup setup) : impl_(std::make_unique<Impl>(std::move(setup))) {
    impl_->Route();
    impl_->reaper = std::thread([this] { impl_->ReapIdleForms(); });
}

ScreenServer::~ScreenServer() {
    Stop();
    impl_->reaper.join();
}

int ScreenServer::Bind(const std::string& host, int port) {
    int bound = port == 0 ? impl_->http.bind_to_any_port(host) : (impl_->http.bind_to_port(host, port) ? port : -1);
    if (bound <= 0) throw std::runtime_error(fmt::format("cannot listen on {}:{}", host, port));
    return bound;
}

void ScreenServer::Serve() { impl_->http.listen_after_bind(); }

void ScreenServer::Stop() {
    {
        std::lock_guard lock(impl_->reaperMutex);
        impl_->stopping = true;
    }
    impl_->reaperWake.notify_all();
    impl_->http.stop();
}

ClerkRegistry& ScreenServer::Registry() { return impl_->registry; }

}  // namespace web
