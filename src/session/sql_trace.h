// What the screen sends to the database, shown in the transcript as it goes: every
// statement and procedure call while tracing is on. `--trace-sql` turns it on for
// the whole run; `trace sql on|off` for a stretch of a script, whose traced lines
// `expect traced` counts.
#pragma once

#include <string>
#include <vector>

#include "host/transcript.h"
#include "platform/database.h"

namespace session {

struct SqlTrace {
    bool on = false;
    // The lines traced since tracing was last turned on by the script.
    std::vector<std::string> lines;

    void TurnOn() {
        on = true;
        lines.clear();
    }
};

platform::ConnectionPtr TraceStatements(platform::ConnectionPtr connection, host::Transcript& transcript,
                                        SqlTrace& trace);

}  // namespace session
