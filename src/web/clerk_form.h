// One clerk's form: a thread of its own that holds the screen, its own connection
// and its own plain host, as the screen always had one thread to itself. Calls from
// the server's threads are handed to it one at a time; a call returns when the form
// has finished with it, or when a handler opens a dialog and waits for the clerk.
#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "host/dialog_answers.h"
#include "host/settings.h"

namespace session {
class Session;
}

namespace web {

struct FormSetup {
    std::string databaseFile;
    std::string printFolder;
    host::Settings settings;
};

class ClerkForm {
public:
    using Job = std::function<void(session::Session&)>;
    using Clock = std::chrono::steady_clock;

    explicit ClerkForm(FormSetup setup);
    // Closes the form as the clerk would, every question it asks answered so that
    // nothing unsaved is written, and ends its thread.
    ~ClerkForm();
    ClerkForm(const ClerkForm&) = delete;
    ClerkForm& operator=(const ClerkForm&) = delete;

    // Runs the job on the form's thread; the form's state after it. A job that is
    // refused (WebRefusal, session::ScriptError, session::ActionRefused) leaves as a
    // WebRefusal; so does a call while a dialog waits.
    nlohmann::json Call(const Job& job);
    // The clerk's answer to the dialog that waits; the state once the handler has
    // gone on to its end or to the next dialog.
    nlohmann::json Answer(const std::vector<std::string>& values);
    // The state as it stands.
    nlohmann::json State();
    // The file of the nth document printed (from 1), as PDF.
    std::optional<std::string> PrintedPdf(int n) const;

    // When the clerk last used the form: now while a handler is at work.
    Clock::time_point LastUsed() const;

private:
    enum class Phase { Idle, Running, Asking };
    struct Outcome {
        int status = 200;
        std::string reason;
        nlohmann::json state;
    };

    void Run();
    void CarryOut(session::Session& session, const Job& job);
    std::optional<std::vector<std::string>> Ask(session::Session& session, const host::DialogQuestion& question);
    nlohmann::json Snapshot(session::Session& session, const host::DialogQuestion* question);
    void CloseScreen(session::Session& session);
    // Waits for the form to finish or to ask; the lock is held.
    nlohmann::json AwaitOutcome(std::unique_lock<std::mutex>& lock);

    FormSetup setup_;
    std::mutex callMutex_;  // one call at a time
    mutable std::mutex mutex_;
    std::condition_variable changed_;
    Phase phase_ = Phase::Idle;
    std::optional<Job> job_;
    std::optional<host::DialogQuestion> question_;
    std::optional<std::vector<std::string>> answer_;
    Outcome outcome_;
    bool closing_ = false;
    Clock::time_point lastUsed_ = Clock::now();
    std::vector<std::string> printedPdfs_;  // guarded by mutex_

    // The form thread's own: what the transcript said during the call.
    std::vector<std::string> lines_;

    std::thread thread_;  // last: started once everything above is made
};

}  // namespace web
