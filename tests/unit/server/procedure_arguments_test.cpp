// Parameters as a procedure reads them: first made into their type code by the
// connection library, then converted to the declared type by the server.
#include <gtest/gtest.h>

#include "platform/convert.h"
#include "server/procedure_arguments.h"
#include "server_test_support.h"

namespace server {
namespace {

using platform::Value;
using testkit::Refusal;
namespace adtype = platform::adtype;

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
    // The library's own error, not the server's.
    for (const platform::Parameter& bad : {platform::Parameter{"abc", adtype::Integer}, {"31/31/2026", adtype::Date}})
        EXPECT_EQ(Refusal([&] { CoerceToParameterType(bad); }, 3421),
                  "Application uses a value of the wrong type for the current operation.")
            << platform::ToText(bad.value);
}

// The happy conversions every save goes through are left to the save's tests; these
// are the server's own readings of odd input.
TEST(ServerConversions, TakeWhatTheServerTookAndRefuseTheRest) {
    using Conversion = Value (*)(const Value&);
    const std::tuple<Conversion, Value, Value> cases[] = {{ToServerInt, " -7 ", -7},
                                                          {ToServerInt, "", 0},
                                                          {ToServerInt, 12.7, 12},  // the server truncates
                                                          {ToServerInt, -12.7, -12},
                                                          {ToServerInt, Value::Null(), Value::Null()},
                                                          {ToServerFloat, " 12.5", 12.5},
                                                          {ToServerFloat, "1e3", 1000.0},
                                                          {ToServerFloat, 3, 3.0},
                                                          {ToServerText, 0.1 + 0.2, "0.3"},
                                                          {ToServerText, "as is ", "as is "},
                                                          {ToServerBit, "TRUE", 1},
                                                          {ToServerBit, 2, 1},
                                                          {ToServerBit, "0", 0},
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
        EXPECT_EQ(Refusal([&] { convert(value); }), message) << platform::ToText(value);
}

TEST(ProcedureArguments, ReadsByPositionWithDefaults) {
    ProcedureArguments args("sp_x", {{"5", adtype::VarChar}});
    EXPECT_EQ(args.Int(1, Value(9)), Value(9));
    EXPECT_EQ(Refusal([&] { args.Text(1); }),
              "Procedure or function 'sp_x' expects parameter '@2', which was not supplied.");
}

}  // namespace
}  // namespace server
