// Parameters as a procedure reads them: first made into their type code by the
// connection library, then converted to the declared type by the server.
#include <gtest/gtest.h>

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
    EXPECT_EQ(ServerError([] {
                  CoerceToParameterType({"abc", adtype::Integer});
              }),
              "3421 Application uses a value of the wrong type for the current operation.");
    EXPECT_EQ(ServerError([] {
                  CoerceToParameterType({"31/31/2026", adtype::Date});
              }),
              "3421 Application uses a value of the wrong type for the current operation.");
}

TEST(ServerConversions, ToInt) {
    EXPECT_EQ(ToServerInt(Value("12")), Value(12));
    EXPECT_EQ(ToServerInt(Value(" -7 ")), Value(-7));
    EXPECT_EQ(ToServerInt(Value("")), Value(0));
    EXPECT_EQ(ToServerInt(Value(12.7)), Value(12));  // the server truncates
    EXPECT_EQ(ToServerInt(Value(-12.7)), Value(-12));
    EXPECT_TRUE(ToServerInt(Value::Null()).IsNull());
    EXPECT_EQ(ServerError([] { ToServerInt(Value("12.5")); }),
              kDatabaseError + "Conversion failed when converting the varchar value '12.5' to data type int.");
    EXPECT_EQ(ServerError([] { ToServerInt(Value(3e9)); }),
              kDatabaseError + "Arithmetic overflow error converting expression to data type int.");
}

TEST(ServerConversions, ToFloatTextAndBit) {
    EXPECT_EQ(ToServerFloat(Value(" 12.5")), Value(12.5));
    EXPECT_EQ(ToServerFloat(Value("1e3")), Value(1000.0));
    EXPECT_EQ(ToServerFloat(Value(3)), Value(3.0));
    EXPECT_EQ(ServerError([] { ToServerFloat(Value("inf")); }),
              kDatabaseError + "Error converting data type varchar to float.");
    EXPECT_EQ(ToServerText(Value(12)), Value("12"));
    EXPECT_EQ(ToServerText(Value(0.1 + 0.2)), Value("0.3"));
    EXPECT_EQ(ToServerText(Value("as is ")), Value("as is "));
    EXPECT_EQ(ToServerBit(Value("TRUE")), Value(1));
    EXPECT_EQ(ToServerBit(Value(2)), Value(1));
    EXPECT_EQ(ToServerBit(Value("0")), Value(0));
    EXPECT_EQ(ServerError([] { ToServerBit(Value("yes")); }),
              kDatabaseError + "Conversion failed when converting the varchar value 'yes' to data type bit.");
}

TEST(ServerConversions, ToDateTimeText) {
    EXPECT_EQ(ToServerDateTime(Value(platform::DateTime(2026, 11, 22, 23, 59, 59))), Value("2026-11-22 23:59:59"));
    EXPECT_EQ(ToServerDateTime(Value("2026-11-22")), Value("2026-11-22 00:00:00"));
    EXPECT_EQ(ToServerDateTime(Value("")), Value("1900-01-01 00:00:00"));
    EXPECT_EQ(ServerError([] { ToServerDateTime(Value("soon")); }),
              kDatabaseError + "Conversion failed when converting date and/or time from character string.");
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
