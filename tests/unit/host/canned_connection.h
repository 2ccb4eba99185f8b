// A connection with no database behind it: each procedure answers with the results
// a test gave it, and every call is noted. For the host's services that only talk
// to procedures (printing, scheme choice).
#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/database.h"
#include "platform/runtime_error.h"

namespace host_test {

class CannedConnection : public platform::Connection {
public:
    platform::RecordsetPtr Execute(const std::string& sql) override {
        calls.push_back(sql);
        return std::make_shared<platform::Recordset>(std::vector<platform::ResultSet>{{}});
    }
    platform::RecordsetPtr RunProcedure(const std::string& name, const platform::ParameterList& parameters) override {
        calls.push_back(name);
        lastParameters = parameters;
        auto it = procedures.find(name);
        if (it == procedures.end())
            throw platform::RuntimeError(platform::err::DatabaseError,
                                         "Could not find stored procedure '" + name + "'.");
        return std::make_shared<platform::Recordset>(it->second);
    }
    void BeginTrans() override { inTransaction = true; }
    void CommitTrans() override { inTransaction = false; }
    void RollbackTrans() override { inTransaction = false; }
    bool InTransaction() const override { return inTransaction; }

    std::map<std::string, std::vector<platform::ResultSet>> procedures;
    std::vector<std::string> calls;
    platform::ParameterList lastParameters;
    bool inTransaction = false;
};

}  // namespace host_test
