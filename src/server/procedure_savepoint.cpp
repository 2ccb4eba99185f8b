#include "server/procedure_savepoint.h"

#include "server/procedure_context.h"

namespace server {

ProcedureSavepoint::ProcedureSavepoint(ProcedureContext& context, std::string name)
    : context_(context), name_(std::move(name)) {
    context_.Run("SAVEPOINT " + name_);
}

ProcedureSavepoint::~ProcedureSavepoint() {
    if (!open_) return;
    try {
        context_.Run("ROLLBACK TO " + name_);
        context_.Run("RELEASE " + name_);
    } catch (...) {
        // SQLite may already have rolled the whole transaction back (a full disk, an
        // I/O error), taking the savepoint with it; the error that brought us here is
        // the one the caller sees.
    }
}

void ProcedureSavepoint::Keep() {
    context_.Run("RELEASE " + name_);
    open_ = false;
}

}  // namespace server
