#include <gtest/gtest.h>

#include "error_number.h"
#include "platform/convert.h"

namespace platform {
namespace {

using testing::ErrorNumberOf;

TEST(NumberToText, WritesFifteenDigitsInTheShortestForm) {
    const struct {
        double value;
        const char* text;
    } cases[] = {
        {-0.0, "0"}, {0.1 + 0.2, "0.3"}, {1.0 / 3.0, "0.333333333333333"}, {2.0 / 3.0, "0.666666666666667"},
        {-1234.5678, "-1234.5678"}, {100.0, "100"}, {999999999999999.0, "999999999999999"},
        // one digit more than fifteen goes to E notation; so do five zeros after the point
        {1e15, "1E+15"}, {999999999999999.9, "1E+15"}, {-1234567890123456.0, "-1.23456789012346E+15"},
        {1e100, "1E+100"}, {1.5e300, "1.5E+300"}, {0.0001, "0.0001"}, {0.000123, "0.000123"},
        {0.00001, "1E-05"}, {0.0000123, "1.23E-05"}, {-0.00001, "-1E-05"}, {1e-100, "1E-100"},
    };
    for (const auto& c : cases) EXPECT_EQ(NumberToText(c.value), c.text) << "value " << c.value;
}

TEST(ToTextAndToNumber, GiveEachKindOfValueItsRuntimeMeaning) {
    EXPECT_EQ(ToText(Value::Null()), "");
    EXPECT_EQ(ToText(Value(-7LL)), "-7");
    EXPECT_EQ(ToText(Value(2.50)), "2.5");
    EXPECT_EQ(ToText(Value(true)), "True");
    EXPECT_EQ(ToText(Value(false)), "False");
    EXPECT_EQ(ToText(Value(" as it is ")), " as it is ");
    EXPECT_EQ(ToText(Value(Date{46348.0})), "22/11/2026");
    EXPECT_EQ(ToText(Value(Date{46348.5})), "22/11/2026 12:00:00");

    const struct {
        Value value;
        double number;
    } cases[] = {
        {Value(), 0},           {Value::Null(), 0},     {Value(""), 0},      {Value("12abc"), 0},
        {Value("1 2"), 0},      {Value("  12  "), 12},  {Value("-1.5E3"), -1500}, {Value(5), 5},
        {Value("1,234.50"), 1234.5},  // a cell written with grouping
        {Value(true), -1},      {Value(Date{46348.25}), 46348.25},
    };
    for (const auto& c : cases) EXPECT_EQ(ToNumber(c.value), c.number) << ToText(c.value);
}

TEST(IsNumeric, AcceptsWhatTheRuntimeAccepted) {
    const struct {
        const char* text;
        bool numeric;
    } cases[] = {
        {"12", true},     {" 12 ", true},   {"-1.5e3", true}, {"1d2", true},  {"&HFF", true},
        {"&o17", true},   {"1,000", true},  {"+.5", true},    {"5.", true},   {"1e400", true},
        {"", false},      {" ", false},     {".", false},     {"-", false},   {"1 2", false},
        {"abc", false},   {"12abc", false}, {"1e", false},    {",5", false},  {"&H", false},
        {"&HFG", false},  {"1.2.3", false}, {"--1", false},
    };
    for (const auto& c : cases) EXPECT_EQ(IsNumericText(c.text), c.numeric) << '"' << c.text << '"';
    EXPECT_TRUE(IsNumeric(Value()));
    EXPECT_TRUE(IsNumeric(Value(true)));
    EXPECT_FALSE(IsNumeric(Value::Null()));
    EXPECT_FALSE(IsNumeric(Value(Date{1.0})));
    EXPECT_FALSE(IsNumeric(Value("x")));
}

TEST(CDblAndVal, CDblRefusesWhatValReadsAsFarAsItCan) {
    EXPECT_EQ(CDbl(Value("&HFFFF")), -1.0);
    EXPECT_EQ(CDbl(Value()), 0.0);
    EXPECT_EQ(ErrorNumberOf([] { CDbl(Value("12 kg")); }), err::TypeMismatch);
    EXPECT_EQ(ErrorNumberOf([] { CDbl(Value::Null()); }), 94);
    EXPECT_EQ(ErrorNumberOf([] { CDbl(Value("1e400")); }), err::Overflow);

    const struct {
        const char* text;
        double value;
    } cases[] = {
        {"  12abc", 12},   {"1 2 3", 123},     {"&HFF", 255},      {"-.5e2", -50},    {"abc", 0},
        {"2*0*5", 2},      {"", 0},            {"1.2.3", 1.2},     {"1e", 1},         {"1e+", 1},
        {"1D2", 100},      {"+5", 5},          {" - 5", -5},       {"1,234", 1},      {"\t7\n8", 78},
        {"-", 0},          {".", 0},           {"&O17", 15},       {"&h1f", 31},      {"&H", 0},
        {"&HZ", 0},        {"&H1G", 1},
        // &H and &O numbers are 16-bit up to FFFF, 32-bit beyond, signed as the runtime's
        {"&HFFFF", -1},    {"&H8000", -32768}, {"&H10000", 65536}, {"&HFFFFFFFF", -1},
    };
    for (const auto& c : cases) EXPECT_EQ(Val(c.text), c.value) << '"' << c.text << '"';
    EXPECT_EQ(ErrorNumberOf([] { Val("1e400"); }), err::Overflow);
    EXPECT_EQ(ErrorNumberOf([] { Val("&H100000000"); }), err::Overflow);
}

}  // namespace
}  // namespace platform
