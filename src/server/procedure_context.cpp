#include "server/procedure_context.h"

#include "server/embedded_connection.h"

namespace server {

ProcedureContext::ProcedureContext(EmbeddedConnection& connection, std::string objectName)
    : connection_(connection),
      objectName_(std::move(objectName)),
      changesAtStart_(connection.Database().TotalChanges()) {}

platform::ResultSet ProcedureContext::Query(const std::string& sqliteSql, std::initializer_list<platform::Value> bind) {
    return Query(sqliteSql, std::vector<platform::Value>(bind));
}

platform::ResultSet ProcedureContext::Query(const std::string& sqliteSql, const std::vector<platform::Value>& bind) {
    return connection_.Database().Run(sqliteSql, bind);
}

long ProcedureContext::Run(const std::string& sqliteSql, std::initializer_list<platform::Value> bind) {
    return Run(sqliteSql, std::vector<platform::Value>(bind));
}

long ProcedureContext::Run(const std::string& sqliteSql, const std::vector<platform::Value>& bind) {
    platform::ResultSet result = connection_.Database().Run(sqliteSql, bind);
    return result.rowsAffected < 0 ? 0 : result.rowsAffected;
}

platform::Value ProcedureContext::Scalar(const std::string& sqliteSql, std::initializer_list<platform::Value> bind) {
    return Scalar(sqliteSql, std::vector<platform::Value>(bind));
}

platform::Value ProcedureContext::Scalar(const std::string& sqliteSql, const std::vector<platform::Value>& bind) {
    platform::ResultSet result = connection_.Database().Run(sqliteSql, bind);
    if (result.rows.empty() || result.rows.front().empty()) return platform::Value::Null();
    return result.rows.front().front();
}

long long ProcedureContext::LastInsertId() const { return connection_.Database().LastInsertId(); }

long ProcedureContext::RowsChanged() const {
    return static_cast<long>(connection_.Database().TotalChanges() - changesAtStart_);
}

std::vector<platform::ResultSet> ProcedureContext::WithRowCount(platform::ResultSet result) const {
    return {RowCountMessage(RowsChanged()), std::move(result)};
}

platform::ResultSet ProcedureContext::RowCountMessage(long rows) {
    platform::ResultSet message;
    message.rowsAffected = rows;
    return message;
}

std::vector<platform::ResultSet> ProcedureContext::CallProcedure(const std::string& name,
                                                                 const platform::ParameterList& parameters) {
    return connection_.CallProcedure(name, parameters);
}

platform::ResultSet ProcedureContext::CallTableFunction(const std::string& name,
                                                        const std::vector<platform::Value>& arguments) {
    return connection_.CallTableFunction(name, arguments);
}

sqlite3* ProcedureContext::Handle() const { return connection_.Database().Handle(); }

}  // namespace server
