#include "server/table_function_tables.h"

#include "platform/runtime_error.h"
#include "server/embedded_connection.h"

namespace server {
namespace {

std::string QuotedName(const std::string& name) {
    std::string out = "\"";
    for (char c : name) {
        out += c;
        if (c == '"') out += '"';
    }
    return out + "\"";
}

// A column's declared type, so that dates and bits read back as they went in.
const char* DeclaredType(const platform::ResultSet& rows, std::size_t column) {
    for (const auto& row : rows.rows) {
        if (column >= row.size()) continue;
        switch (row[column].kind()) {
            case platform::Value::Kind::Date: return " DATETIME";
            case platform::Value::Kind::Boolean: return " BIT";
            case platform::Value::Kind::Null:
            case platform::Value::Kind::Empty: continue;
            default: return "";
        }
    }
    return "";
}

}  // namespace

TableFunctionTables::TableFunctionTables(EmbeddedConnection& connection) : connection_(connection) {}

TableFunctionTables::~TableFunctionTables() {
    for (const auto& table : tables_) {
        try {
            connection_.ExecuteScript("DROP TABLE IF EXISTS temp." + QuotedName(table));
        } catch (...) {
            // Left for the next statement that needs the name, which drops it first.
        }
    }
}

std::string TableFunctionTables::Fill(const TableFunctionCall& call) {
    platform::ResultSet rows = connection_.CallTableFunction(call.name, call.arguments);
    if (rows.columns.empty())
        throw platform::RuntimeError(platform::err::DatabaseError,
                                     "The table function '" + call.name + "' answered no columns.");

    std::string table = "tf_" + std::to_string(tables_.size() + 1);
    const std::string target = "temp." + QuotedName(table);
    std::string create = "DROP TABLE IF EXISTS " + target + "; CREATE TEMP TABLE " + QuotedName(table) + " (";
    std::string insert = "INSERT INTO " + target + " VALUES (";
    for (std::size_t c = 0; c < rows.columns.size(); ++c) {
        create += (c ? ", " : "") + QuotedName(rows.columns[c]) + DeclaredType(rows, c);
        insert += c ? ", ?" : "?";
    }
    connection_.ExecuteScript(create + ")");
    tables_.push_back(table);

    for (auto& row : rows.rows) {
        if (row.size() != rows.columns.size())
            throw platform::RuntimeError(platform::err::DatabaseError,
                                         "The table function '" + call.name + "' answered a row of the wrong width.");
        connection_.Database().Run(insert + ")", row);
    }
    return table;
}

}  // namespace server
