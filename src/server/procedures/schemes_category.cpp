// Special category schemes: the schemes of a customer's day, the items each is
// defined on, whether the note holds each item's minimum, and the slab the note's
// totals over those items reach.
#include <map>

#include "platform/convert.h"
#include "platform/runtime_error.h"
#include "server/procedure_arguments.h"
#include "server/procedure_context.h"
#include "server/procedures/schemes_procedures.h"
#include "server/procedures/schemes_rules.h"

namespace server::schemes {

namespace {

platform::ResultSet OneFlag(const char* column, bool flag) {
    platform::ResultSet result;
    result.columns = {column};
    result.rows.push_back({platform::Value(static_cast<long long>(flag ? 1 : 0))});
    return result;
}

[[noreturn]] void RefuseCheckElement(const std::string& element) {
    throw platform::RuntimeError(platform::err::DatabaseError,
                                 "The item check '" + element + "' is not of the form item,quantity,value.");
}

// The base quantity of each item in the check string "A1,12,340|B7,4,90", the rows
// of one item added together. Empty elements are passed over.
std::map<std::string, double> QuantitiesOfCheck(const std::string& check) {
    std::map<std::string, double> quantities;
    for (const std::string& element : platform::Split(check, "|")) {
        if (platform::Trim(element).empty()) continue;
        const std::vector<std::string> parts = platform::Split(element, ",");
        if (parts.size() != 3 || platform::Trim(parts[0]).empty()) RefuseCheckElement(element);
        for (std::size_t figure = 1; figure < 3; ++figure)
            if (!platform::IsNumericText(parts[figure])) RefuseCheckElement(element);
        quantities[platform::UCase(platform::Trim(parts[0]))] += platform::ToNumber(platform::Value(parts[1]));
    }
    return quantities;
}

}  // namespace

// (dispatch date, customer[, item code, creation date]): the special category
// schemes that stand for the customer on the day; an amendment sends the old note's
// day and its creation day, so that schemes made since do not count. The third
// argument is taken and not read: the screen always sends it empty. Position 2 is
// the scheme's type, which the slab procedure is handed back.
std::vector<platform::ResultSet> FindSplCatSchemes(ProcedureContext& context,
                                                   const platform::ParameterList& parameters) {
    const ProcedureArguments args("Zuro_sp_FindSplCatSchemeID_New", parameters,
                                  {"@DispatchDate", "@CustomerID", "@ItemCode", "@CreationDate"});
    args.ExpectAtMost(4);
    const platform::Value day = args.DateTime(0);
    const platform::Value customer = CustomerCode(args, 1);
    const platform::Value madeBy = CreationDayLimit(args, 3);
    return {context.Query("SELECT s.SchemeID, s.SchemeName, s.SchemeType FROM Schemes s WHERE s.SchemeScope = 2 AND " +
                              SchemeStandsFor("?1", "?2", "?3") + " ORDER BY s.SchemeID",
                          {day, customer, madeBy})};
}

// (scheme): the items a special category scheme is defined on, with the minimum
// each must reach in base units.
std::vector<platform::ResultSet> SplCategoryItems(ProcedureContext& context,
                                                  const platform::ParameterList& parameters) {
    const ProcedureArguments args("Zuro_sp_GetSplCategoryItems_New", parameters, {"@SchemeID"});
    args.ExpectAtMost(1);
    return {context.Query(R"SQL(
SELECT p.Product_Code, p.MinQty FROM SchemeProducts p JOIN Schemes s ON s.SchemeID = p.SchemeID
WHERE p.SchemeID = ? AND s.SchemeScope = 2 ORDER BY p.Product_Code)SQL",
                          {args.Int(0)})};
}

// (scheme, check string): 1 when the note holds each of the scheme's items that has
// a minimum to at least that minimum, the rows of an item added together. An item
// the string does not name holds 0 and so fails its minimum; an item without one
// asks nothing. A scheme that is not a special category scheme with items gives 0.
std::vector<platform::ResultSet> AllItemsMeetMinQty(ProcedureContext& context,
                                                    const platform::ParameterList& parameters) {
    const ProcedureArguments args("Zuro_SP_isAllItemsexistsMinQty", parameters, {"@SchemeID", "@ItemCheck"});
    args.ExpectAtMost(2);
    const platform::Value scheme = args.Int(0);
    const std::map<std::string, double> held = QuantitiesOfCheck(args.TextOr(1, ""));
    const platform::ResultSet items = context.Query(R"SQL(
SELECT p.Product_Code, p.MinQty FROM SchemeProducts p JOIN Schemes s ON s.SchemeID = p.SchemeID
WHERE p.SchemeID = ? AND s.SchemeScope = 2)SQL",
                                                    {scheme});
    bool met = !items.rows.empty();
    for (const auto& row : items.rows) {
        const double minimum = platform::ToNumber(row[1]);
        if (minimum <= 0) continue;
        const auto found = held.find(platform::UCase(platform::ToText(row[0])));
        if (found == held.end() || found->second + 1e-9 < minimum) met = false;
    }
    return {OneFlag("AllItemsExist", met)};
}

// (scheme, total base quantity, total in UOM1, total in UOM2, total value,
// customer, scheme type): the slab of a special category scheme open to the
// customer that the total of the slab's unit reaches; the highest such slab. A type
// of 0 takes any. Positions: type, slab unit, start, end, free unit, step, slab, free
// quantity, discount amount, discount percentage.
std::vector<platform::ResultSet> DispatchSchemeSlab(ProcedureContext& context,
                                                    const platform::ParameterList& parameters) {
    const ProcedureArguments args(
        "Zuro_sp_GetDispatch_SchSlabDetails", parameters,
        {"@SchemeID", "@TotalQty", "@TotalUOM1Qty", "@TotalUOM2Qty", "@TotalValue", "@CustomerID", "@SchemeType"});
    args.ExpectAtMost(7);
    return {context.Query(R"SQL(
WITH Measured AS (
    SELECT s.SchemeType, sl.SlabUnit, sl.SlabStart, sl.SlabEnd, sl.FreeUnit, sl.Onward, sl.SlabID, sl.FreeQty,
           sl.DiscountAmount, sl.DiscountPercent, s.HasSlabs,
           CASE sl.SlabUnit WHEN 1 THEN ?2 WHEN 2 THEN ?3 WHEN 3 THEN ?4 ELSE ?5 END AS Figure
    FROM Schemes s JOIN SchemeSlabs sl ON sl.SchemeID = s.SchemeID
    WHERE s.SchemeID = ?1 AND s.SchemeScope = 2 AND (?7 = 0 OR s.SchemeType = ?7) AND )SQL" +
                              SchemeOpenTo("?6") + R"SQL()
SELECT SchemeType, SlabUnit, SlabStart, SlabEnd, FreeUnit, Onward, SlabID, FreeQty, DiscountAmount, DiscountPercent
FROM Measured WHERE )SQL" + FigureReachesSlab("Figure") +
                              " ORDER BY SlabStart DESC, SlabID LIMIT 1",
                          {args.Int(0), args.Float(1), args.Float(2), args.Float(3), args.Float(4),
                           platform::Value(CustomerCode(args, 5)), args.Int(6, 0)})};
}

}  // namespace server::schemes
