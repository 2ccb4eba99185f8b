#include "support/clerk_load.h"

#include <mutex>
#include <thread>

namespace web::testing {
namespace {

const nlohmann::json kNewNote = {{"screen", "dispatch"}, {"mode", 2}};

struct ClerkResult {
    std::vector<std::string> saved;
    int refused = 0;
    int refusedAtSave = 0;
    std::vector<std::chrono::duration<double>> saveTimes;
    std::vector<std::string> faults;
};

bool LineStands(const ClerkTab& tab, const std::string& quantity) {
    const auto grid = tab.ControlNamed("DTFlexDispatch")["grid"];
    return !grid["editing"].get<bool>() && grid["cells"][0][5] == quantity;
}

// A dialog on the way out (a message after a refusal) is answered as its way out.
void AnswerDialogs(ClerkTab& tab) {
    for (int n = 0; n < 5 && !tab.Drawn()["dialog"].is_null(); ++n) {
        const auto& dialog = tab.Drawn()["dialog"];
        tab.Reply({dialog["kind"] == "AskMessage" ? "1" : "cancel"});
    }
}

ClerkResult Clerk(ServedScreen& screen, const LoadPlan& plan) {
    ClerkResult result;
    auto tab = std::make_unique<ClerkTab>(screen, kNewNote);
    for (int note = 0; note < plan.notesEach; ++note) {
        KeyCustomer(*tab, "Ravi");
        KeyLine(*tab, 1, plan.item, plan.quantity);
        bool saved = false;
        if (LineStands(*tab, plan.quantity)) {
            const auto start = std::chrono::steady_clock::now();
            Answer answer = tab->Event({"click", "cmdSave"});
            result.saveTimes.push_back(std::chrono::steady_clock::now() - start);
            if (answer.status != 200) result.faults.push_back(answer.body.dump());
            const std::string status = tab->Status();
            const std::string said = "DispatchID = ";
            if (status.rfind(said, 0) == 0) {
                result.saved.push_back(status.substr(said.size(), status.find(' ', said.size()) - said.size()));
                saved = true;
            } else {
                ++result.refusedAtSave;
            }
            AnswerDialogs(*tab);
        }
        if (!saved) {
            // A refused note is given up: the clerk closes the tab and starts afresh.
            ++result.refused;
            tab->Close();
            tab = std::make_unique<ClerkTab>(screen, kNewNote);
        }
    }
    tab->Close();
    return result;
}

}  // namespace

LoadOutcome RunClerks(ServedScreen& screen, const LoadPlan& plan) {
    LoadOutcome outcome;
    std::mutex mutex;
    std::vector<std::thread> clerks;
    const auto start = std::chrono::steady_clock::now();
    for (int c = 0; c < plan.clerks; ++c)
        clerks.emplace_back([&] {
            ClerkResult result = Clerk(screen, plan);
            std::lock_guard lock(mutex);
            outcome.savedNumbers.insert(outcome.savedNumbers.end(), result.saved.begin(), result.saved.end());
            outcome.refused += result.refused;
            outcome.refusedAtSave += result.refusedAtSave;
            outcome.saveTimes.insert(outcome.saveTimes.end(), result.saveTimes.begin(), result.saveTimes.end());
            outcome.faults.insert(outcome.faults.end(), result.faults.begin(), result.faults.end());
        });
    for (auto& clerk : clerks) clerk.join();
    outcome.elapsed = std::chrono::steady_clock::now() - start;
    return outcome;
}

}  // namespace web::testing
