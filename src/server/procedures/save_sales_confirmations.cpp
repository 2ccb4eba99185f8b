// What a dispatch made from sales confirmations does to them: their lines' pending
// quantities go down by what was dispatched, and each confirmation is closed and
// points at the dispatch's document number.
#include <string>
#include <vector>

#include "platform/convert.h"
#include "server/procedure_arguments.h"
#include "server/procedure_context.h"
#include "server/procedure_savepoint.h"
#include "server/procedures/save_checks.h"
#include "server/procedures/save_procedures.h"

namespace server::save {

namespace {

constexpr long long kClosed = 128;

// "12, 14,15" as numbers; blanks between commas are passed over.
std::vector<platform::Value> ConfirmationNumbers(const std::string& list) {
    std::vector<platform::Value> numbers;
    for (const std::string& element : platform::Split(list, ",")) {
        const std::string text = platform::Trim(element);
        if (text.empty()) continue;
        if (text.find_first_not_of("0123456789") != std::string::npos || text.size() > 9)
            Refuse("'" + text + "' is not a sales confirmation number.");
        numbers.emplace_back(static_cast<long long>(std::stoll(text)));
    }
    return numbers;
}

void RequireConfirmation(ProcedureContext& context, long long soNumber) {
    if (context.Scalar("SELECT 1 FROM SOAbstract WHERE SONumber = ?", {soNumber}).IsNull())
        Refuse("Sales confirmation " + std::to_string(soNumber) + " does not exist.");
}

std::string Placeholders(std::size_t count) {
    std::string text;
    for (std::size_t i = 0; i < count; ++i) text += i ? ", ?" : "?";
    return text;
}

}  // namespace

// (item, quantity in base units, comma list of SONumbers, free): lowers the pending
// quantity of the item's lines in those confirmations, line by line in the order they
// were entered, each to no less than 0. Free lines (price 0) are lowered for free
// goods, priced lines for the rest. Answers the row count.
std::vector<platform::ResultSet> UpdateSOPending(ProcedureContext& context, const platform::ParameterList& parameters) {
    const ProcedureArguments args("sp_update_sopending", parameters, {"@ItemCode", "@Quantity", "@SONumbers", "@Free"});
    args.ExpectAtMost(4);
    RequireSupplied(args, 4);
    const std::string item = platform::Trim(args.TextOr(0, ""));
    const double quantity = args.FloatOr(1, 0);
    if (quantity < 0) Refuse("The dispatched quantity of item '" + item + "' cannot be negative.");
    std::vector<platform::Value> bind = ConfirmationNumbers(args.TextOr(2, ""));
    const bool free = args.IntOr(3, 0) == 1;
    if (bind.empty() || quantity == 0) return {ProcedureContext::RowCountMessage(0)};

    const std::size_t confirmations = bind.size();
    bind.push_back(item);
    const platform::ResultSet lines =
        context.Query("SELECT SOLineID, Pending FROM SODetail WHERE SONumber IN (" + Placeholders(confirmations) +
                          ") AND Product_Code = ? AND Pending > 0 AND " + (free ? "SalePrice = 0" : "SalePrice <> 0") +
                          " ORDER BY SOLineID",
                      bind);

    ProcedureSavepoint savepoint(context, "update_so_pending");
    double left = quantity;
    for (const auto& line : lines.rows) {
        if (left <= 0) break;
        const double pending = platform::ToNumber(line[1]);
        // A line whose pending is all dispatched goes to exactly 0.
        if (left >= pending)
            context.Run("UPDATE SODetail SET Pending = 0 WHERE SOLineID = ?", {line[0]});
        else
            context.Run("UPDATE SODetail SET Pending = Pending - ? WHERE SOLineID = ?", {left, line[0]});
        left -= pending;
    }
    savepoint.Keep();
    return {ProcedureContext::RowCountMessage(context.RowsChanged())};
}

// (SONumber): the confirmation is closed; nothing more is dispatched from it.
std::vector<platform::ResultSet> CloseSO(ProcedureContext& context, const platform::ParameterList& parameters) {
    const ProcedureArguments args("sp_close_so", parameters, {"@SONumber"});
    args.ExpectAtMost(1);
    RequireSupplied(args, 1);
    const long long soNumber = RequiredInt(args.Int(0), "sales confirmation number");
    RequireConfirmation(context, soNumber);
    context.Run("UPDATE SOAbstract SET Status = Status | ? WHERE SONumber = ?", {kClosed, soNumber});
    return {ProcedureContext::RowCountMessage(context.RowsChanged())};
}

// (SONumber, DocumentID): the confirmation points at the dispatch made from it.
std::vector<platform::ResultSet> UpdateSORefNumber(ProcedureContext& context,
                                                   const platform::ParameterList& parameters) {
    const ProcedureArguments args("sp_update_soRefNumber", parameters, {"@SONumber", "@DispatchDocID"});
    args.ExpectAtMost(2);
    RequireSupplied(args, 2);
    const long long soNumber = RequiredInt(args.Int(0), "sales confirmation number");
    const long long documentID = RequiredInt(args.Int(1), "dispatch document number");
    RequireConfirmation(context, soNumber);
    context.Run("UPDATE SOAbstract SET DispatchDocID = ? WHERE SONumber = ?", {documentID, soNumber});
    return {ProcedureContext::RowCountMessage(context.RowsChanged())};
}

}  // namespace server::save
