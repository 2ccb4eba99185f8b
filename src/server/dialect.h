// The statements the screen sends are written in the dialect of the server it was
// built for. This translates that dialect, as far as the screen and the host use
// it, into SQLite. A statement it cannot read is refused with the server's syntax
// error; it never hands SQLite a guess.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/value.h"

namespace server {

// A call of a table function in a FROM clause, with its literal arguments.
struct TableFunctionCall {
    std::string name;  // as written, without the "dbo." owner
    std::vector<platform::Value> arguments;
};

// Answers the name of a table that holds the rows of the call. Called once for each
// call, in the order the calls stand in the statement.
using TableFunctionResolver = std::function<std::string(const TableFunctionCall&)>;

// The statements of a batch as written, cut at the semicolons that stand outside
// literals, names and comments. Empty statements are dropped.
std::vector<std::string> SplitBatch(const std::string& sql);

// Translates a statement (or a batch, whose statements come back joined by "; ").
// Without a resolver a table-function call is refused.
std::string TranslateStatement(const std::string& sql);
std::string TranslateStatement(const std::string& sql, const TableFunctionResolver& resolve);

}  // namespace server
