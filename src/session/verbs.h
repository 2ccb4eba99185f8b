// The verbs of a session script, one family a file; each adds its verbs to the table.
#pragma once

#include <map>
#include <string>

#include "session/script_parser.h"

namespace session {

class Session;

using VerbHandler = void (*)(Session&, const ScriptCommand&);
using VerbTable = std::map<std::string, VerbHandler>;

void AddSetupVerbs(VerbTable& verbs);   // database, sql, setting, answer
void AddScreenVerbs(VerbTable& verbs);  // open, close, call
void AddUserVerbs(VerbTable& verbs);    // focus, type, key, click, tick, untick, select, date, pick
void AddGridVerbs(VerbTable& verbs);    // grid, cell
void AddShowVerb(VerbTable& verbs);     // show
void AddExpectVerb(VerbTable& verbs);   // expect

VerbTable AllVerbs();

}  // namespace session
