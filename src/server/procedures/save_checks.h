// What the save's procedures refuse before they write anything: a call that names a
// note, customer, item or unit the database does not hold, or a value no note can
// carry. A refusal is the server's error, so the screen's handler rolls the note back
// and logs the reason.
#pragma once

#include <cstddef>
#include <string>

#include "platform/value.h"

namespace server {
class ProcedureContext;
class ProcedureArguments;
}  // namespace server

namespace server::save {

[[noreturn]] void Refuse(const std::string& message);

// The server's refusal of a call that leaves out a parameter declared without a
// default: the first `count` must be there.
void RequireSupplied(const ProcedureArguments& args, std::size_t count);

// The Status of the note; refuses an unknown note.
long long RequireDispatch(ProcedureContext& context, long long dispatchID);
void RequireCustomer(ProcedureContext& context, const std::string& customerID);
void RequireItem(ProcedureContext& context, const std::string& itemCode);
void RequireUnit(ProcedureContext& context, long long unit);

// A number the caller must send; Null is refused with the parameter's name.
long long RequiredInt(const platform::Value& value, const std::string& what);
double RequiredFloat(const platform::Value& value, const std::string& what);

}  // namespace server::save
