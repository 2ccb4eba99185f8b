// The runtime's conversions: dates, numbers and text, rounding, and Format.
#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

#include "platform/convert.h"
#include "platform_test_support.h"

namespace platform {
namespace {

using testing::ErrorNumberOf;
using Pieces = std::vector<std::string>;

TEST(DateSerial, CountsDaysFromTheThirtiethOfDecember1899) {
    const std::tuple<int, int, int, double> cases[] = {
        {1899, 12, 30, 0},    {1899, 12, 29, -1},    {1900, 1, 1, 2},      {1900, 2, 28, 60},
        {1900, 3, 1, 61},  // 1900 was no leap year
        {2000, 2, 29, 36585}, {2026, 11, 22, 46348}, {100, 1, 1, -657434}, {9999, 12, 31, 2958465},
    };
    for (const auto& [year, month, day, serial] : cases)
        EXPECT_EQ(DateSerial(year, month, day).serial, serial) << year << '-' << month << '-' << day;
}

TEST(DateParts, SplitDateAgreesWithDateSerialAndDateOnlyDropsTheTime) {
    // Every third day over some 550 years either side of 1899-12-30 comes back to itself.
    for (long day = -200000; day <= 200000; day += 3) {
        const DateParts parts = SplitDate(Date{static_cast<double>(day)});
        ASSERT_EQ(DateSerial(parts.year, parts.month, parts.day).serial, static_cast<double>(day)) << day;
    }
    EXPECT_EQ(DateOnly(Date{46348.75}).serial, 46348);
    EXPECT_EQ(DateOnly(Date{-1.25}).serial, -1);
    EXPECT_EQ(DateOnly(Date{46348.99999999}).serial, 46349);  // the time rounds to the next midnight
    EXPECT_EQ(DayEndOf(Date{-1.25}), DateTime(1899, 12, 29, 23, 59, 59));
}

TEST(DateText, WritesAndReadsTheDatabaseFormAndWritesDayMonthYear) {
    EXPECT_EQ(DateToIso(DateTime(2026, 11, 22, 13, 5, 9)), "2026-11-22 13:05:09");
    EXPECT_EQ(DateToIso(Date{-1.25}), "1899-12-29 06:00:00");

    EXPECT_EQ(ParseIsoDate("2026-11-22T13:05:09"), DateTime(2026, 11, 22, 13, 5, 9));
    EXPECT_EQ(ParseIsoDate("2026-11-22 13:05:09.600"), DateTime(2026, 11, 22, 13, 5, 10));
    EXPECT_EQ(ParseIsoDate("1899-12-29 06:00:00"), Date{-1.25});
    EXPECT_EQ(ParseIsoDate("2024-02-29"), DateSerial(2024, 2, 29));
    for (const char* bad : {"2026-02-29", "2026-13-01", "2026-00-10", "2026-11-22 24:00:00", "2026-11-2", "abcd-ef-gh",
                            "2026-11-22x", "2026-11-22 13:05", "22/11/2026", ""})
        EXPECT_FALSE(ParseIsoDate(bad).has_value()) << '"' << bad << '"';
    EXPECT_EQ(DateToText(Date{-1.25}), "29/12/1899 06:00:00");
    EXPECT_EQ(DateToText(DateSerial(100, 1, 1)), "01/01/0100");
}

TEST(NumberToText, WritesFifteenDigitsInTheShortestForm) {
    const std::tuple<double, const char*> cases[] = {
        {-0.0, "0"},
        {0.1 + 0.2, "0.3"},
        {2.0 / 3.0, "0.666666666666667"},
        {-1234.5678, "-1234.5678"},
        {999999999999999.0, "999999999999999"},
        // one digit more than fifteen goes to E notation; so do five zeros after the point
        {1e15, "1E+15"},
        {999999999999999.9, "1E+15"},
        {-1234567890123456.0, "-1.23456789012346E+15"},
        {1.5e300, "1.5E+300"},
        {0.0001, "0.0001"},
        {0.0000123, "1.23E-05"},
        {1e-100, "1E-100"},
    };
    for (const auto& [value, text] : cases) EXPECT_EQ(NumberToText(value), text) << "value " << value;
}

TEST(ToTextAndToNumber, GiveEachKindOfValueItsRuntimeMeaning) {
    EXPECT_EQ(std::tuple(ToText(Value::Null()), ToText(Value(false))), std::tuple("", "False"));

    const std::tuple<Value, double> cases[] = {
        {Value(), 0},
        {Value::Null(), 0},
        {Value(""), 0},
        {Value("  12  "), 12},
        {Value("-1.5E3"), -1500},
        {Value("1,234.50"), 1234.5},  // a cell written with grouping
        {Value(true), -1},
        {Value(Date{46348.25}), 46348.25},
    };
    for (const auto& [value, number] : cases) EXPECT_EQ(ToNumber(value), number) << ToText(value);
}

TEST(IsNumeric, AcceptsWhatTheRuntimeAccepted) {
    const std::tuple<const char*, bool> cases[] = {
        {" 12 ", true}, {"-1.5e3", true}, {"1d2", true}, {"&HFF", true},  {"1,000", true},  {"+.5", true},
        {"5.", true},   {"1e400", true},  {"", false},   {".", false},    {"1 2", false},   {"12abc", false},
        {"1e", false},  {",5", false},    {"&H", false}, {"&HFG", false}, {"1.2.3", false}, {"--1", false},
    };
    for (const auto& [text, numeric] : cases) EXPECT_EQ(IsNumericText(text), numeric) << '"' << text << '"';
    EXPECT_EQ(std::tuple(IsNumeric(Value()), IsNumeric(Value(true)), IsNumeric(Value::Null())),
              std::tuple(true, true, false));
    EXPECT_FALSE(IsNumeric(Value(Date{1.0})));
    EXPECT_FALSE(IsNumeric(Value("x")));
}

// &H and &O numbers are 16-bit up to FFFF, 32-bit beyond, signed as the runtime's.
TEST(CDblAndVal, CDblRefusesWhatValReadsAsFarAsItCan) {
    EXPECT_EQ(std::tuple(CDbl(Value("&HFFFF")), CDbl(Value())), std::tuple(-1.0, 0.0));
    EXPECT_EQ(ErrorNumberOf([] { CDbl(Value("12 kg")); }), err::TypeMismatch);
    EXPECT_EQ(ErrorNumberOf([] { CDbl(Value::Null()); }), 94);
    EXPECT_EQ(ErrorNumberOf([] { CDbl(Value("1e400")); }), err::Overflow);

    const std::tuple<const char*, double> cases[] = {
        {"  12abc", 12}, {"1 2 3", 123}, {"&HFF", 255},      {"-.5e2", -50},     {"2*0*5", 2},
        {"", 0},         {"1.2.3", 1.2}, {"1e", 1},          {"1D2", 100},       {" - 5", -5},
        {"1,234", 1},    {"\t7\n8", 78}, {".", 0},           {"&O17", 15},       {"&h1f", 31},
        {"&H", 0},       {"&H1G", 1},    {"&H8000", -32768}, {"&H10000", 65536}, {"&HFFFFFFFF", -1},
    };
    for (const auto& [text, value] : cases) EXPECT_EQ(Val(text), value) << '"' << text << '"';
    EXPECT_EQ(ErrorNumberOf([] { Val("1e400"); }), err::Overflow);
    EXPECT_EQ(ErrorNumberOf([] { Val("&H100000000"); }), err::Overflow);
}

TEST(RoundHalfEven, SendsTiesAsTheFiguresReadToTheEvenNeighbour) {
    const std::tuple<double, int, double> cases[] = {
        {2.5, 0, 2},      {3.5, 0, 4},      {-2.5, 0, -2},   {2.5001, 0, 3},      {0.125, 2, 0.12},
        {0.375, 2, 0.38}, {2.675, 2, 2.68}, {1.005, 2, 1.0}, {0.1 + 0.2, 2, 0.3}, {9.995, 2, 10.0},
    };
    for (const auto& [value, decimals, rounded] : cases)
        EXPECT_EQ(RoundHalfEven(value, decimals), rounded) << value << " to " << decimals;
    EXPECT_EQ(ErrorNumberOf([] { RoundHalfEven(1.5, -1); }), err::InvalidCall);
}

TEST(CIntCLngIntFix, RoundOrCutWithinTheirRange) {
    const struct {
        double value;
        long long cint, clng;
        double intPart, fixPart;
    } cases[] = {
        {2.5, 2, 2, 2, 2},
        {3.5, 4, 4, 3, 3},
        {-2.5, -2, -2, -3, -2},
        {-0.4, 0, 0, -1, -0},
        {32767.4, 32767, 32767, 32767, 32767},
        {-32768.5, -32768, -32768, -32769, -32768},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.value);
        EXPECT_EQ(std::tuple(CInt(c.value), CLng(c.value), Int(c.value), Fix(c.value)),
                  std::tuple(c.cint, c.clng, c.intPart, c.fixPart));
    }
    for (double outside : {32767.5, -32768.51, 40000.0, std::numeric_limits<double>::quiet_NaN()})
        EXPECT_EQ(ErrorNumberOf([=] { CInt(outside); }), err::Overflow) << outside;
    EXPECT_EQ(std::tuple(CLng(2147483647.4), CLng(-2147483648.5)), std::tuple(2147483647, -2147483648LL));
    for (double outside : {2147483647.5, -2147483649.0})
        EXPECT_EQ(ErrorNumberOf([=] { CLng(outside); }), err::Overflow) << outside;
}

TEST(TextFunctions, TrimCaseSplitAndReplaceAsTheRuntimeDid) {
    EXPECT_EQ(Trim("     "), "");
    EXPECT_EQ(Trim("\ta\t"), "\ta\t");  // spaces only
    EXPECT_EQ(std::tuple(LTrim("  a  "), RTrim("  a  ")), std::tuple("a  ", "  a"));

    // é <-> É; the multiplication and division signs are no letters; the rupee sign passes untouched
    EXPECT_EQ(UCase("abc 1 caf\xC3\xA9 \xC3\xB7 \xE2\x82\xB9"), "ABC 1 CAF\xC3\x89 \xC3\xB7 \xE2\x82\xB9");
    EXPECT_EQ(LCase("ABC 1 CAF\xC3\x89 \xC3\x97"), "abc 1 caf\xC3\xA9 \xC3\x97");

    EXPECT_EQ(Split("", ","), Pieces{});
    EXPECT_EQ(Split("a,b,", ","), (Pieces{"a", "b", ""}));
    EXPECT_EQ(Split(",", ","), (Pieces{"", ""}));
    EXPECT_EQ(Split("a, b, c", ", "), (Pieces{"a", "b", "c"}));
    EXPECT_EQ(Split("a,b", ""), Pieces{"a,b"});

    EXPECT_EQ(std::tuple(Replace("aaa", "aa", "b"), Replace("abc", "", "x"), Replace("abcabc", "bc", "")),
              std::tuple("ba", "abc", "aa"));
}

struct FormatCase {
    Value value;
    const char* format;
    const char* text;
};

void ExpectAll(std::initializer_list<FormatCase> cases) {
    for (const auto& c : cases)
        EXPECT_EQ(Format(c.value, c.format), c.text) << ToText(c.value) << " through \"" << c.format << '"';
}

// The screen formats with "0.00", "0.000", "Fixed" and "General Number" only.
TEST(FormatNumber, TheScreensFormatsRoundAndReadTheValueAsANumber) {
    ExpectAll({
        {1234.5, "0.00", "1234.50"},
        {2.0005, "0.000", "2.001"},
        // half away from zero on the figures as written; a negative rounding to nothing keeps its sign
        {-2.5, "0", "-3"},
        {999.995, "0.00", "1000.00"},
        {-0.001, "0.00", "-0.00"},
        {-0.5, "fixed", "-0.50"},
        {1e15, "General Number", "1E+15"},
        {" 1,234.50 ", "0.00", "1234.50"},
        {"abc", "0.00", "abc"},
        {Value::Null(), "0.00", ""},
        {Value(), "0.00", ""},
        {1234.5, "", "1234.5"},
        {"as is", "", "as is"},
    });
}

TEST(FormatDate, PatternsTheGeneralDateAndTheValueReadAsTheFormatAsks) {
    const Value friday = DateTime(2027, 3, 5, 14, 7, 9);
    ExpectAll({
        {friday, "d/m/yy", "5/3/27"},
        {friday, "dd-mmm-yyyy", "05-Mar-2027"},
        {friday, "yyyy-mm-dd hh:nn", "2027-03-05 14:07"},
        {DateSerial(1899, 12, 29), "dd/mm/yyyy", "29/12/1899"},
        {friday, "General Date", "05/03/2027 14:07:09"},
        {DateSerial(2027, 3, 5), "General Date", "05/03/2027"},
        {46461, "dd/mm/yyyy", "15/03/2027"},
        {"2027-03-15", "dd/mm/yyyy", "15/03/2027"},
        {"15/03/2027 10:00:00", "MM/YYYY", "03/2027"},
        {"soon", "dd/mm/yyyy", "soon"},
        {DateSerial(2027, 3, 15), "0.00", "46461.00"},
    });
}

}  // namespace
}  // namespace platform
