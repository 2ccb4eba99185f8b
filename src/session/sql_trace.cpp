#include "session/sql_trace.h"

#include <memory>

#include "platform/recording_connection.h"

namespace session {

platform::ConnectionPtr TraceStatements(platform::ConnectionPtr connection, host::Transcript& transcript,
                                        SqlTrace& trace) {
    auto recording = std::make_shared<platform::RecordingConnection>(std::move(connection));
    recording->onCall = [&transcript, &trace, recorder = recording.get()](const platform::RecordedCall& call) {
        if (trace.on) {
            auto text = platform::RecordingConnection::Describe(call);
            if (call.kind == platform::RecordedCall::Kind::Procedure)
                transcript.Proc(text);
            else
                transcript.Sql(text);
            trace.lines.push_back(std::move(text));
        }
        // The transcript is the record; the connection's own list would only grow.
        // (`call` lives in that list, so it is cleared last.)
        recorder->Clear();
    };
    return recording;
}

}  // namespace session
