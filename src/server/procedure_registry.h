// The server's stored procedures and table functions, written in C++ over the
// embedded database. A name is found without regard to case or to the "dbo."
// owner, as the server found it.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/database.h"

namespace server {

class ProcedureContext;

// A procedure answers with the results it sends, in order. One that writes and then
// reads starts with the empty row-count result, as the server did
// (ProcedureContext::WithRowCount).
using Procedure = std::function<std::vector<platform::ResultSet>(ProcedureContext&, const platform::ParameterList&)>;
// A table function answers with its rows; a statement reads them as a table.
using TableFunction =
    std::function<platform::ResultSet(ProcedureContext&, const std::vector<platform::Value>& arguments)>;

class ProcedureRegistry {
public:
    // A name registered twice is a fault of the program and raises std::logic_error.
    void RegisterProcedure(std::string name, Procedure procedure);
    void RegisterTableFunction(std::string name, TableFunction function);

    const Procedure* FindProcedure(std::string_view name) const;
    const TableFunction* FindTableFunction(std::string_view name) const;

    std::vector<std::string> ProcedureNames() const;
    std::vector<std::string> TableFunctionNames() const;

private:
    template <class Fn>
    struct Entry {
        std::string name;  // as registered
        Fn function;
    };
    std::map<std::string, Entry<Procedure>> procedures_;
    std::map<std::string, Entry<TableFunction>> tableFunctions_;
};

// "dbo.Sp_X", "[dbo].[sp_x]" and "SP_X" are one name: "sp_x".
std::string CanonicalObjectName(std::string_view name);

// The registry every connection uses unless it is given another. It is filled on
// first use by RegisterServerObjects (server_objects.h).
ProcedureRegistry& DefaultRegistry();

}  // namespace server
