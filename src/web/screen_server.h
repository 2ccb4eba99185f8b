// The clerk's screen over HTTP: the page, the host's menu, and the calls that open,
// drive, answer, print and close each clerk's form (docs/web-protocol.md).
#pragma once

#include <chrono>
#include <memory>
#include <ostream>
#include <string>

#include "web/clerk_form.h"

namespace web {

class ClerkRegistry;

struct ServerSetup {
    std::string databaseFile;
    std::string printFolder;  // each form prints into a folder of its own under it
    host::Settings settings;
    std::chrono::milliseconds idleLimit = std::chrono::minutes(30);
    std::ostream* log = nullptr;  // one line a request: method, path, status
};

class ScreenServer {
public:
    explicit ScreenServer(ServerSetup setup);
    ~ScreenServer();
    ScreenServer(const ScreenServer&) = delete;
    ScreenServer& operator=(const ScreenServer&) = delete;

    // Binds the address; port 0 takes a free one. The port bound; throws
    // std::runtime_error when the address cannot be had.
    int Bind(const std::string& host, int port);
    // Answers requests until Stop.
    void Serve();
    void Stop();
    ClerkRegistry& Registry();

private:
    struct Impl;
    std::unique_ptr<Impl> impl_;
};

}  // namespace web
