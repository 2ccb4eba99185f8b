// `--trace-sql`: every statement and procedure call the screen sends shows in the
// transcript as it goes to the database.
#pragma once

#include "host/transcript.h"
#include "platform/database.h"

namespace session {

platform::ConnectionPtr TraceStatements(platform::ConnectionPtr connection, host::Transcript& transcript);

}  // namespace session
