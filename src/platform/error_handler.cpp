#include "platform/error_handler.h"

#include <string>

#include "platform/database.h"

namespace platform {
namespace detail {

void ReportCaught(ErrorLog& log, std::string_view prefix, std::exception_ptr error) {
    std::string text(prefix);
    long number = err::InternalError;
    try {
        std::rethrow_exception(error);
    } catch (const RuntimeError& e) {
        number = e.Number();
        text += e.Description();
    } catch (const std::exception& e) {
        // Not one of the runtime's errors: a fault of the program itself. It is
        // logged the same way so that the screen carries on as the runtime did.
        text += StandardDescription(err::InternalError) + ": " + e.what();
    }
    log.ReportError(text, number);
}

void RollBackOpenTransaction(Connection& connection, bool& bInTransaction) {
    bInTransaction = false;
    try {
        connection.RollbackTrans();
    } catch (...) {
        // The error that brought us here is the one to report.
    }
}

}  // namespace detail
}  // namespace platform
