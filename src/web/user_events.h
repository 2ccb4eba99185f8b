// What the clerk's page sends the form: the words of a session script line, run by
// the session's own verbs, so that a key in the browser is exactly the event a
// script's `key` raises. Only what a user does at the screen is taken.
#pragma once

#include <string>
#include <vector>

namespace session {
class Session;
}

namespace web {

// Throws WebRefusal 400 for a verb the page may not send, and whatever the verb
// throws for bad arguments (session::ScriptError) or a refused action
// (session::ActionRefused).
void RunUserEvent(session::Session& session, const std::vector<std::string>& words);

// Opens a screen as the host does: `open dispatch MODE [DATE [ALERTDATE]]` or
// `open cform [DATE]`, through the same verb.
void OpenScreen(session::Session& session, const std::vector<std::string>& openWords);

}  // namespace web
