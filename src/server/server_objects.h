// The catalogue of the server's stored procedures and table functions.
//
// Each group of server objects lives in its own source file with one function
// that registers its members, e.g.
//
//     void RegisterListProcedures(ProcedureRegistry& registry) {
//         registry.RegisterProcedure("sp_get_allSOabstract", &GetAllSoAbstract);
//         ...
//     }
//
// and that function is called from RegisterServerObjects. The list is explicit on
// purpose: a registrar object that nobody references is silently left out of a
// static library by the linker, and the first sign of it would be "Could not find
// stored procedure" at run time in one program but not in another. A call here is
// kept by every link, and the registry is filled once, on first use, in a fixed order.
#pragma once

namespace server {

class ProcedureRegistry;

void RegisterServerObjects(ProcedureRegistry& registry);

}  // namespace server
