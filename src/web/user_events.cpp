#include "web/user_events.h"

#include <set>

#include "session/script_parser.h"
#include "session/session.h"
#include "session/verbs.h"
#include "web/web_refusal.h"

namespace web {
namespace {

const session::VerbTable& Verbs() {
    static const session::VerbTable verbs = session::AllVerbs();
    return verbs;
}

void RunWords(session::Session& session, const std::vector<std::string>& words) {
    session::ScriptCommand command;
    command.words = words;
    for (const auto& word : words) command.source += (command.source.empty() ? "" : " ") + session::Quote(word);
    Verbs().at(words.front())(session, command);
}

}  // namespace

void RunUserEvent(session::Session& session, const std::vector<std::string>& words) {
    static const std::set<std::string> userVerbs = {"focus",  "type", "key",  "click", "dblclick", "tick", "untick",
                                                    "select", "date", "pick", "grid",  "cell",     "close"};
    if (words.empty()) throw WebRefusal(400, "an event needs a verb");
    if (!userVerbs.contains(words.front())) throw WebRefusal(400, "the page may not send " + words.front());
    RunWords(session, words);
}

void OpenScreen(session::Session& session, const std::vector<std::string>& openWords) {
    std::vector<std::string> words{"open"};
    words.insert(words.end(), openWords.begin(), openWords.end());
    RunWords(session, words);
}

}  // namespace web
