#include "server/procedures/schemes_rules.h"

#include <optional>

#include "platform/convert.h"
#include "platform/convert_dates.h"
#include "platform/runtime_error.h"
#include "server/procedure_arguments.h"

namespace server::schemes {

std::string SchemeOpenTo(const std::string& customer) {
    return "(s.AllCustomers = 1 OR EXISTS (SELECT 1 FROM SchemeCustomers sc WHERE sc.SchemeID = s.SchemeID AND "
           "sc.CustomerID = " +
           customer + "))";
}

std::string SchemeStandsFor(const std::string& day, const std::string& customer, const std::string& madeBy) {
    return "s.Active = 1 AND date(s.ValidFrom) <= date(" + day + ") AND date(" + day + ") <= date(s.ValidTo) AND " +
           SchemeOpenTo(customer) + " AND (" + madeBy + " IS NULL OR date(s.CreationDate) <= " + madeBy + ")";
}

std::string FigureReachesSlab(const std::string& figure) {
    return "(SlabStart <= " + figure + " + 1e-9 AND (HasSlabs = 0 OR " + figure + " <= SlabEnd + 1e-9))";
}

platform::Value CreationDayLimit(const ProcedureArguments& args, std::size_t index) {
    const std::string text = platform::Trim(args.TextOr(index, ""));
    if (text.empty()) return platform::Value::Null();
    std::optional<platform::Date> day = platform::detail::ParseDateText(text);
    // Day numbers as far as the server's calendar reaches (9999-12-31).
    const double number = platform::IsNumericText(text) ? platform::ToNumber(platform::Value(text)) : -1;
    if (!day && number >= 0 && number <= 2958465) day = platform::Date{number};
    if (!day)
        throw platform::RuntimeError(platform::err::DatabaseError,
                                     "Conversion failed when converting date and/or time from character string.");
    return platform::DateToIso(platform::DateOnly(*day));
}

std::string CustomerCode(const ProcedureArguments& args, std::size_t index) {
    return platform::Trim(platform::ToText(args.Text(index)));
}

}  // namespace server::schemes
