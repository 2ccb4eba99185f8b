#include "server/procedures/save_checks.h"

#include "platform/convert.h"
#include "platform/runtime_error.h"
#include "server/procedure_arguments.h"
#include "server/procedure_context.h"

namespace server::save {

void Refuse(const std::string& message) { throw platform::RuntimeError(platform::err::DatabaseError, message); }

void RequireSupplied(const ProcedureArguments& args, std::size_t count) {
    // Asking for the first missing one raises the server's message, with its name.
    if (args.Count() < count) args.Text(args.Count());
}

long long RequireDispatch(ProcedureContext& context, long long dispatchID) {
    const platform::Value status =
        context.Scalar("SELECT Status FROM DispatchAbstract WHERE DispatchID = ?", {dispatchID});
    if (status.IsNull()) Refuse("Dispatch " + std::to_string(dispatchID) + " does not exist.");
    return status.AsInteger();
}

void RequireCustomer(ProcedureContext& context, const std::string& customerID) {
    if (context.Scalar("SELECT 1 FROM Customer WHERE CustomerID = ?", {customerID}).IsNull())
        Refuse("Customer '" + customerID + "' does not exist.");
}

void RequireItem(ProcedureContext& context, const std::string& itemCode) {
    if (context.Scalar("SELECT 1 FROM Items WHERE Product_Code = ?", {itemCode}).IsNull())
        Refuse("Item '" + itemCode + "' does not exist.");
}

void RequireUnit(ProcedureContext& context, long long unit) {
    if (context.Scalar("SELECT 1 FROM UOM WHERE UOM = ?", {unit}).IsNull())
        Refuse("Unit of measure " + std::to_string(unit) + " does not exist.");
}

long long RequiredInt(const platform::Value& value, const std::string& what) {
    if (value.IsNull()) Refuse("The " + what + " is missing.");
    return value.AsInteger();
}

double RequiredFloat(const platform::Value& value, const std::string& what) {
    if (value.IsNull()) Refuse("The " + what + " is missing.");
    return platform::ToNumber(value);
}

}  // namespace server::save
