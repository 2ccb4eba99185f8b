// The rows of table-function calls, held in temporary tables for the one statement
// that reads them, and dropped when it is done.
#pragma once

#include <string>
#include <vector>

#include "server/dialect.h"

namespace server {

class EmbeddedConnection;

class TableFunctionTables {
public:
    explicit TableFunctionTables(EmbeddedConnection& connection);
    ~TableFunctionTables();
    TableFunctionTables(const TableFunctionTables&) = delete;
    TableFunctionTables& operator=(const TableFunctionTables&) = delete;

    // Runs the function and answers the name of the table that holds its rows. The
    // names are the same for the same statement, so its prepared form can be kept.
    std::string Fill(const TableFunctionCall& call);

private:
    EmbeddedConnection& connection_;
    std::vector<std::string> tables_;
};

}  // namespace server
