// An in-memory connection for the platform's tests: it answers every call with a
// canned result set, logs what reached it, and keeps a transaction flag.
#pragma once

#include <string>
#include <vector>

#include "platform/database.h"

namespace platform::testing {

class FakeConnection : public Connection {
public:
    RecordsetPtr Execute(const std::string& sql) override {
        reached.push_back(sql);
        return Answer();
    }
    RecordsetPtr RunProcedure(const std::string& name, const ParameterList& parameters) override {
        reached.push_back(name);
        lastParameters = parameters;
        return Answer();
    }
    void BeginTrans() override {
        reached.push_back("begin");
        inTransaction = true;
    }
    void CommitTrans() override {
        reached.push_back("commit");
        inTransaction = false;
    }
    void RollbackTrans() override {
        reached.push_back("rollback");
        inTransaction = false;
    }
    bool InTransaction() const override { return inTransaction; }

    std::vector<std::string> reached;  // statements, procedure names, begin/commit/rollback
    ParameterList lastParameters;
    bool inTransaction = false;
    ResultSet answer{{"answer"}, {{Value(1)}}};

private:
    RecordsetPtr Answer() const { return std::make_shared<Recordset>(std::vector<ResultSet>{answer}); }
};

}  // namespace platform::testing
