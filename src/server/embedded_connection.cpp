#include "server/embedded_connection.h"

#include "platform/runtime_error.h"
#include "server/dialect.h"
#include "server/procedure_context.h"
#include "server/table_function_tables.h"

namespace server {
namespace {

[[noreturn]] void ThrowServer(const std::string& message) {
    throw platform::RuntimeError(platform::err::DatabaseError, message);
}

}  // namespace

EmbeddedConnection::EmbeddedConnection(const std::string& path) : EmbeddedConnection(path, Options{}) {}

EmbeddedConnection::EmbeddedConnection(const std::string& path, const Options& options,
                                       const ProcedureRegistry& registry)
    : database_(path, DatabaseOptions{options.busyTimeoutMs, options.create}), registry_(&registry) {}

// One statement a call: text that closes the statement and opens another behind it
// is refused before anything runs, so a value spliced into a statement can at most
// break that statement.
platform::RecordsetPtr EmbeddedConnection::Execute(const std::string& sql) {
    const std::vector<std::string> statements = SplitBatch(sql);
    if (statements.size() > 1)
        ThrowServer("Only one statement may be run here; found more after: " + statements.front());
    std::vector<platform::ResultSet> results;
    for (const auto& statement : statements) results.push_back(RunStatement(statement));
    return std::make_shared<platform::Recordset>(std::move(results));
}

platform::ResultSet EmbeddedConnection::RunStatement(const std::string& statement) {
    // Each table-function call is run first and its rows put in a temporary table
    // that stands in the statement where the call stood; the tables go when the
    // statement is done.
    TableFunctionTables tables(*this);
    std::string translated =
        TranslateStatement(statement, [&](const TableFunctionCall& call) { return tables.Fill(call); });
    return database_.Run(translated);
}

platform::RecordsetPtr EmbeddedConnection::RunProcedure(const std::string& name,
                                                        const platform::ParameterList& parameters) {
    return std::make_shared<platform::Recordset>(CallProcedure(name, parameters));
}

std::vector<platform::ResultSet> EmbeddedConnection::CallProcedure(const std::string& name,
                                                                   const platform::ParameterList& parameters) {
    const Procedure* procedure = registry_->FindProcedure(name);
    if (!procedure) ThrowServer("Could not find stored procedure '" + name + "'.");
    ProcedureContext context(*this, name);
    return (*procedure)(context, parameters);
}

platform::ResultSet EmbeddedConnection::CallTableFunction(const std::string& name,
                                                          const std::vector<platform::Value>& arguments) {
    const TableFunction* function = registry_->FindTableFunction(name);
    if (!function) ThrowServer("Invalid object name '" + name + "'.");
    ProcedureContext context(*this, name);
    return (*function)(context, arguments);
}

void EmbeddedConnection::BeginTrans() {
    if (database_.InTransaction()) ThrowServer("Only one transaction can be active on this session.");
    database_.Run("BEGIN IMMEDIATE");
    begun_ = true;
}

void EmbeddedConnection::CommitTrans() {
    if (!database_.InTransaction()) {
        begun_ = false;
        ThrowServer("The COMMIT TRANSACTION request has no corresponding BEGIN TRANSACTION.");
    }
    database_.Run("COMMIT");
    begun_ = false;
}

void EmbeddedConnection::RollbackTrans() {
    if (!database_.InTransaction()) {
        // SQLite rolls a transaction back by itself after some failures (a full
        // disk, an I/O error). The caller's rollback then finds it already done.
        if (begun_) {
            begun_ = false;
            return;
        }
        ThrowServer("The ROLLBACK TRANSACTION request has no corresponding BEGIN TRANSACTION.");
    }
    database_.Run("ROLLBACK");
    begun_ = false;
}

bool EmbeddedConnection::InTransaction() const { return database_.InTransaction(); }

platform::ResultSet EmbeddedConnection::ExecuteNative(const std::string& sqliteSql) {
    return database_.RunAll(sqliteSql);
}

void EmbeddedConnection::ExecuteScript(const std::string& script) { database_.Exec(script); }

}  // namespace server
