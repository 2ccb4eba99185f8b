// A connection that fails chosen calls on purpose, so that tests can watch a routine
// meet a server error at any step: the n-th call from now, or every call of a
// statement or procedure. A failed call never reaches the inner connection.
// Rollbacks are never failed: a failed rollback would hide the fault under test.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "platform/database.h"

namespace platform {

struct RecordedCall;

class FaultInjectingConnection : public Connection {
public:
    explicit FaultInjectingConnection(ConnectionPtr inner);

    RecordsetPtr Execute(const std::string& sql) override;
    RecordsetPtr RunProcedure(const std::string& name, const ParameterList& parameters) override;
    void BeginTrans() override;
    void CommitTrans() override;
    void RollbackTrans() override;
    bool InTransaction() const override;

    // The n-th Execute, RunProcedure, BeginTrans or CommitTrans counted from now
    // (1 is the next one) fails with a database error.
    void FailNthCall(int n);
    // Every statement containing the fragment, and every procedure of that name,
    // fails; case is ignored. An empty fragment is refused.
    void FailMatching(std::string fragment);
    // The procedure of that name runs as usual, and its answer comes back with its
    // fields and no row; case is ignored.
    void AnswerWithoutRows(std::string procedure);
    // The procedure of that name runs as usual, and its answer is lost on the way:
    // the caller gets no recordset at all; case is ignored.
    void AnswerWithNothing(std::string procedure);
    void ClearFaults();
    // Calls that could fail (all but rollbacks) since construction or ClearFaults.
    int CallCount() const { return callCount_; }

private:
    // Counts the call and throws when it is one of those chosen to fail.
    void CountAndMaybeFail(const RecordedCall& call, bool matches);
    bool MatchesStatement(const std::string& sql) const;
    bool MatchesProcedure(const std::string& name) const;

    ConnectionPtr inner_;
    int callCount_ = 0;
    std::set<int> failingCalls_;
    std::vector<std::string> fragments_;
    std::set<std::string> emptyAnswers_;
    std::set<std::string> lostAnswers_;
};

}  // namespace platform
