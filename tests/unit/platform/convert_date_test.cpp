#include <gtest/gtest.h>

#include <array>

#include "error_number.h"
#include "platform/convert.h"

namespace platform {
namespace {

using testing::ErrorNumberOf;

constexpr double kSecond = 1.0 / 86400.0;

TEST(DateSerial, CountsDaysFromTheThirtiethOfDecember1899) {
    const struct {
        int year, month, day;
        double serial;
    } cases[] = {
        {1899, 12, 30, 0},     {1899, 12, 29, -1},    {1900, 1, 1, 2},       {1900, 2, 28, 60},
        {1900, 3, 1, 61},  // 1900 was no leap year
        {2000, 2, 29, 36585},  {2000, 3, 1, 36586},   {2024, 2, 29, 45351},  {2026, 11, 22, 46348},
        {1800, 1, 1, -36522},  {100, 1, 1, -657434},  {9999, 12, 31, 2958465},
    };
    for (const auto& c : cases)
        EXPECT_EQ(DateSerial(c.year, c.month, c.day).serial, c.serial) << c.year << '-' << c.month << '-' << c.day;
}

TEST(DateSerialAndDateTime, CarryOverflowsReadTwoDigitYearsAndKeepTheTimeAsAForwardFraction) {
    EXPECT_EQ(DateSerial(2026, 13, 1), DateSerial(2027, 1, 1));
    EXPECT_EQ(DateSerial(2026, 0, 15), DateSerial(2025, 12, 15));
    EXPECT_EQ(DateSerial(2024, 3, 0), DateSerial(2024, 2, 29));
    EXPECT_EQ(DateSerial(2026, 1, 32), DateSerial(2026, 2, 1));
    EXPECT_EQ(DateSerial(26, 1, 1), DateSerial(2026, 1, 1));
    EXPECT_EQ(DateSerial(99, 1, 1), DateSerial(1999, 1, 1));
    EXPECT_EQ(ErrorNumberOf([] { DateSerial(10000, 1, 1); }), err::InvalidCall);
    EXPECT_EQ(DateTime(1899, 12, 29, 6, 0, 0).serial, -1.25);
    EXPECT_EQ(DateTime(1899, 12, 28, 18, 0, 0).serial, -2.75);
    EXPECT_NEAR(DateTime(2026, 11, 22, 23, 59, 59).serial, 46348 + 86399 * kSecond, 1e-9);
    EXPECT_EQ(DateTime(2026, 11, 22, 24, 0, 0), DateSerial(2026, 11, 23));
    EXPECT_EQ(DateTime(1899, 12, 30, -6, 0, 0), DateTime(1899, 12, 29, 18, 0, 0));
}

TEST(SplitDate, ReadsNegativeSerialsAndRoundsToTheSecond) {
    const auto expectParts = [](double serial, DateParts want) {
        const DateParts got = SplitDate(Date{serial});
        EXPECT_EQ((std::array{got.year, got.month, got.day, got.hour, got.minute, got.second}),
                  (std::array{want.year, want.month, want.day, want.hour, want.minute, want.second}))
            << "serial " << serial;
    };
    expectParts(-1.25, {1899, 12, 29, 6, 0, 0});
    expectParts(-0.5, {1899, 12, 30, 12, 0, 0});
    expectParts(46348 + 3723 * kSecond, {2026, 11, 22, 1, 2, 3});
    expectParts(0.999999999, {1899, 12, 31, 0, 0, 0});
    expectParts(-1.999999999, {1899, 12, 30, 0, 0, 0});
    EXPECT_EQ(ErrorNumberOf([] { SplitDate(Date{2e7}); }), err::Overflow);
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
    EXPECT_EQ(DayEndOf(Date{46348.2}), DateTime(2026, 11, 22, 23, 59, 59));
    EXPECT_EQ(DayEndOf(Date{-1.25}), DateTime(1899, 12, 29, 23, 59, 59));
}

TEST(DateText, WritesAndReadsTheDatabaseFormAndWritesDayMonthYear) {
    EXPECT_EQ(DateToIso(DateSerial(2026, 11, 22)), "2026-11-22");
    EXPECT_EQ(DateToIso(DateTime(2026, 11, 22, 13, 5, 9)), "2026-11-22 13:05:09");
    EXPECT_EQ(DateToIso(Date{-1.25}), "1899-12-29 06:00:00");

    EXPECT_EQ(ParseIsoDate("2026-11-22 13:05:09"), DateTime(2026, 11, 22, 13, 5, 9));
    EXPECT_EQ(ParseIsoDate("2026-11-22T13:05:09"), DateTime(2026, 11, 22, 13, 5, 9));
    EXPECT_EQ(ParseIsoDate("2026-11-22 13:05:09.600"), DateTime(2026, 11, 22, 13, 5, 10));
    EXPECT_EQ(ParseIsoDate("1899-12-29 06:00:00"), Date{-1.25});
    EXPECT_EQ(ParseIsoDate("2024-02-29"), DateSerial(2024, 2, 29));
    for (const char* bad : {"2026-02-29", "2026-13-01", "2026-00-10", "2026-11-22 24:00:00", "2026-11-2",
                            "abcd-ef-gh", "2026-11-22x", "2026-11-22 13:05", "22/11/2026", ""})
        EXPECT_FALSE(ParseIsoDate(bad).has_value()) << '"' << bad << '"';
    EXPECT_EQ(DateToText(DateTime(2026, 11, 22, 13, 5, 9)), "22/11/2026 13:05:09");
    EXPECT_EQ(DateToText(Date{-1.25}), "29/12/1899 06:00:00");
    EXPECT_EQ(DateToText(DateSerial(100, 1, 1)), "01/01/0100");
}

}  // namespace
}  // namespace platform
