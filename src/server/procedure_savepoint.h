// A procedure that writes several rows keeps them together: either all of its
// writes stand or none do, whether or not the caller has a transaction open. Inside
// the caller's transaction the savepoint nests in it; outside one it is the
// transaction.
#pragma once

#include <string>

namespace server {

class ProcedureContext;

class ProcedureSavepoint {
public:
    // name: an identifier of letters, digits and underscores.
    ProcedureSavepoint(ProcedureContext& context, std::string name);
    // Without Keep, everything written since the savepoint is undone.
    ~ProcedureSavepoint();
    ProcedureSavepoint(const ProcedureSavepoint&) = delete;
    ProcedureSavepoint& operator=(const ProcedureSavepoint&) = delete;

    void Keep();

private:
    ProcedureContext& context_;
    std::string name_;
    bool open_ = true;
};

}  // namespace server
