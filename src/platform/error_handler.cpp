#include "platform/error_handler.h"

#include <cxxabi.h>

#include <atomic>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>
#include <typeinfo>

#include "platform/database.h"

namespace platform {
namespace {

std::atomic<FaultPolicy> faultPolicy{
#ifdef DISPATCH_STRICT_FAULTS
    FaultPolicy::Abort
#else
    FaultPolicy::Log
#endif
};

// The readable name of the exception being handled, whatever its type.
std::string CaughtTypeName() {
    const std::type_info* type = abi::__cxa_current_exception_type();
    if (type == nullptr) return "an unknown exception";
    int status = 0;
    std::unique_ptr<char, void (*)(void*)> readable(abi::__cxa_demangle(type->name(), nullptr, nullptr, &status),
                                                    std::free);
    return status == 0 && readable ? readable.get() : type->name();
}

// Under the strict policy a program fault ends the process here, before anything
// is logged, so that the fault cannot pass for an error the screen deals with.
void StopOnProgramFault(std::string_view prefix, std::string_view what) {
    if (faultPolicy.load() != FaultPolicy::Abort) return;
    std::cerr << "program fault: " << CaughtTypeName() << " reached the error handler";
    if (!prefix.empty()) std::cerr << " of \"" << prefix << '"';
    if (!what.empty()) std::cerr << ": " << what;
    std::cerr << std::endl;
    std::abort();
}

}  // namespace

FaultPolicy CurrentFaultPolicy() { return faultPolicy.load(); }

FaultPolicy SetFaultPolicy(FaultPolicy policy) { return faultPolicy.exchange(policy); }

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
        StopOnProgramFault(prefix, e.what());
        text += StandardDescription(err::InternalError) + ": " + e.what();
    } catch (...) {
        StopOnProgramFault(prefix, {});
        text += StandardDescription(err::InternalError);
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
