// Parameters as a procedure reads them: first made into their type code by the
// connection library, then converted to the declared type by the server.
#include <functional>

#include <gtest/gtest.h>

#include "platform/convert.h"
#include "platform/runtime_error.h"
#include "server/procedure_arguments.h"

namespace server {
namespace {

using platform::Value;
namespace adtype = platform::adtype;

// The converted value as "kind:text", or the error as "number description".
std::string Outcome(const std::function<Value()>& action) {
    try {
        const Value value = action();
        return value.IsNull() ? "NULL" : std::to_string(static_cast<int>(value.kind())) + ":" + platform::ToText(value);
    } catch (const platform::RuntimeError& error) {
        return std::to_string(error.Number()) + " " + error.Description();
    }
}

std::string Expected(const Value& value) {
    return Outcome([&] { return value; });
}

const std::string kDatabaseError = std::to_string(platform::err::DatabaseError) + " ";
const std::string kWrongType = "3421 Application uses a value of the wrong type for the current operation.";

TEST(CoerceToParameterType, MakesTheValueIntoItsTypeCode) {
    const std::vector<std::tuple<platform::Parameter, std::string>> cases = {
        {{2.5, adtype::Integer}, Expected(2)},  // half to even, as the library rounded
        {{3.5, adtype::Integer}, Expected(4)},
        {{"12", adtype::Integer}, Expected(12)},
        {{7, adtype::Double}, Expected(7.0)},
        {{12.5, adtype::VarChar}, Expected("12.5")},
        {{platform::DateTime(2026, 11, 22, 10, 0, 0), adtype::VarChar}, Expected("2026-11-22 10:00:00")},
        {{"2026-11-22", adtype::Date}, Expected(platform::DateSerial(2026, 11, 22))},
        {{Value::Null(), adtype::Integer}, "NULL"},
        {{Value(), adtype::VarChar}, "NULL"},
        {{"abc", adtype::Integer}, kWrongType},
        {{"31/31/2026", adtype::Date}, kWrongType}};
    for (const auto& [parameter, expected] : cases) {
        SCOPED_TRACE(platform::ToText(parameter.value));
        EXPECT_EQ(Outcome([&] { return CoerceToParameterType(parameter); }), expected);
    }
}

TEST(ServerConversions, ConvertToTheDeclaredTypeOrRefuseInTheServersWords) {
    const auto failed = [](const std::string& value, const std::string& type) {
        return kDatabaseError + "Conversion failed when converting the varchar value '" + value + "' to data type " +
               type + ".";
    };
    const std::vector<std::tuple<Value (*)(const Value&), Value, std::string>> cases = {
        {ToServerInt, "12", Expected(12)},
        {ToServerInt, " -7 ", Expected(-7)},
        {ToServerInt, "", Expected(0)},
        {ToServerInt, 12.7, Expected(12)},  // the server truncates
        {ToServerInt, -12.7, Expected(-12)},
        {ToServerInt, Value::Null(), "NULL"},
        {ToServerInt, "12.5", failed("12.5", "int")},
        {ToServerInt, 3e9, kDatabaseError + "Arithmetic overflow error converting expression to data type int."},
        {ToServerFloat, " 12.5", Expected(12.5)},
        {ToServerFloat, "1e3", Expected(1000.0)},
        {ToServerFloat, 3, Expected(3.0)},
        {ToServerFloat, "inf", kDatabaseError + "Error converting data type varchar to float."},
        {ToServerText, 12, Expected("12")},
        {ToServerText, 0.1 + 0.2, Expected("0.3")},
        {ToServerText, "as is ", Expected("as is ")},
        {ToServerBit, "TRUE", Expected(1)},
        {ToServerBit, 2, Expected(1)},
        {ToServerBit, "0", Expected(0)},
        {ToServerBit, "yes", failed("yes", "bit")},
        {ToServerDateTime, platform::DateTime(2026, 11, 22, 23, 59, 59), Expected("2026-11-22 23:59:59")},
        {ToServerDateTime, "2026-11-22", Expected("2026-11-22 00:00:00")},
        {ToServerDateTime, "", Expected("1900-01-01 00:00:00")},
        {ToServerDateTime, "soon",
         kDatabaseError + "Conversion failed when converting date and/or time from character string."}};
    for (const auto& [convert, input, expected] : cases) {
        SCOPED_TRACE(platform::ToText(input));
        EXPECT_EQ(Outcome([&] { return convert(input); }), expected);
    }
}

TEST(ProcedureArguments, ReadsByPositionWithDefaults) {
    ProcedureArguments args("sp_x", {{"5", adtype::VarChar}, {platform::DateSerial(2026, 1, 2), adtype::Date}});
    EXPECT_EQ(args.Count(), 2u);
    EXPECT_EQ(args.Int(0), Value(5));
    EXPECT_EQ(args.DateTime(1), Value("2026-01-02 00:00:00"));
    EXPECT_EQ(args.Int(2, Value(9)), Value(9));
    EXPECT_EQ(args.IntOr(2, -1), -1);
    EXPECT_EQ(args.TextOr(0, ""), "5");
    EXPECT_EQ(Outcome([&] { return args.Text(2); }),
              kDatabaseError + "Procedure or function 'sp_x' expects parameter '@3', which was not supplied.");
    EXPECT_NO_THROW(args.ExpectAtMost(2));
    EXPECT_THROW(args.ExpectAtMost(1), platform::RuntimeError);
}

}  // namespace
}  // namespace server
