// A connection that remembers every call made through it, in order, before passing
// it on: tests read back the statements and procedure calls of a routine, and a
// session transcript can show them as they happen.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/database.h"

namespace platform {

struct RecordedCall {
    enum class Kind { Statement, Procedure, Begin, Commit, Rollback } kind;
    std::string text;          // the statement, or the procedure's name
    ParameterList parameters;  // a procedure's parameters
};

class RecordingConnection : public Connection {
public:
    explicit RecordingConnection(ConnectionPtr inner);

    RecordsetPtr Execute(const std::string& sql) override;
    RecordsetPtr RunProcedure(const std::string& name, const ParameterList& parameters) override;
    void BeginTrans() override;
    void CommitTrans() override;
    void RollbackTrans() override;
    bool InTransaction() const override;

    const std::vector<RecordedCall>& Calls() const { return calls_; }
    void Clear() { calls_.clear(); }

    // Told of each call as it is made, before the inner connection sees it.
    std::function<void(const RecordedCall&)> onCall;

    // One line for a call, as the server would have been sent it: the statement, or
    // `name 'text', 2026-...` for a procedure, or the transaction command.
    static std::string Describe(const RecordedCall& call);

private:
    void Record(RecordedCall call);

    ConnectionPtr inner_;
    std::vector<RecordedCall> calls_;
};

}  // namespace platform
