// The lines of sales confirmations that a note is filled from, with what each still
// waits for, and the ladder form the screen's line reads that figure in.
#include <cmath>

#include "platform/convert.h"
#include "platform/runtime_error.h"
#include "server/procedure_arguments.h"
#include "server/procedure_context.h"
#include "server/procedures/loading_procedures.h"

namespace server::loading {

namespace {

// The list is the server's split of the text: every element must read as a
// confirmation number, as the server's conversion to int demanded; blank elements
// (a trailing comma) are passed over.
std::vector<platform::Value> ConfirmationNumbers(const std::string& list) {
    std::vector<platform::Value> numbers;
    for (const std::string& element : platform::Split(list, ",")) {
        const std::string number = platform::Trim(element);
        if (number.empty()) continue;
        const bool whole =
            platform::IsNumericText(number) && number.find_first_not_of("+-0123456789") == std::string::npos;
        if (!whole)
            throw platform::RuntimeError(
                platform::err::DatabaseError,
                "Conversion failed when converting the varchar value '" + number + "' to data type int.");
        numbers.emplace_back(static_cast<long long>(platform::ToNumber(platform::Value(number))));
    }
    return numbers;
}

std::string Placeholders(std::size_t count) {
    std::string marks;
    for (std::size_t i = 0; i < count; ++i) marks += i ? ",?" : "?";
    return marks;
}

}  // namespace

std::string GetQtyAsMultiple(ProcedureContext& context, const std::string& itemCode, double quantity) {
    if (quantity <= 0) return {};
    const platform::ResultSet ladder =
        context.Query("SELECT IFNULL(UOM1_Conversion, 0), IFNULL(UOM2_Conversion, 0) FROM Items WHERE Product_Code = ?",
                      {platform::Value(itemCode)});
    std::vector<double> rates;  // largest unit first, the base unit last
    if (!ladder.rows.empty()) {
        const double second = platform::ToNumber(ladder.rows[0][0]);
        const double third = platform::ToNumber(ladder.rows[0][1]);
        if (third > 0) rates.push_back(third);
        if (second > 0) rates.push_back(second);
    }
    if (rates.empty()) return platform::NumberToText(quantity);
    std::string parts;
    double left = quantity;
    for (double rate : rates) {
        const double whole = std::floor(left / rate + 1e-9);
        parts += platform::NumberToText(whole) + "*";
        left -= whole * rate;
    }
    return parts + platform::NumberToText(std::abs(left) < 1e-9 ? 0 : left);
}

// (confirmation numbers, a comma list): one row an item, batch and price of the
// listed confirmations, in the order the lines were taken. The pending quantity is
// given in ladder form (empty when nothing is left), in the item's sales unit, the
// unit the stock procedures price in, and in base units. An item that has left the
// master still comes, counted in its line's unit at rate 1.
Answers SODetailForDispatch(ProcedureContext& context, const platform::ParameterList& parameters) {
    const ProcedureArguments args("SP_Get_SODetailForDispatch", parameters, {"@SONumbers"});
    args.ExpectAtMost(1);
    const std::vector<platform::Value> numbers = ConfirmationNumbers(args.TextOr(0, ""));
    platform::ResultSet lines;
    lines.columns = {"Product_Code", "Batch_Number", "SalePrice", "PendingQty",
                     "UOMQty",       "Quantity",     "UOMDesc",   "UOMID"};
    if (numbers.empty()) return {lines};

    const platform::ResultSet grouped = context.Query(R"SQL(
WITH Grouped AS (
    SELECT d.Product_Code, d.Batch_Number, d.SalePrice, SUM(d.Pending) AS Pending, MIN(d.SOLineID) AS FirstLine,
           IFNULL(i.UOM, MIN(d.UOM)) AS RowUOM,
           CASE WHEN i.UOM = i.UOM1 THEN i.UOM1_Conversion WHEN i.UOM = i.UOM2 THEN i.UOM2_Conversion ELSE 1 END AS Rate
    FROM SODetail d
    LEFT JOIN Items i ON i.Product_Code = d.Product_Code
    WHERE d.SONumber IN ()SQL" + Placeholders(numbers.size()) +
                                                          R"SQL()
    GROUP BY d.Product_Code, d.Batch_Number, d.SalePrice
)
SELECT g.Product_Code, g.Batch_Number, g.SalePrice, g.Pending, g.RowUOM, IFNULL(u.Description, '') AS UOMDesc, g.Rate
FROM Grouped g LEFT JOIN UOM u ON u.UOM = g.RowUOM
ORDER BY g.FirstLine)SQL",
                                                      numbers);
    for (const auto& row : grouped.rows) {
        const std::string item = platform::ToText(row[0]);
        const double pending = platform::ToNumber(row[3]);
        const double rate = platform::ToNumber(row[6]);
        lines.rows.push_back({row[0], row[1], row[2], platform::Value(GetQtyAsMultiple(context, item, pending)),
                              platform::Value(rate > 0 ? pending / rate : pending), row[3], row[5], row[4]});
    }
    return {lines};
}

}  // namespace server::loading
