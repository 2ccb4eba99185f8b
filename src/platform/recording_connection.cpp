#include "platform/recording_connection.h"

#include <cstdio>

#include "platform/convert.h"

namespace platform {

namespace {

std::string DescribeParameter(const Value& value) {
    switch (value.kind()) {
        case Value::Kind::Empty:
        case Value::Kind::Null: return "NULL";
        case Value::Kind::Integer:
        case Value::Kind::Double: return ToText(value);
        case Value::Kind::Boolean: return value.AsBoolean() ? "1" : "0";
        case Value::Kind::Date: {
            // Always with the time, as the server's datetime literal has it.
            const DateParts p = SplitDate(value.AsDate());
            char text[32];
            std::snprintf(text, sizeof text, "'%04d-%02d-%02d %02d:%02d:%02d'", p.year, p.month, p.day, p.hour,
                          p.minute, p.second);
            return text;
        }
        case Value::Kind::Text: return "'" + Replace(value.AsText(), "'", "''") + "'";
    }
    return "NULL";
}

}  // namespace

RecordingConnection::RecordingConnection(ConnectionPtr inner) : inner_(std::move(inner)) {}

void RecordingConnection::Record(RecordedCall call) {
    calls_.push_back(std::move(call));
    if (onCall) onCall(calls_.back());
}

RecordsetPtr RecordingConnection::Execute(const std::string& sql) {
    Record({RecordedCall::Kind::Statement, sql, {}});
    return inner_->Execute(sql);
}

RecordsetPtr RecordingConnection::RunProcedure(const std::string& name, const ParameterList& parameters) {
    Record({RecordedCall::Kind::Procedure, name, parameters});
    return inner_->RunProcedure(name, parameters);
}

void RecordingConnection::BeginTrans() {
    Record({RecordedCall::Kind::Begin, {}, {}});
    inner_->BeginTrans();
}

void RecordingConnection::CommitTrans() {
    Record({RecordedCall::Kind::Commit, {}, {}});
    inner_->CommitTrans();
}

void RecordingConnection::RollbackTrans() {
    Record({RecordedCall::Kind::Rollback, {}, {}});
    inner_->RollbackTrans();
}

bool RecordingConnection::InTransaction() const { return inner_->InTransaction(); }

std::string RecordingConnection::Describe(const RecordedCall& call) {
    switch (call.kind) {
        case RecordedCall::Kind::Statement: return call.text;
        case RecordedCall::Kind::Procedure: {
            std::string text = call.text;
            for (std::size_t i = 0; i < call.parameters.size(); ++i)
                text += (i == 0 ? " " : ", ") + DescribeParameter(call.parameters[i].value);
            return text;
        }
        case RecordedCall::Kind::Begin: return "BEGIN TRANSACTION";
        case RecordedCall::Kind::Commit: return "COMMIT TRANSACTION";
        case RecordedCall::Kind::Rollback: return "ROLLBACK TRANSACTION";
    }
    return {};
}

}  // namespace platform
