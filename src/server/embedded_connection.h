// The connection the screen talks to, over one SQLite database file: statements in
// the server's dialect are translated and run, stored procedures and table functions
// come from the registry, and the transaction calls keep the server's rules.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/database.h"
#include "server/procedure_registry.h"
#include "server/sqlite_database.h"

namespace server {

class EmbeddedConnection : public platform::Connection {
public:
    struct Options {
        int busyTimeoutMs = 5000;
        bool create = false;  // make the file; only the database files module asks for it
    };

    // The registry must outlive the connection; the default one lives for the process.
    explicit EmbeddedConnection(const std::string& path);
    EmbeddedConnection(const std::string& path, const Options& options,
                       const ProcedureRegistry& registry = DefaultRegistry());

    // One statement or several separated by ";": one result for each, a query's rows
    // or an empty result with rowsAffected.
    platform::RecordsetPtr Execute(const std::string& sql) override;
    platform::RecordsetPtr RunProcedure(const std::string& name, const platform::ParameterList& parameters) override;

    // BEGIN IMMEDIATE: the write lock is taken at once, so two clerks saving against
    // the same stock cannot both read the last units before either writes.
    void BeginTrans() override;
    void CommitTrans() override;
    void RollbackTrans() override;
    bool InTransaction() const override;

    // SQLite's own SQL, untranslated. With several statements the result is the
    // last one that had columns.
    platform::ResultSet ExecuteNative(const std::string& sqliteSql);
    // A script of SQLite statements with no results (schema, data).
    void ExecuteScript(const std::string& script);

    std::vector<platform::ResultSet> CallProcedure(const std::string& name, const platform::ParameterList& parameters);
    platform::ResultSet CallTableFunction(const std::string& name, const std::vector<platform::Value>& arguments);

    SqliteDatabase& Database() { return database_; }
    const ProcedureRegistry& Registry() const { return *registry_; }
    const std::string& Path() const { return database_.Path(); }

private:
    platform::ResultSet RunStatement(const std::string& statement);

    SqliteDatabase database_;
    const ProcedureRegistry* registry_;
    bool begun_ = false;  // BeginTrans was called and neither Commit nor Rollback since
};

}  // namespace server
