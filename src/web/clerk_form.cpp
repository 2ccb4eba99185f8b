#include "web/clerk_form.h"

#include <sstream>

#include "session/script_error.h"
#include "session/session.h"
#include "web/form_state.h"
#include "web/printed_files.h"
#include "web/web_refusal.h"

namespace web {
namespace {

// The answer that lets nothing be written when the form closes under a dialog: the
// message box's way out, no save before closing; a choice or a password takes its
// own default, which is cancel.
std::optional<std::vector<std::string>> ClosingAnswer(const host::DialogQuestion& question) {
    if (question.kind == "AskMessage") {
        switch (question.buttons & 0x0F) {
            case 0: return std::vector<std::string>{"1"};   // ok
            case 2: return std::vector<std::string>{"3"};   // abort
            case 4: return std::vector<std::string>{"7"};   // no
            default: return std::vector<std::string>{"2"};  // cancel
        }
    }
    if (question.kind == "ConfirmSaveOnExit") return std::vector<std::string>{"false"};
    return std::nullopt;
}

}  // namespace

ClerkForm::ClerkForm(FormSetup setup) : setup_(std::move(setup)), thread_([this] { Run(); }) {}

ClerkForm::~ClerkForm() {
    {
        std::lock_guard lock(mutex_);
        closing_ = true;
    }
    changed_.notify_all();
    thread_.join();
}

void ClerkForm::Run() {
    std::ostringstream unread;  // the transcript goes to the calls' lines instead
    session::SessionOptions options;
    options.databaseFile = setup_.databaseFile;
    options.printFolder = setup_.printFolder;
    session::Session session(unread, options);
    session.settings = setup_.settings;
    session.transcript.onLine = [this](const std::string& line) { lines_.push_back(line); };
    session.answers.asker = [this, &session](const host::DialogQuestion& question) { return Ask(session, question); };

    for (;;) {
        Job job;
        {
            std::unique_lock lock(mutex_);
            changed_.wait(lock, [this] { return job_.has_value() || closing_; });
            if (!job_) break;
            job = std::move(*job_);
            job_.reset();
        }
        CarryOut(session, job);
    }
    CloseScreen(session);
}

void ClerkForm::CarryOut(session::Session& session, const Job& job) {
    Outcome outcome;
    try {
        job(session);
    } catch (const WebRefusal& e) {
        outcome = {e.Status(), e.what(), {}};
    } catch (const session::ScriptError& e) {
        outcome = {400, e.what(), {}};
    } catch (const session::ActionRefused& e) {
        outcome = {409, e.what(), {}};
    } catch (const std::exception& e) {
        outcome = {500, std::string("the form failed: ") + e.what(), {}};
    }
    outcome.state = Snapshot(session, nullptr);
    {
        std::lock_guard lock(mutex_);
        outcome_ = std::move(outcome);
        phase_ = Phase::Idle;
    }
    changed_.notify_all();
}

std::optional<std::vector<std::string>> ClerkForm::Ask(session::Session& session,
                                                       const host::DialogQuestion& question) {
    nlohmann::json state = Snapshot(session, &question);
    std::unique_lock lock(mutex_);
    if (closing_) return ClosingAnswer(question);
    question_ = question;
    outcome_ = {200, {}, std::move(state)};
    phase_ = Phase::Asking;
    changed_.notify_all();
    changed_.wait(lock, [this] { return answer_.has_value() || closing_; });
    question_.reset();
    phase_ = Phase::Running;
    if (!answer_) return ClosingAnswer(question);
    return std::exchange(answer_, std::nullopt);
}

nlohmann::json ClerkForm::Snapshot(session::Session& session, const host::DialogQuestion* question) {
    CallLines call{std::exchange(lines_, {}), {}};
    {
        std::lock_guard lock(mutex_);
        for (const std::string& detail : session.transcript.TakePrints())
            if (std::string pdf = PrintedPdfOf(detail); !pdf.empty()) printedPdfs_.push_back(pdf);
        for (const std::string& pdf : printedPdfs_) call.prints.push_back(FileNameOf(pdf));
    }
    return FormState(session, question, call);
}

void ClerkForm::CloseScreen(session::Session& session) {
    try {
        if (auto* form = session.OpenScreen()) form->Close();
    } catch (const std::exception&) {
        // The form goes with its thread whatever its handlers made of the close.
    }
}

nlohmann::json ClerkForm::AwaitOutcome(std::unique_lock<std::mutex>& lock) {
    changed_.wait(lock, [this] { return phase_ != Phase::Running; });
    lastUsed_ = Clock::now();
    if (outcome_.status != 200) throw WebRefusal(outcome_.status, outcome_.reason);
    return outcome_.state;
}

nlohmann::json ClerkForm::Call(const Job& job) {
    std::lock_guard call(callMutex_);
    std::unique_lock lock(mutex_);
    if (phase_ == Phase::Asking) throw WebRefusal(409, "a dialog is waiting for its answer");
    job_ = job;
    phase_ = Phase::Running;
    lastUsed_ = Clock::now();
    changed_.notify_all();
    return AwaitOutcome(lock);
}

nlohmann::json ClerkForm::Answer(const std::vector<std::string>& values) {
    std::lock_guard call(callMutex_);
    std::unique_lock lock(mutex_);
    if (phase_ != Phase::Asking || !question_) throw WebRefusal(409, "no dialog is waiting for an answer");
    if (auto problem = host::DialogAnswers::Problem(question_->kind, values); !problem.empty())
        throw WebRefusal(400, problem);
    answer_ = values;
    phase_ = Phase::Running;
    lastUsed_ = Clock::now();
    changed_.notify_all();
    return AwaitOutcome(lock);
}

nlohmann::json ClerkForm::State() {
    {
        std::lock_guard lock(mutex_);
        if (phase_ == Phase::Asking) return outcome_.state;
    }
    return Call([](session::Session&) {});
}

std::optional<std::string> ClerkForm::PrintedPdf(int n) const {
    std::lock_guard lock(mutex_);
    if (n < 1 || n > static_cast<int>(printedPdfs_.size())) return std::nullopt;
    return printedPdfs_[static_cast<std::size_t>(n - 1)];
}

ClerkForm::Clock::time_point ClerkForm::LastUsed() const {
    std::lock_guard lock(mutex_);
    // A form whose handler is at work is in use, however long the work takes; one that
    // waits for the clerk's answer is not.
    return phase_ == Phase::Running ? Clock::now() : lastUsed_;
}

}  // namespace web
