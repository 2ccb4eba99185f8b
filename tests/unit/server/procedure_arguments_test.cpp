// Parameters as a procedure reads them: first made into their type code by the
// connection library, then converted to the declared type by the server.
#include <gtest/gtest.h>

#include <tuple>

#include "platform/convert.h"
#include "platform/runtime_error.h"
#include "server/procedure_arguments.h"

namespace server {
namespace {

using platform::Value;
namespace adtype = platform::adtype;

std::string ServerError(const std::function<void()>& action) {
    try {
        action();
    } catch (const platform::RuntimeError& error) {
        return std::to_string(error.Number()) + " " + error.Description();
    }
    return "(no error)";
}

const std::string kDatabaseError = std::to_string(platform::err::DatabaseError) + " ";

TEST(CoerceToParameterType, MakesTheValueIntoItsTypeCode) {
    EXPECT_EQ(CoerceToParameterType({2.5, adtype::Integer}), Value(2));  // half to even, as the library rounded
    EXPECT_EQ(CoerceToParameterType({3.5, adtype::Integer}), Value(4));
    EXPECT_EQ(CoerceToParameterType({"12", adtype::Integer}), Value(12));
    EXPECT_EQ(CoerceToParameterType({7, adtype::Double}), Value(7.0));
    EXPECT_EQ(CoerceToParameterType({12.5, adtype::VarChar}), Value("12.5"));
    EXPECT_EQ(CoerceToParameterType({platform::DateTime(2026, 11, 22, 10, 0, 0), adtype::VarChar}),
              Value("2026-11-22 10:00:00"));
    EXPECT_EQ(CoerceToParameterType({"2026-11-22", adtype::Date}), Value(platform::DateSerial(2026, 11, 22)));
    EXPECT_TRUE(CoerceToParameterType({Value::Null(), adtype::Integer}).IsNull());
    EXPECT_TRUE(CoerceToParameterType({Value(), adtype::VarChar}).IsNull());
    for (const platform::Parameter& bad : {platform::Parameter{"abc", adtype::Integer}, {"31/31/2026", adtype::Date}})
        EXPECT_EQ(ServerError([&] { CoerceToParameterType(bad); }),
                  "3421 Application uses a value of the wrong type for the current operation.")
            << platform::ToText(bad.value);
}

TEST(ServerConversions, TakeWhatTheServerTookAndRefuseTheRest) {
    using Conversion = Value (*)(const Value&);
    const std::tuple<Conversion, Value, Value> cases[] = {
        {ToServerInt, "12", 12},
        {ToServerInt, " -7 ", -7},
        {ToServerInt, "", 0},
        {ToServerInt, 12.7, 12},  // the server truncates
        {ToServerInt, -12.7, -12},
        {ToServerInt, Value::Null(), Value::Null()},
        {ToServerFloat, " 12.5", 12.5},
        {ToServerFloat, "1e3", 1000.0},
        {ToServerFloat, 3, 3.0},
        {ToServerText, 12, "12"},
        {ToServerText, 0.1 + 0.2, "0.3"},
        {ToServerText, "as is ", "as is "},
        {ToServerBit, "TRUE", 1},
        {ToServerBit, 2, 1},
        {ToServerBit, "0", 0},
        {ToServerDateTime, platform::DateTime(2026, 11, 22, 23, 59, 59), "2026-11-22 23:59:59"},
        {ToServerDateTime, "2026-11-22", "2026-11-22 00:00:00"},
        {ToServerDateTime, "", "1900-01-01 00:00:00"}};
    for (const auto& [convert, value, expected] : cases) {
        const Value result = convert(value);
        EXPECT_EQ(result, expected) << "'" << platform::ToText(value) << "' gave '" << platform::ToText(result)
                                    << "' instead of '" << platform::ToText(expected) << "'";
    }

    const std::tuple<Conversion, Value, std::string> refusals[] = {
        {ToServerInt, "12.5", "Conversion failed when converting the varchar value '12.5' to data type int."},
        {ToServerInt, 3e9, "Arithmetic overflow error converting expression to data type int."},
        {ToServerFloat, "inf", "Error converting data type varchar to float."},
        {ToServerBit, "yes", "Conversion failed when converting the varchar value 'yes' to data type bit."},
        {ToServerDateTime, "soon", "Conversion failed when converting date and/or time from character string."}};
    for (const auto& [convert, value, message] : refusals)
        EXPECT_EQ(ServerError([&] { convert(value); }), kDatabaseError + message) << platform::ToText(value);
}

TEST(ProcedureArguments, ReadsByPositionWithDefaults) {
    ProcedureArguments args("sp_x", {{"5", adtype::VarChar}, {platform::DateSerial(2026, 1, 2), adtype::Date}});
    EXPECT_EQ(args.Count(), 2u);
    EXPECT_EQ(args.Int(0), Value(5));
    EXPECT_EQ(args.DateTime(1), Value("2026-01-02 00:00:00"));
    EXPECT_EQ(args.Int(2, Value(9)), Value(9));
    EXPECT_EQ(args.IntOr(2, -1), -1);
    EXPECT_EQ(args.TextOr(0, ""), "5");
    EXPECT_EQ(ServerError([&] { args.Text(2); }),
              kDatabaseError + "Procedure or function 'sp_x' expects parameter '@3', which was not supplied.");
    EXPECT_NO_THROW(args.ExpectAtMost(2));
    EXPECT_THROW(args.ExpectAtMost(1), platform::RuntimeError);
}

}  // namespace
}  // namespace server
