#include "platform/fault_connection.h"

#include "platform/convert.h"
#include "platform/recording_connection.h"
#include "platform/runtime_error.h"

namespace platform {

FaultInjectingConnection::FaultInjectingConnection(ConnectionPtr inner) : inner_(std::move(inner)) {}

void FaultInjectingConnection::FailNthCall(int n) {
    if (n < 1) throw RuntimeError(err::InvalidCall);
    failingCalls_.insert(callCount_ + n);
}

void FaultInjectingConnection::FailMatching(std::string fragment) {
    // An empty fragment would be found in every statement.
    if (fragment.empty()) throw RuntimeError(err::InvalidCall);
    fragments_.push_back(UCase(fragment));
}

void FaultInjectingConnection::AnswerWithoutRows(std::string procedure) {
    if (procedure.empty()) throw RuntimeError(err::InvalidCall);
    emptyAnswers_.insert(UCase(procedure));
}

void FaultInjectingConnection::AnswerWithNothing(std::string procedure) {
    if (procedure.empty()) throw RuntimeError(err::InvalidCall);
    lostAnswers_.insert(UCase(procedure));
}

void FaultInjectingConnection::ClearFaults() {
    failingCalls_.clear();
    fragments_.clear();
    emptyAnswers_.clear();
    lostAnswers_.clear();
    callCount_ = 0;
}

bool FaultInjectingConnection::MatchesStatement(const std::string& sql) const {
    const std::string upper = UCase(sql);
    for (const std::string& fragment : fragments_)
        if (upper.find(fragment) != std::string::npos) return true;
    return false;
}

bool FaultInjectingConnection::MatchesProcedure(const std::string& name) const {
    const std::string upper = UCase(name);
    for (const std::string& fragment : fragments_)
        if (upper == fragment) return true;
    return false;
}

void FaultInjectingConnection::CountAndMaybeFail(const RecordedCall& call, bool matches) {
    const int number = ++callCount_;
    if (matches || failingCalls_.erase(number) > 0)
        throw RuntimeError(err::DatabaseError, "Injected failure of call " + std::to_string(number) + ": " +
                                                   RecordingConnection::Describe(call));
}

RecordsetPtr FaultInjectingConnection::Execute(const std::string& sql) {
    CountAndMaybeFail({RecordedCall::Kind::Statement, sql, {}}, MatchesStatement(sql));
    return inner_->Execute(sql);
}

RecordsetPtr FaultInjectingConnection::RunProcedure(const std::string& name, const ParameterList& parameters) {
    CountAndMaybeFail({RecordedCall::Kind::Procedure, name, parameters}, MatchesProcedure(name));
    RecordsetPtr answer = inner_->RunProcedure(name, parameters);
    if (lostAnswers_.count(UCase(name)) > 0) return nullptr;
    if (!answer || emptyAnswers_.count(UCase(name)) == 0) return answer;
    // The same results with their fields, every row taken out.
    std::vector<ResultSet> emptied;
    do {
        ResultSet result = answer->Current();
        result.rows.clear();
        emptied.push_back(std::move(result));
    } while (answer->NextRecordset());
    return std::make_shared<Recordset>(std::move(emptied));
}

void FaultInjectingConnection::BeginTrans() {
    CountAndMaybeFail({RecordedCall::Kind::Begin, {}, {}}, false);
    inner_->BeginTrans();
}

void FaultInjectingConnection::CommitTrans() {
    CountAndMaybeFail({RecordedCall::Kind::Commit, {}, {}}, false);
    inner_->CommitTrans();
}

void FaultInjectingConnection::RollbackTrans() { inner_->RollbackTrans(); }

bool FaultInjectingConnection::InTransaction() const { return inner_->InTransaction(); }

}  // namespace platform
