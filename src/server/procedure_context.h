// What a stored procedure or table function gets to work with: the connection's
// SQLite database, through small helpers that bind values and materialise rows.
// The SQL given here is SQLite's own, not the server's dialect.
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include <sqlite3.h>

#include "platform/database.h"

namespace server {

class EmbeddedConnection;

class ProcedureContext {
public:
    ProcedureContext(EmbeddedConnection& connection, std::string objectName);

    // The name the object was called by.
    const std::string& ObjectName() const { return objectName_; }

    // Runs a query; "?" parameters take the values in order.
    platform::ResultSet Query(const std::string& sqliteSql, std::initializer_list<platform::Value> bind = {});
    platform::ResultSet Query(const std::string& sqliteSql, const std::vector<platform::Value>& bind);
    // Runs a change; answers the rows it changed.
    long Run(const std::string& sqliteSql, std::initializer_list<platform::Value> bind = {});
    long Run(const std::string& sqliteSql, const std::vector<platform::Value>& bind);
    // The first field of the first row; Null when there is no row.
    platform::Value Scalar(const std::string& sqliteSql, std::initializer_list<platform::Value> bind = {});
    platform::Value Scalar(const std::string& sqliteSql, const std::vector<platform::Value>& bind);

    long long LastInsertId() const;
    // Rows changed through this context so far.
    long RowsChanged() const;

    // The server answered a procedure that wrote before it read with an empty
    // result first, the row-count message, and the screen steps past it with
    // NextRecordset. This puts that result ahead of the real one.
    std::vector<platform::ResultSet> WithRowCount(platform::ResultSet result) const;
    static platform::ResultSet RowCountMessage(long rows);

    // Another server object, as one procedure called another on the server.
    std::vector<platform::ResultSet> CallProcedure(const std::string& name, const platform::ParameterList& parameters);
    platform::ResultSet CallTableFunction(const std::string& name, const std::vector<platform::Value>& arguments);

    sqlite3* Handle() const;

private:
    EmbeddedConnection& connection_;
    std::string objectName_;
    long long changesAtStart_;
};

}  // namespace server
