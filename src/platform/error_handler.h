// The one handler every routine of the screen runs under: run the body; on a
// run-time error, log prefix + description with its number and leave the routine
// with its result as it stood. No retries, no unwinding of screen state; the one
// exception is an open transaction, which a routine may ask to have rolled back.
#pragma once

#include <exception>
#include <string>
#include <string_view>

#include "platform/runtime_error.h"

namespace platform {

class Connection;

// Where the handler sends what went wrong: the host's central error log.
class ErrorLog {
public:
    virtual ~ErrorLog() = default;
    virtual void ReportError(const std::string& description, long number) = 0;
};

// What the handler does with an exception that is not a run-time error: a fault of
// the program itself, such as a std::logic_error or an index out of range.
enum class FaultPolicy {
    Log,    // logged as an internal error and the screen goes on, as the runtime did
    Abort,  // the process stops at once and names the exception, so no test passes over it
};

// Abort in a build made with DISPATCH_STRICT_FAULTS (the test builds), Log otherwise.
FaultPolicy CurrentFaultPolicy();
// Puts another policy in force and returns the one it replaced.
FaultPolicy SetFaultPolicy(FaultPolicy policy);

namespace detail {
void ReportCaught(ErrorLog& log, std::string_view prefix, std::exception_ptr error);
void RollBackOpenTransaction(Connection& connection, bool& bInTransaction);
}  // namespace detail

// Runs body; true when it ran to its end, false when an error was logged.
template <class Body>
bool RunHandled(ErrorLog& log, std::string_view prefix, Body&& body) {
    try {
        body();
        return true;
    } catch (...) {
        detail::ReportCaught(log, prefix, std::current_exception());
        return false;
    }
}

// As RunHandled; when the error strikes with bInTransaction set, the transaction is
// rolled back (and the flag cleared) before the error is logged.
template <class Body>
bool RunHandledInTransaction(ErrorLog& log, std::string_view prefix, Connection& connection, bool& bInTransaction,
                             Body&& body) {
    try {
        body();
        return true;
    } catch (...) {
        auto error = std::current_exception();
        if (bInTransaction) detail::RollBackOpenTransaction(connection, bInTransaction);
        detail::ReportCaught(log, prefix, error);
        return false;
    }
}

}  // namespace platform
